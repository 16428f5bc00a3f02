#include "surface/superficie_pixeles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

using namespace bosquel;

namespace {

constexpr int lado = 40;
constexpr Trama::Pixel papel = 0xFFFFFFFF;

/// A surface without letters on a square of paper, two pixels to a unit, the origin on (10, 10).
class EnPixeles : public testing::Test {
  protected:
    Trama::Pixel en(int x, int y) const { return pixeles[static_cast<std::size_t>(y * lado + x)]; }
    auto cuantos(Trama::Pixel cual) const { return std::count(pixeles.begin(), pixeles.end(), cual); }

    std::vector<Trama::Pixel> pixeles = std::vector<Trama::Pixel>(lado * lado, papel);
    SuperficiePixeles hoja{Trama(pixeles.data(), lado, {0, 0, lado - 1, lado - 1}), 2, {10, 10}};
};

constexpr double sinFin = std::numeric_limits<double>::max();

}  // namespace

TEST_F(EnPixeles, UnTrazoVaDeUnPixelAOtroALaEscala) {
    hoja.Line(0, 0, 5, 0, negro);
    EXPECT_EQ(cuantos(Trama::pixel(negro)), 11);
    EXPECT_EQ(en(10, 10), Trama::pixel(negro));
    EXPECT_EQ(en(20, 10), Trama::pixel(negro));
}

TEST_F(EnPixeles, UnaCajaLlenaTieneFondoYBorde) {
    hoja.FillStyle(Relleno::solido);
    hoja.FillColor(rojo);
    hoja.Caja(5, 5, 0, 0, negro);
    EXPECT_EQ(cuantos(Trama::pixel(negro)), 40);
    EXPECT_EQ(cuantos(Trama::pixel(rojo)), 81);
    hoja.FillStyle(Relleno::transparente);
    hoja.Caja(1, 1, 2, 2, verdeAzulado);
    EXPECT_EQ(cuantos(Trama::pixel(verdeAzulado)), 8);
    EXPECT_EQ(en(13, 13), Trama::pixel(rojo));
}

TEST_F(EnPixeles, SoloLasCurvasEnterasSeLlenan) {
    hoja.FillStyle(Relleno::solido);
    hoja.FillColor(rojo);
    hoja.Circle({5, 5, 3, Arco{0, 1}}, negro);
    EXPECT_EQ(cuantos(Trama::pixel(rojo)), 0);
    hoja.Circle({5, 5, 3}, negro);
    EXPECT_GT(cuantos(Trama::pixel(rojo)), 60);
    EXPECT_EQ(en(26, 20), Trama::pixel(negro));
}

TEST_F(EnPixeles, LaTintaSustituyeATodosLosColores) {
    hoja.ponerTinta(rojo);
    hoja.Line(0, 0, 5, 0, negro);
    hoja.Caja(0, 2, 5, 4, verdeAzulado);
    hoja.Circle({5, 10, 2}, negro);
    EXPECT_EQ(cuantos(papel) + cuantos(Trama::pixel(rojo)), lado * lado);
    hoja.ponerTinta(std::nullopt);
    hoja.Line(0, 0, 5, 0, negro);
    EXPECT_EQ(cuantos(Trama::pixel(negro)), 11);
}

TEST_F(EnPixeles, LoQueNingunPapelAlcanzaSeRecorta) {
    hoja.Line(-sinFin, 5, sinFin, 5, negro);
    hoja.Line(1e300, 0, 1e300, 1e300, negro);
    hoja.Circle({0, 0, 1e9}, rojo);
    hoja.Circle({1e9, 0, 5}, rojo);
    hoja.Circle({0, 0, 20000, {}, 1e-3}, rojo);
    EXPECT_EQ(cuantos(Trama::pixel(rojo)), 0);
    hoja.Caja(-sinFin, 7, sinFin, 8, negro);
    for (int x = 0; x < lado; ++x)
        EXPECT_TRUE(en(x, 24) == Trama::pixel(negro) && en(x, 26) == Trama::pixel(negro)) << x;
}

TEST_F(EnPixeles, SusPixelesEstanParaQuienLosPinteUnoAUno) {
    const LugarPixeles lugar = hoja.enPixeles(3, 4);
    hoja.trama().punto(pixelEntero(lugar.x), pixelEntero(lugar.y), Trama::pixel(rojo));
    EXPECT_EQ(en(10 + static_cast<int>(3 * hoja.escala()), 10 + static_cast<int>(4 * hoja.escala())),
              Trama::pixel(rojo));
    EXPECT_EQ(cuantos(papel), lado * lado - 1);
}

TEST(Recortar, UnaLineaConservaSuRumbo) {
    const auto tramo = recortar({-1e9, -2e9 + 30}, {1e9, 2e9 + 30});
    ASSERT_TRUE(tramo);
    EXPECT_EQ(tramo->y1, -Trama::lejos);
    EXPECT_EQ(tramo->y2, Trama::lejos);
    EXPECT_NEAR(tramo->x1, (-Trama::lejos - 30) / 2, 1);
    EXPECT_NEAR(tramo->x2, (Trama::lejos - 30) / 2, 1);
}

TEST(Recortar, LoCercanoQuedaEnElPixelMasProximo) {
    const auto tramo = recortar({1.4, 1.6}, {-1.4, -1.6});
    ASSERT_TRUE(tramo);
    EXPECT_EQ(tramo->x1, 1);
    EXPECT_EQ(tramo->y1, 2);
    EXPECT_EQ(tramo->x2, -1);
    EXPECT_EQ(tramo->y2, -2);
    EXPECT_EQ(pixelEntero(sinFin), Trama::lejos);
    EXPECT_EQ(pixelEntero(-sinFin), -Trama::lejos);
    EXPECT_EQ(pixelEntero(std::numeric_limits<double>::quiet_NaN()), Trama::lejos);
}

TEST(Recortar, DeLoQueNoSeAcercaNoQuedaNada) {
    EXPECT_FALSE(recortar({1e9, 0}, {1e9, 10}));
    EXPECT_FALSE(recortar({0, 1e9}, {10, 1e9}));
    EXPECT_FALSE(recortar({-1e9, 0}, {0, -1e9}));
}
