#include "output/image_crop.h"

#include "apoyo/prueba_salida.h"

#include <limits>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using ImageCropCargar = PruebaSalida;
using ImageCropTamano = PruebaSalida;
using ImageCropBarras = PruebaSalida;

}  // namespace

TEST_F(ImageCropCargar, LaHojaTieneElTamanoDeLaDelDibujoPorLaEscala) {
    EXPECT_NEAR(ventana().HojaSalida().Width, ancho, 0.01);
    EXPECT_NEAR(ventana().HojaSalida().Height, alto, 0.01);
    esperarHoja(ventana().HojaSalida(), 0, 0);
    EXPECT_EQ(lienzo.ancho, 1200);
    EXPECT_EQ(lienzo.alto, 800);
}

TEST_F(ImageCropCargar, UnaHojaDeVeinteMilUnidadesSonMilQuinientosDocePixeles) {
    dibujo.Hoja.Width = dibujo.Hoja.Height = 20000;
    abrir();
    EXPECT_EQ(lienzo.ancho, 1512);
    EXPECT_EQ(lienzo.alto, 1512);
}

TEST_F(ImageCropCargar, ElDibujoSePintaUnaVez) {
    arrastrar(1500, 1500, 3000, 3000);
    ventana().cambiarHScroll1(50);
    EXPECT_EQ(lienzo.veces, 1);
}

TEST_F(ImageCropCargar, SeAbreSinRecuadroConA4YEnVertical) {
    EXPECT_FALSE(ventana().recuadro().Visible());
    EXPECT_EQ(estado(), EstadoRecuadro::ninguno);
    EXPECT_EQ(ventana().tamano, 0);
    EXPECT_EQ(ventana().sentido, 0);
    EXPECT_FALSE(ventana().Timer1());
}

TEST_F(ImageCropCargar, LaHojaDesmedidaSeCortaALoQueCabeEnMemoria) {
    dibujo.Hoja.Width = std::numeric_limits<float>::max();
    dibujo.Hoja.Height = 3.3e9F;
    abrir();
    EXPECT_EQ(lienzo.ancho, 8192);
    EXPECT_EQ(lienzo.alto, 8192);
    EXPECT_EQ(ventana().HojaSalida().Width, 8192 * 15);
}

TEST_F(ImageCropCargar, SinMemoriaParaTodaLaHojaSeTrabajaConLaParteQueCabe) {
    lienzo.cabe = 1000;
    abrir();
    EXPECT_EQ(ventana().HojaSalida().Width, 15000);
    EXPECT_NEAR(ventana().HojaSalida().Height, alto, 0.01);
    ventana().cambiarHScroll1(100);
    esperarHoja(ventana().HojaSalida(), -(15000 - visorAncho), 0);
    plataforma.respuestas = {Respuesta::si};
    ventana().pulsarEdicion(ImageCrop::Edicion::Clipboard);
    EXPECT_EQ(lienzo.areas.back().ancho, 1000);
    EXPECT_EQ(lienzo.areas.back().alto, 800);
}

TEST_F(ImageCropCargar, SinMemoriaParaNadaLaVentanaSeAbreConUnaHojaVacia) {
    lienzo.cabe = 0;
    abrir();
    EXPECT_EQ(ventana().HojaSalida(), Recuadro());
    arrastrar(1500, 1500, 3000, 3000);
    ventana().pulsarEdicion(ImageCrop::Edicion::Imprimir);
    EXPECT_EQ(lienzo.hechos.back(), "ver A4");
}

TEST_F(ImageCropCargar, UnaHojaSinTamanoDaUnaImagenVacia) {
    dibujo.Hoja.Width = 0;
    dibujo.Hoja.Height = -500;
    abrir();
    EXPECT_EQ(lienzo.ancho, 0);
    EXPECT_EQ(lienzo.alto, 0);
    plataforma.respuestas = {Respuesta::si};
    ventana().pulsarEdicion(ImageCrop::Edicion::Clipboard);
    EXPECT_EQ(lienzo.areas.back(), AreaSalida());
}

TEST_F(ImageCropTamano, ElVisorTomaElDeLaVentanaMenosLoSuyo) {
    ventana().redimensionar(10000, 9000);
    EXPECT_EQ(ventana().visorAncho(), 10000 - 1450);
    EXPECT_EQ(ventana().visorAlto(), 9000 - 950);
}

TEST_F(ImageCropTamano, LaVentanaNoEsMasBajaDeCincoMil) {
    for (const double pedido : {4999.0, 5000.0, 10.0}) {
        ventana().redimensionar(10000, pedido);
        EXPECT_EQ(ventana().visorAlto(), 5000 - 950) << pedido;
    }
}

TEST_F(ImageCropTamano, CadaBarraSeVeSiLaHojaPasaDelVisor) {
    struct Caso {
        double ancho, alto;
        bool horizontal, vertical;
    };
    for (const Caso& caso : {Caso{visorAncho, visorAlto, true, true},
                             {18001, visorAlto, false, true},
                             {visorAncho, 12001, true, false},
                             {18001, 12001, false, false}}) {
        ventana().redimensionar(caso.ancho + 1450, caso.alto + 950);
        EXPECT_EQ(ventana().HScroll1().Visible, caso.horizontal);
        EXPECT_EQ(ventana().VScroll1().Visible, caso.vertical);
    }
}

TEST_F(ImageCropTamano, LaHojaQueYaCabeVuelveAlOrigen) {
    ventana().cambiarHScroll1(100);
    ventana().cambiarVScroll1(50);
    ventana().redimensionar(20000, visorAlto + 950);
    esperarHoja(ventana().HojaSalida(), 0, -3750);
    EXPECT_EQ(ventana().HScroll1().valor, 0);
    ventana().redimensionar(visorAncho + 1450, visorAlto + 950);
    esperarHoja(ventana().HojaSalida(), 0, -3750);
}

TEST_F(ImageCropBarras, MuevenLaHojaPorLoQueLeSobra) {
    ventana().cambiarHScroll1(25);
    esperarHoja(ventana().HojaSalida(), -(ancho - visorAncho) / 4, 0);
    ventana().cambiarVScroll1(100);
    esperarHoja(ventana().HojaSalida(), -3000, -(alto - visorAlto));
    EXPECT_GT(cambios, 0);
}
