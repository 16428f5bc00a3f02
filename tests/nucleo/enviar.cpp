#include "drawing/enviar.h"

#include "apoyo/banco.h"
#include "apoyo/lienzo_falso.h"
#include "furnishing/dibujar_elemento.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"
#include "output/escala.h"
#include "output/image_crop.h"

#include <gtest/gtest.h>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using Trazos = std::vector<std::string>;

/// A program whose output window looks at its picture and is closed.
struct BancoSalida : Banco {
    LienzoFalso lienzo;
    std::function<void(ImageCrop&)> mano = [](ImageCrop&) {};

    BancoSalida() {
        plataforma.alAbrirImageCrop = [this](ImageCrop& dialogo) {
            dialogo.cargar(lienzo);
            mano(dialogo);
        };
        plataforma.alAbrirVentana = [](VentanaProp& dialogo) { dialogo.Aplicar(); };
        plataforma.alAbrirPuerta = [](PuertaProp& dialogo) { dialogo.Aplicar(); };
    }

    const Trazos& imprime() {
        boton("Imprimir");
        return lienzo.trazos;
    }
};

}  // namespace

TEST(EnviarA, AbreLaVentanaYLaCompuertaSeAbreAlCerrarla) {
    BancoSalida banco;
    bool ocupado = false;
    banco.mano = [&](ImageCrop&) { ocupado = banco.sesion().Ocupado; };
    banco.boton("Imprimir");
    EXPECT_EQ(banco.plataforma.dialogosDeImageCrop, 1);
    EXPECT_TRUE(ocupado);
    EXPECT_FALSE(banco.sesion().Ocupado);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST(EnviarA, PintaElDibujoEnteroUnaVezALaEscalaDeSalida) {
    BancoSalida banco;
    banco.ponMuro();
    banco.ponMuro({.inicio = {3000, 5000}, .angulo = 30, .boton = "Tabique"});
    banco.boton("Ventana");
    banco.clic(banco.final(1));
    Grabadora hoja;
    DibujarTodo(salidaDe(banco.dibujo(), hoja, EscalaSalida), banco.dibujo());
    EXPECT_EQ(banco.imprime(), hoja.trazos());
    EXPECT_EQ(banco.lienzo.veces, 1);
    EXPECT_EQ(banco.lienzo.trazos.at(0).substr(0, 12), "Line 3401.57");  // 3000 units
}

TEST(EnviarA, LaCuadriculaYLaReglaNoSonElementos) {
    BancoSalida banco;
    banco.dibujo().VerCuadricula = true;
    EXPECT_EQ(banco.imprime(), Trazos());
}

TEST(EnviarA, UnDibujoVacioAbreLaVentanaConLaHojaEnBlanco) {
    BancoSalida banco;
    EXPECT_EQ(banco.imprime(), Trazos());
    EXPECT_EQ(banco.lienzo.ancho, 756);
    EXPECT_EQ(banco.lienzo.alto, 756);
}

TEST(EnviarA, LasTapasQueUnaEsquinaQuitaNoSalen) {
    BancoSalida banco;
    banco.ponMuro();
    EXPECT_EQ(banco.imprime().size(), 4U);
    banco.pared(1).Visible1 = false;
    EXPECT_EQ(banco.imprime().size(), 3U);
    banco.pared(1).Visible2 = false;
    EXPECT_EQ(banco.imprime().size(), 2U);
}

TEST(EnviarA, LaOctavaLineaDeUnaVentanaEnTabiqueSale) {
    BancoSalida banco;
    const int muro = banco.ponMuro({.boton = "Tabique"});
    banco.boton("Ventana");
    banco.clic(banco.final(muro));
    EXPECT_FALSE(banco.dibujo().Ventana.en(1)->lineas[7].Visible);
    EXPECT_EQ(banco.imprime().size(), 4U + 8U);
}

TEST(EnviarA, ElMuroQueEsperabaNoSale) {
    BancoSalida banco;
    banco.boton("Muro");
    EXPECT_EQ(banco.imprime(), Trazos());
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.modo(), Modo::Aspa);
}

TEST(EnviarA, CadaVezEsUnaVentanaNuevaSinRecuadro) {
    BancoSalida banco;
    banco.mano = [](ImageCrop& dialogo) {
        EXPECT_FALSE(dialogo.recuadro().Visible());
        dialogo.pulsar(1500, 1500);
        dialogo.soltar();
        EXPECT_TRUE(dialogo.recuadro().Visible());
    };
    banco.boton("Imprimir");
    banco.boton("Imprimir");
    EXPECT_EQ(banco.plataforma.dialogosDeImageCrop, 2);
}

TEST(EnviarA, LaCarpetaDelDialogoDeFicherosEsLaDeLosDibujos) {
    BancoSalida banco;
    banco.mano = [](ImageCrop& dialogo) {
        dialogo.pulsar(1500, 1500);
        dialogo.soltar();
        dialogo.pulsarEdicion(ImageCrop::Edicion::Bitmap);
    };
    banco.boton("Imprimir");
    ASSERT_EQ(banco.plataforma.peticiones.size(), 1U);
    EXPECT_EQ(banco.plataforma.peticiones[0].carpeta, banco.ruta("Bosquel"));
}

TEST(EnviarA, ElZoomCambiaElTamanoDeLaHoja) {
    BancoSalida banco;
    banco.boton("Zoom");
    banco.boton("Imprimir");
    EXPECT_EQ(banco.lienzo.ancho, 1512);
    banco.boton("Zoom");
    banco.boton("Imprimir");
    EXPECT_EQ(banco.lienzo.ancho, 2268);
}
