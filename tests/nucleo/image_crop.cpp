#include "output/image_crop.h"

#include "apoyo/lienzo_falso.h"
#include "apoyo/mensajes.h"
#include "apoyo/plataforma_falsa.h"
#include "model/dibujo.h"
#include "output/escala.h"

#include <gtest/gtest.h>
#include <limits>

using namespace bosquel;
using namespace bosquel::apoyo;
using enum EstadoRecuadro;
using Edicion = ImageCrop::Edicion;

namespace {

constexpr unsigned izquierdo = 1, derecho = 2, central = 4;

/// The window over a sheet of 18000 by 12000 twips, in a viewport of 6000 by 4500. Two turns of other events
/// are a beat of its timer.
struct PruebaSalida : testing::Test {
    static constexpr double ancho = 18000, alto = 12000, visorAncho = 6000, visorAlto = 4500;

    PlataformaFalsa plataforma;
    Dibujo dibujo;
    LienzoFalso lienzo;
    std::optional<ImageCrop> puesta;
    int cambios = 0;

    PruebaSalida() {
        dibujo.Hoja.Width = static_cast<float>(ancho / EscalaSalida);
        dibujo.Hoja.Height = static_cast<float>(alto / EscalaSalida);
        plataforma.alCederEventos = [this] {
            if (plataforma.turnos % 2 == 0) ventana().pasarTimer1();
        };
        abrir();
    }

    void abrir() {
        puesta.emplace(plataforma, dibujo, "/programa/Bosquel");
        ventana().cargar(lienzo);
        ventana().alCambiar = [this] { ++cambios; };
        ventana().redimensionar(visorAncho + 1450, visorAlto + 950);
    }

    ImageCrop& ventana() { return *puesta; }
    const Recuadro& forma() { return ventana().recuadro().forma(); }
    EstadoRecuadro estado() { return ventana().recuadro().estado(); }

    void arrastrar(double x1, double y1, double x2, double y2) {
        ventana().pulsar(x1, y1);
        ventana().mover(izquierdo, x1 + 15, y1 + 15);
        ventana().mover(izquierdo, x2, y2);
        ventana().soltar();
    }
};

using ImageCropCargar = PruebaSalida;
using ImageCropTamano = PruebaSalida;
using ImageCropBarras = PruebaSalida;
using ImageCropPuntero = PruebaSalida;
using ImageCropAutoScroll = PruebaSalida;
using ImageCropEdicion = PruebaSalida;

void esperarHoja(const Recuadro& hoja, double left, double top) {
    EXPECT_NEAR(hoja.Left, left, 0.01);
    EXPECT_NEAR(hoja.Top, top, 0.01);
}

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
    EXPECT_EQ(estado(), ninguno);
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

TEST_F(ImageCropCargar, UnaHojaSinTamanoDaUnaImagenVacia) {
    dibujo.Hoja.Width = 0;
    dibujo.Hoja.Height = -500;
    abrir();
    EXPECT_EQ(lienzo.ancho, 0);
    EXPECT_EQ(lienzo.alto, 0);
    plataforma.respuestas = {Respuesta::si};
    ventana().pulsarEdicion(Edicion::Clipboard);
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

TEST_F(ImageCropPuntero, UnRecuadroVaDePulsarASoltar) {
    ventana().pulsar(1500, 1500);
    EXPECT_EQ(estado(), Nuevo);
    ventana().mover(izquierdo, 3000, 2400);
    // The first move already draws.
    EXPECT_EQ(estado(), Seguir);
    EXPECT_EQ(forma(), (Recuadro{1500, 1500, 1500, 900}));
    ventana().mover(izquierdo, 4500, 3000);
    EXPECT_EQ(estado(), Seguir);
    ventana().soltar();
    EXPECT_EQ(estado(), Terminado);
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}}));
    EXPECT_EQ(plataforma.turnos, 0);
}

TEST_F(ImageCropPuntero, SoloElBotonIzquierdoSoloMueve) {
    ventana().pulsar(1500, 1500);
    for (const unsigned botones : {0U, derecho, central, izquierdo | derecho, izquierdo | central})
        ventana().mover(botones, 3000, 3000);
    EXPECT_EQ(estado(), Nuevo);
    EXPECT_EQ(forma(), Recuadro());
    ventana().mover(izquierdo, 3000, 3000);
    EXPECT_EQ(estado(), Seguir);
}

TEST_F(ImageCropPuntero, ElRecuadroHechoSeMueveYSeCopiaDeNuevo) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(2000, 2000);
    EXPECT_EQ(estado(), Mover);
    ventana().mover(izquierdo, 2000, 2000);
    ventana().mover(izquierdo, 2300, 2600);
    EXPECT_EQ(estado(), Mover);
    ventana().soltar();
    EXPECT_EQ(forma(), (Recuadro{1800, 2100, 3000, 1500}));
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}, {120, 140, 200, 100}}));
}

TEST_F(ImageCropPuntero, PulsarYSoltarDentroRepiteLaCopia) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(2000, 2000);
    ventana().soltar();
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}, {100, 100, 200, 100}}));
}

TEST_F(ImageCropPuntero, PulsarYSoltarFueraCopiaNada) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(300, 300);
    ventana().soltar();
    EXPECT_TRUE(ventana().recuadro().Visible());
    EXPECT_EQ(lienzo.areas.back().ancho, 0);
    EXPECT_EQ(lienzo.areas.back().alto, 0);
}

TEST_F(ImageCropPuntero, SoltarTerminaDesdeCualquierEstado) {
    ventana().soltar();
    EXPECT_EQ(estado(), Terminado);
    ventana().mover(izquierdo, 3000, 3000);
    EXPECT_EQ(estado(), Terminado);
    EXPECT_EQ(forma(), Recuadro());
}

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
    EXPECT_EQ(estado(), Terminado);
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

namespace {

Mensaje pregunta(const std::string& antesDe) {
    return {"Selección de área",
            "Debe seleccionar un área antes de " + antesDe + ".\n¿Desea seleccionar todo el dibujo?",
            Icono::pregunta, Botones::siNo};
}

const Mensaje aviso{.titulo = "Aviso", .texto = "Fichero de mapa de bits generado con éxito"};

using Hechos = std::vector<std::string>;

}  // namespace

TEST_F(ImageCropEdicion, LosBotonesTienenSuLugarSuRotuloYSuAyuda) {
    constexpr std::array<std::string_view, 4> rotulos{"Imprimir", "Clipboard", "Bitmap", "Reiniciar"};
    for (std::size_t i = 0; i < rotulos.size(); ++i) {
        EXPECT_EQ(ImageCrop::BotonEdicion[i].rotulo, rotulos[i]);
        EXPECT_EQ(ImageCrop::BotonEdicion[i].ayuda,
                  i == 0 || i == 3 ? "Elimina el rectángulo de selección" : "");
    }
}

TEST_F(ImageCropEdicion, SinAreaPreguntaYConNoAcaba) {
    for (const auto& [boton, antesDe] : {std::pair{Edicion::Imprimir, "imprimir"},
                                         {Edicion::Clipboard, "guardar"},
                                         {Edicion::Bitmap, "guardar"}}) {
        plataforma.mensajes.clear();
        plataforma.respuestas = {Respuesta::no};
        ventana().pulsarEdicion(boton);
        esperarMensaje(plataforma.mensajes, pregunta(antesDe));
        EXPECT_FALSE(ventana().recuadro().Visible());
    }
    EXPECT_EQ(lienzo.hechos, Hechos());
    EXPECT_TRUE(lienzo.areas.empty());
    EXPECT_TRUE(plataforma.peticiones.empty());
}

TEST_F(ImageCropEdicion, ConSiTomaTodoElDibujoYSigue) {
    plataforma.respuestas = {Respuesta::si};
    ventana().pulsarEdicion(Edicion::Clipboard);
    EXPECT_TRUE(ventana().recuadro().Visible());
    EXPECT_EQ(forma().Left, 0);
    EXPECT_NEAR(forma().Width, ancho, 0.01);
    EXPECT_EQ(estado(), Terminado);
    ASSERT_EQ(lienzo.areas.size(), 1U);
    EXPECT_EQ(lienzo.areas[0].left, 0);
    EXPECT_EQ(lienzo.areas[0].alto, 800);
    EXPECT_EQ(lienzo.hechos, (Hechos{"vaciar", "poner"}));
}

TEST_F(ImageCropEdicion, ConAreaNoPreguntaAunqueEsteVacia) {
    ventana().pulsar(3000, 3000);
    ventana().soltar();
    plataforma.archivos = {"/tmp/nada.bmp"};
    ventana().pulsarEdicion(Edicion::Imprimir);
    ventana().pulsarEdicion(Edicion::Clipboard);
    ventana().pulsarEdicion(Edicion::Bitmap);
    esperarMensaje(plataforma.mensajes, aviso);
    EXPECT_EQ(lienzo.hechos, (Hechos{"vaciar", "poner", "tomar", "vaciar", "ver A4", "vaciar", "poner",
                                     "guardar /tmp/nada.bmp dos tonos"}));
}

TEST_F(ImageCropEdicion, ImprimirPasaPorElPortapapelesYLoDejaVacio) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsarEdicion(Edicion::Imprimir);
    EXPECT_EQ(lienzo.hechos, (Hechos{"vaciar", "poner", "tomar", "vaciar", "ver A4"}));
}

TEST_F(ImageCropEdicion, ImprimirAbreLaVistaDelPapelElegido) {
    arrastrar(1500, 1500, 4500, 3000);
    for (const auto& [tamano, sentido, nombre] :
         {std::tuple{0, 0, "ver A4"}, {0, 1, "ver A4H"}, {1, 0, "ver A3"}, {1, 1, "ver A3H"}}) {
        ventana().tamano = tamano;
        ventana().sentido = sentido;
        ventana().pulsarEdicion(Edicion::Imprimir);
        EXPECT_EQ(lienzo.hechos.back(), nombre);
    }
}

TEST_F(ImageCropEdicion, ParaUnPapelSinPaginaNoSeHaceNada) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().tamano = 2;
    ventana().pulsarEdicion(Edicion::Imprimir);
    EXPECT_EQ(lienzo.hechos, Hechos());
}

TEST_F(ImageCropEdicion, MapaDeBitsPideElFicheroALaCarpetaDeLosDibujos) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsarEdicion(Edicion::Bitmap);
    ASSERT_EQ(plataforma.peticiones.size(), 1U);
    EXPECT_EQ(plataforma.peticiones[0].modo, PeticionArchivo::Modo::guardar);
    EXPECT_EQ(plataforma.peticiones[0].filtro, "Mapa de Bits de Windows (*.bmp)");
    EXPECT_EQ(plataforma.peticiones[0].carpeta, "/programa/Bosquel");
    EXPECT_EQ(plataforma.peticiones[0].titulo, "Guardar mapa de bits");
    // Nobody has chosen: nothing is written, and nothing said.
    EXPECT_EQ(lienzo.hechos, Hechos());
    EXPECT_TRUE(plataforma.mensajes.empty());
}

TEST_F(ImageCropEdicion, ElNombreSinExtensionTomaBmp) {
    arrastrar(1500, 1500, 4500, 3000);
    dibujo.Esquema = "Colores Personalizados";
    plataforma.archivos = {"/tmp/plano", "/tmp/plano.png", "/tmp/v1.2/plano"};
    for (int i = 0; i < 3; ++i)
        ventana().pulsarEdicion(Edicion::Bitmap);
    EXPECT_EQ(lienzo.hechos, (Hechos{"guardar /tmp/plano.bmp color", "guardar /tmp/plano.png color",
                                     "guardar /tmp/v1.2/plano.bmp color"}));
}

TEST_F(ImageCropEdicion, SoloElEsquemaBlancoYNegroDaDosTonos) {
    arrastrar(1500, 1500, 4500, 3000);
    for (const auto& [esquema, hecho] : {std::pair{"Blanco y Negro", "guardar /p.bmp dos tonos"},
                                         {"Colores Personalizados", "guardar /p.bmp color"},
                                         {"blanco y negro", "guardar /p.bmp color"},
                                         {"", "guardar /p.bmp color"}}) {
        dibujo.Esquema = esquema;
        plataforma.archivos = {"/p.bmp"};
        plataforma.mensajes.clear();
        ventana().pulsarEdicion(Edicion::Bitmap);
        EXPECT_EQ(lienzo.hechos.back(), hecho) << esquema;
        esperarMensaje(plataforma.mensajes, aviso);
    }
}

TEST_F(ImageCropEdicion, ReiniciarQuitaElRecuadroYSuImagen) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsarEdicion(Edicion::Reiniciar);
    EXPECT_FALSE(ventana().recuadro().Visible());
    EXPECT_EQ(forma().Left, ventana().HojaSalida().Width + 1);
    EXPECT_EQ(lienzo.areas.back(), AreaSalida());
    EXPECT_TRUE(plataforma.mensajes.empty());
}

TEST_F(ImageCropEdicion, TrasReiniciarVuelveLaPregunta) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsarEdicion(Edicion::Reiniciar);
    plataforma.respuestas = {Respuesta::no};
    ventana().pulsarEdicion(Edicion::Bitmap);
    esperarMensaje(plataforma.mensajes, pregunta("guardar"));
}

TEST_F(ImageCropEdicion, TrasReiniciarSePuedeTrazarOtro) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsarEdicion(Edicion::Reiniciar);
    arrastrar(2000, 2000, 3500, 3500);
    EXPECT_TRUE(ventana().recuadro().Visible());
    EXPECT_EQ(forma(), (Recuadro{2000, 2000, 1500, 1500}));
}

TEST_F(ImageCropEdicion, ElRelojDeArenaSePoneMientrasSeEscribeYSeQuita) {
    arrastrar(1500, 1500, 4500, 3000);
    plataforma.archivos = {"/p.bmp"};
    ventana().pulsarEdicion(Edicion::Bitmap);
    EXPECT_EQ(plataforma.relojesDeArena, (std::vector{true, false}));
}
