#include "apoyo/banco.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

constexpr Punto vacio{200, 200};

/// A sheet larger than the viewport both ways: at factor 1 it is 20000 by 20000.
struct BancoGrande : Banco {
    BancoGrande() {
        boton("Zoom");
        dibujo().Hoja.Left = 0;
        dibujo().Hoja.Top = 0;
    }
};

constexpr auto finIzquierda = static_cast<float>(Banco::visorAncho - 20000);
constexpr auto finArriba = static_cast<float>(Banco::visorAlto - 20000);

}  // namespace

TEST(Pan, PulsarYSoltarEnElMismoSitioQuitaLaSeleccionYNoMueveNada) {
    BancoGrande banco;
    const int muro = banco.ponMuro();
    banco.clic(banco.inicial(muro));
    EXPECT_EQ(banco.colorDe(muro), rojo);
    const auto antes = banco.hoja();
    banco.clic(vacio);
    EXPECT_EQ(banco.colorDe(muro), blanco);
    EXPECT_EQ(banco.dibujo().ElementoActual, std::nullopt);
    EXPECT_EQ(banco.hoja().Left, antes.Left);
    EXPECT_EQ(banco.hoja().Top, antes.Top);
    EXPECT_FALSE(banco.sesion().Vector.Visible);
}

TEST(Pan, ElVectorUneElPuntoPulsadoYElPuntero) {
    BancoGrande banco;
    banco.mueve(vacio);
    banco.pulsa(vacio);
    EXPECT_EQ(banco.sesion().Vector, (Segmento{200, 200, 200, 200, true}));
    banco.mueve({150, 330});
    EXPECT_EQ(banco.sesion().Vector, (Segmento{200, 200, 150, 330, true}));
    EXPECT_EQ(banco.hoja().Left, 0.0F);
    banco.suelta({150, 330});
    EXPECT_FALSE(banco.sesion().Vector.Visible);
    EXPECT_EQ(banco.hoja().Left, -50.0F);
    EXPECT_EQ(banco.hoja().Top, 0.0F);
}

TEST(Pan, LaHojaSeMuevePorElVectorSinPasarDeSusBordes) {
    struct Caso {
        Punto lugar, paso, esperado;
    };
    for (const auto& [lugar, paso, esperado] :
         {Caso{{0, 0}, {-1000, -2000}, {-1000, -2000}}, Caso{{-1000, -2000}, {400, 500}, {-600, -1500}},
          Caso{{-1000, -2000}, {1000, 2000}, {0, 0}}, Caso{{-1000, -2000}, {1001, 9000}, {0, 0}},
          Caso{{0, 0}, {-9000, -15000}, {finIzquierda, finArriba}},
          Caso{{-6000, -11000}, {-860, -100}, {finIzquierda, finArriba}},
          Caso{{0, 0}, {-2.5F, -3.5F}, {-2, -4}}}) {
        BancoGrande banco;
        banco.dibujo().Hoja.Left = lugar.x;
        banco.dibujo().Hoja.Top = lugar.y;
        const Punto de{16000, 16000};
        banco.arrastra(de, {de.x + paso.x, de.y + paso.y});
        EXPECT_EQ(banco.hoja().Left, esperado.x);
        EXPECT_EQ(banco.hoja().Top, esperado.y);
    }
}

TEST(Pan, UnaHojaMasEstrechaQueElVisorSeQuedaEnCero) {
    Banco banco;
    ASSERT_LT(banco.hoja().Width, Banco::visorAncho);
    banco.arrastra({5000, 5000}, {4000, 4500});
    EXPECT_EQ(banco.hoja().Left, 0.0F);
    EXPECT_EQ(banco.hoja().Top, -500.0F);
    EXPECT_FALSE(banco.sesion().HScroll1.activa);
    EXPECT_TRUE(banco.sesion().VScroll1.activa);
}

TEST(Pan, EnUnModoDeEsperaPulsarQuitaLaSeleccionPeroNoDibujaElVector) {
    for (const Modo modo : {Modo::Seleccion, Modo::PrimeraPared, Modo::SegundaPared, Modo::Union1,
                            Modo::Union2, Modo::Separar, Modo::Ventana, Modo::Puerta, Modo::Escalera}) {
        BancoGrande banco;
        const int muro = banco.ponMuro();
        banco.clic(banco.inicial(muro));
        banco.dibujo().ModoActual = modo;
        banco.pulsa(vacio);
        EXPECT_EQ(banco.colorDe(muro), blanco) << texto(modo);
        EXPECT_FALSE(banco.sesion().Vector.Visible) << texto(modo);
        EXPECT_EQ(banco.dibujo().ElementoActual, Clase::Pared) << texto(modo);
        const float left = banco.hoja().Left;
        banco.suelta({100, 100});
        EXPECT_EQ(banco.hoja().Left, left) << texto(modo);
        EXPECT_EQ(banco.modo(), modo);
    }
}

TEST(Barras, SonElPorcentajeQueLaHojaSeHaCorrido) {
    BancoGrande banco;
    banco.dibujo().Hoja.Left = finIzquierda / 2;
    banco.dibujo().Hoja.Top = finArriba;
    banco.clic(vacio);
    EXPECT_EQ(banco.sesion().HScroll1.valor, 50);
    EXPECT_EQ(banco.sesion().VScroll1.valor, 100);
    EXPECT_EQ(Barra::maximo, 100);
    EXPECT_EQ(Barra::cambioGrande, 10);
    EXPECT_EQ(Barra::cambioChico, 2);
}

TEST(Barras, MoverUnaBarraMueveLaHoja) {
    BancoGrande banco;
    banco.bosquel.cambiarHScroll1(25);
    banco.bosquel.cambiarVScroll1(100);
    EXPECT_EQ(banco.hoja().Left, static_cast<float>(-(20000 - Banco::visorAncho) * 25 / 100));
    EXPECT_EQ(banco.hoja().Top, finArriba);
}

TEST(Barras, UnaHojaQueCabeApagaSuBarraYQuedaEnCero) {
    Banco banco;
    EXPECT_FALSE(banco.sesion().HScroll1.activa);
    EXPECT_TRUE(banco.sesion().VScroll1.activa);
    banco.bosquel.cambiarVScroll1(100);
    banco.bosquel.redimensionar(20000, 20000);
    EXPECT_FALSE(banco.sesion().VScroll1.activa);
    EXPECT_EQ(banco.hoja().Top, 0.0F);
}

TEST(Barras, UnaHojaPasadaDelBordeVuelveACeroYNoAlBorde) {
    BancoGrande banco;
    banco.dibujo().Hoja.Left = finIzquierda - 1;
    banco.dibujo().Hoja.Top = finArriba;
    banco.bosquel.redimensionar(Banco::ventanaAncho, Banco::ventanaAlto);
    EXPECT_EQ(banco.hoja().Left, 0.0F);
    EXPECT_FALSE(banco.sesion().HScroll1.activa);
    EXPECT_EQ(banco.hoja().Top, finArriba);
}

TEST(Visor, EsLaVentanaMenosSusMargenes) {
    Banco banco;
    EXPECT_EQ(banco.sesion().visorAncho, 15000.0 - 1860);
    EXPECT_EQ(banco.sesion().visorAlto, 10500.0 - 1600);
}
