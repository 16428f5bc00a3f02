#include "apoyo/mensajes.h"
#include "apoyo/prueba_salida.h"
#include "output/image_crop.h"

using namespace bosquel;
using namespace bosquel::apoyo;
using Edicion = ImageCrop::Edicion;

namespace {

using ImageCropEdicion = PruebaSalida;

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
    EXPECT_EQ(estado(), EstadoRecuadro::Terminado);
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
                                         {"Perfil Predefinido", "guardar /p.bmp color"},
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
