#include "apoyo/banco.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;

namespace {

float por(float valor, double relacion) {
    return static_cast<float>(valor * relacion);
}

}  // namespace

TEST(Zoom, TresPulsacionesDanLaVuelta) {
    Banco banco;
    const double tercio = 0.5 / 1.5;
    float ancho = 10000;
    for (const auto& [factor, relacion] : {std::pair{1.0, 2.0}, {1.5, 1.5}, {0.5, tercio}}) {
        banco.boton("Zoom");
        ancho = por(ancho, relacion);
        EXPECT_EQ(banco.dibujo().FactorZoomActual, factor);
        EXPECT_EQ(banco.dibujo().RelacionZoom, relacion);
        EXPECT_EQ(banco.hoja().Width, ancho);
        EXPECT_EQ(banco.hoja().Height, ancho);
    }
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
}

TEST(Zoom, LosLadosLargosSeMultiplicanYLoDemasSeRehace) {
    for (const int angulo : {0, 37, -64, 90}) {
        Banco banco;
        const int muro = banco.ponMuro({.inicio = {3001.3F, 4002.7F}, .angulo = angulo, .longitud = "3,33"});
        for (const double relacion : {2.0, 1.5, 0.5 / 1.5}) {
            const Pared antes = banco.pared(muro);
            banco.boton("Zoom");
            const Pared& ahora = banco.pared(muro);
            for (const std::size_t i : {0U, 2U}) {
                const Segmento& l = antes.lineas[i];
                EXPECT_EQ(ahora.lineas[i], (Segmento{por(l.X1, relacion), por(l.Y1, relacion),
                                                     por(l.X2, relacion), por(l.Y2, relacion), true}));
            }
            EXPECT_EQ(ahora.lineas[1].X2, ahora.lineas[2].X1);
            EXPECT_EQ(ahora.lineas[3].Y1, ahora.lineas[0].Y2);
            EXPECT_EQ(ahora.InicialX, ahora.lineas[0].X1);
            EXPECT_EQ(ahora.Linea3Y2, ahora.lineas[2].Y2);
            EXPECT_EQ(ahora.ParedPick.Lado, static_cast<float>(180 * banco.dibujo().FactorZoomActual));
            EXPECT_EQ(ahora.Longitud, antes.Longitud);
            EXPECT_EQ(banco.colorDe(muro), blanco);
        }
    }
}

TEST(Zoom, UnaTapaEscondidaSigueEscondida) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.pared(muro).Visible1 = false;
    banco.boton("Zoom");
    EXPECT_FALSE(banco.pared(muro).lineas[1].Visible);
    EXPECT_TRUE(banco.pared(muro).lineas[3].Visible);
}

TEST(Zoom, ConservaElCentroDeLaVista) {
    Banco banco;
    banco.boton("Zoom");
    banco.dibujo().Hoja.Left = -3000;
    banco.dibujo().Hoja.Top = -5000;
    banco.boton("Zoom");
    const double centroX = 3000 + Banco::visorAncho / 2, centroY = 5000 + Banco::visorAlto / 2;
    EXPECT_EQ(banco.hoja().Left, static_cast<float>(-3000 - (centroX * 1.5 - centroX)));
    EXPECT_EQ(banco.hoja().Top, static_cast<float>(-5000 - (centroY * 1.5 - centroY)));
    EXPECT_TRUE(banco.sesion().HScroll1.activa);
}

TEST(Zoom, AlReducirLaHojaNoPasaDelCeroNiQuedaFuera) {
    Banco banco;
    banco.boton("Zoom");
    banco.boton("Zoom");
    banco.dibujo().Hoja.Left = 0;
    banco.dibujo().Hoja.Top = static_cast<float>(Banco::visorAlto - 30000);
    banco.boton("Zoom");
    EXPECT_EQ(banco.hoja().Left, 0.0F);
    EXPECT_EQ(banco.hoja().Top, 0.0F) << "past the far side: back to 0";
}

TEST(Zoom, UnFactorQueNoEsPasoDejaElFactorYPasaConLaRelacionQueHubiera) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.dibujo().FactorZoomActual = 0.7;
    banco.boton("Zoom");
    EXPECT_EQ(banco.dibujo().FactorZoomActual, 0.7);
    EXPECT_EQ(banco.dibujo().RelacionZoom, 1.0);
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
    banco.dibujo().RelacionZoom = 1.5;
    const float x2 = banco.pared(muro).lineas[0].X2;
    banco.boton("Zoom");
    EXPECT_EQ(banco.hoja().Width, 15000.0F);
    EXPECT_EQ(banco.pared(muro).lineas[0].X2, por(x2, 1.5));
    EXPECT_EQ(banco.pared(muro).ParedPick.Lado, static_cast<float>(180 * 0.7));
}

TEST(Zoom, LosModelosDeLosMueblesLlevanElFactorYLosHuecosSePasan) {
    Banco banco;
    banco.ponMuro();
    banco.ponMuro({.inicio = {3000, 6000}});
    banco.clic(banco.inicial(1));
    banco.boton("Eliminar");
    banco.boton("Zoom");
    EXPECT_EQ(banco.dibujo().MblMesa.modelo().FactorZOOM, 1.0);
    EXPECT_EQ(banco.dibujo().MblVertedero.modelo().FactorZOOM, 1.0);
    EXPECT_EQ(banco.dibujo().Escalera.modelo().FactorZOOM, 1.0);
    EXPECT_EQ(banco.dibujo().Electrico.modelo().FactorZOOM, 1.0);
    EXPECT_EQ(banco.dibujo().TextoLibre.modelo().FontSize, 12.0);
    EXPECT_EQ(banco.dibujo().Pared.en(1), nullptr);
    EXPECT_EQ(banco.pared(2).InicialX, 6000.0F);
}

TEST(Zoom, UnaParedSinLugarNoSeDibujaPorElZoom) {
    Banco banco;
    banco.boton("Muro");
    banco.boton("Muro");
    banco.boton("Zoom");  // takes the last one away
    EXPECT_EQ(banco.dibujo().Pared.en(2), nullptr);
    EXPECT_FALSE(banco.pared(1).lineas[0].Visible);
    EXPECT_FALSE(banco.pared(1).ParedPick.Visible);
}

TEST(Zoom, OtraPulsacionAMediasSePierde) {
    Banco banco;
    banco.dibujo().VerCuadricula = true;
    banco.plataforma.alCederEventos = [&] { banco.bosquel.pulsarPrincipal(Principal::Zoom); };
    banco.boton("Zoom");
    EXPECT_EQ(banco.dibujo().FactorZoomActual, 1.0);
    EXPECT_FALSE(banco.sesion().EjecutandoZoom);
}
