#include "apoyo/prueba_salida.h"
#include "output/image_crop.h"

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using ImageCropAutoScroll = PruebaSalida;

}  // namespace

TEST_F(ImageCropAutoScroll, ElBordeDelVisorTodaviaNoDesplaza) {
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, visorAncho, visorAlto);
    EXPECT_EQ(ventana().HScroll1().valor, 0);
    EXPECT_EQ(ventana().VScroll1().valor, 0);
    EXPECT_EQ(plataforma.turnos, 0);
}

TEST_F(ImageCropAutoScroll, PasadoElBordeDerechoDaUnPasoYEspera) {
    std::vector<bool> latia;
    plataforma.alCederEventos = [&] {
        latia.push_back(ventana().Timer1());
        if (latia.size() == 3) ventana().pasarTimer1();
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, visorAncho + 15, 3000);
    EXPECT_EQ(ventana().HScroll1().valor, 1);
    EXPECT_EQ(ventana().VScroll1().valor, 0);
    esperarHoja(ventana().HojaSalida(), -120, 0);
    EXPECT_EQ(latia, (std::vector{true, true, true}));
    EXPECT_FALSE(ventana().Timer1());
    EXPECT_EQ(forma(), (Recuadro{1500, 1500, visorAncho + 15 - 1500, 1500}));
}

TEST_F(ImageCropAutoScroll, PasadoElBordeDeAbajoTambien) {
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, 3000, visorAlto + 15);
    EXPECT_EQ(ventana().HScroll1().valor, 0);
    EXPECT_EQ(ventana().VScroll1().valor, 1);
    esperarHoja(ventana().HojaSalida(), 0, -75);
}

TEST_F(ImageCropAutoScroll, EnLaEsquinaSeDanLosDosPasosYSeEsperaUnaVez) {
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, visorAncho + 15, visorAlto + 15);
    EXPECT_EQ(ventana().HScroll1().valor, 1);
    EXPECT_EQ(ventana().VScroll1().valor, 1);
    EXPECT_EQ(plataforma.turnos, 2);
}

TEST_F(ImageCropAutoScroll, CadaMovimientoTrasLaEsperaDaOtroPaso) {
    ventana().pulsar(1500, 1500);
    for (int paso = 1; paso <= 5; ++paso) {
        ventana().mover(izquierdo, visorAncho + 15 - ventana().HojaSalida().Left, 3000);
        EXPECT_EQ(ventana().HScroll1().valor, paso);
    }
    esperarHoja(ventana().HojaSalida(), -600, 0);
    EXPECT_NEAR(forma().Width, visorAncho + 15 + 480 - 1500, 0.01);
}

TEST_F(ImageCropAutoScroll, LoQueSeMueveDuranteLaEsperaEstiraElRecuadroSinDarPasos) {
    plataforma.alCederEventos = [&] {
        if (plataforma.turnos == 1)
            ventana().mover(izquierdo, visorAncho + 300, 3600);
        else
            ventana().pasarTimer1();
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, visorAncho + 15, 3000);
    EXPECT_EQ(ventana().HScroll1().valor, 1);
    EXPECT_EQ(forma(), (Recuadro{1500, 1500, visorAncho + 300 - 1500, 2100}));
}

TEST_F(ImageCropAutoScroll, ElPasoSiguienteTomaElUltimoSitioAnotadoEnLaEspera) {
    std::vector<Recuadro> alEmpezarAEsperar;
    plataforma.alCederEventos = [&] {
        if (plataforma.turnos % 2 == 1) {
            alEmpezarAEsperar.push_back(forma());
            ventana().mover(izquierdo, 8000 + plataforma.turnos, 7000);
        } else {
            ventana().pasarTimer1();
        }
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, visorAncho + 15, visorAlto + 15);
    ventana().mover(izquierdo, 7500, 6500);
    ASSERT_EQ(alEmpezarAEsperar.size(), 2U);
    EXPECT_EQ(alEmpezarAEsperar[0], (Recuadro{1500, 1500, visorAncho + 15 - 1500, visorAlto + 15 - 1500}));
    EXPECT_EQ(alEmpezarAEsperar[1], (Recuadro{1500, 1500, 8001 - 1500, 7000 - 1500}));
}

TEST_F(ImageCropAutoScroll, UnPasoDadoEnMediaEsperaNoEsperaPorSuCuenta) {
    int anidados = 0;
    plataforma.alCederEventos = [&] {
        ventana().pasarTimer1();
        if (anidados == 50) return;
        ++anidados;
        const int antes = plataforma.turnos;
        ventana().mover(izquierdo, ancho, 3000);
        EXPECT_EQ(plataforma.turnos, antes);
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, ancho, 3000);
    EXPECT_EQ(ventana().HScroll1().valor, 51);
    EXPECT_FALSE(ventana().Timer1());
}

TEST_F(ImageCropAutoScroll, AlFinalDeLaHojaNoPasaDeCien) {
    ventana().cambiarHScroll1(100);
    ventana().pulsar(15000, 1500);
    ventana().mover(izquierdo, ancho + 300, 3000);
    EXPECT_EQ(ventana().HScroll1().valor, 100);
    EXPECT_EQ(forma().Width, 3300);
}

TEST_F(ImageCropAutoScroll, UnaHojaQueCabeNoSeMueve) {
    ventana().redimensionar(20000 + 1450, 14000 + 950);
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, 20015, 14015);
    EXPECT_EQ(ventana().HScroll1().valor, 0);
    esperarHoja(ventana().HojaSalida(), 0, 0);
}

TEST_F(ImageCropAutoScroll, HaciaArribaOALaIzquierdaNoHayPasos) {
    ventana().pulsar(5000, 3000);
    ventana().mover(izquierdo, visorAncho + 500, 2000);
    ventana().mover(izquierdo, 4000, visorAlto + 500);
    EXPECT_EQ(ventana().HScroll1().valor, 0);
    EXPECT_EQ(ventana().VScroll1().valor, 0);
}

TEST_F(ImageCropAutoScroll, SoltarEnMediaEsperaTerminaYCopia) {
    plataforma.alCederEventos = [&] {
        if (plataforma.turnos == 1) ventana().soltar();
        if (plataforma.turnos == 2) ventana().pasarTimer1();
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, 7500, 3000);
    EXPECT_EQ(estado(), EstadoRecuadro::Terminado);
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 400, 100}}));
    EXPECT_FALSE(ventana().Timer1());
}

TEST_F(ImageCropAutoScroll, EmpezarOtroEnMediaEsperaNoLoMueveElQueEsperaba) {
    plataforma.alCederEventos = [&] {
        if (plataforma.turnos != 1) return;
        ventana().soltar();
        ventana().pulsar(900, 900);
        ventana().mover(izquierdo, 1200, 1500);
    };
    ventana().pulsar(1500, 1500);
    ventana().mover(izquierdo, 7500, 3000);
    EXPECT_EQ(forma(), (Recuadro{900, 900, 300, 600}));
    EXPECT_FALSE(ventana().Timer1());
}
