#include "surface/trama.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <set>
#include <vector>

using namespace bosquel;

namespace {

constexpr int lado = 60;
constexpr Trama::Pixel papel = 0xFFFFFFFF, tinta = 0xFF102030;
constexpr double pi = std::numbers::pi;

using Punto = std::pair<int, int>;

/// A square picture of paper.
class TramaDePixeles : public testing::Test {
  protected:
    Trama trama() { return {pixeles.data(), lado, {0, 0, lado - 1, lado - 1}}; }

    bool conTinta(int x, int y) const { return pixeles[static_cast<std::size_t>(y * lado + x)] != papel; }

    std::set<Punto> manchados() const {
        std::set<Punto> puntos;
        for (int y = 0; y < lado; ++y)
            for (int x = 0; x < lado; ++x)
                if (conTinta(x, y)) puntos.insert({x, y});
        return puntos;
    }

    /// What a drawing leaves on clean paper, drawn whole, and drawn through the windows of a grid.
    template <class Dibujar>
    std::set<Punto> dibujado(Dibujar dibujar) {
        std::fill(pixeles.begin(), pixeles.end(), papel);
        for (int y = 0; y < lado; y += 7)
            for (int x = 0; x < lado; x += 11) {
                const ZonaPixeles zona = comun({x, y, x + 10, y + 6}, trama().zona());
                Trama trozo(pixeles.data() + y * lado + x, lado, zona);
                dibujar(trozo);
            }
        const auto aTrozos = manchados();
        std::fill(pixeles.begin(), pixeles.end(), papel);
        Trama entera = trama();
        dibujar(entera);
        EXPECT_EQ(manchados(), aTrozos) << "by pieces";
        return manchados();
    }

    std::vector<Trama::Pixel> pixeles = std::vector<Trama::Pixel>(lado * lado, papel);
};

}  // namespace

TEST(Trama, UnPixelEsRojoVerdeYAzulSinTransparencia) {
    EXPECT_EQ(Trama::pixel(rojo), 0xFFFF0000U);
    EXPECT_EQ(Trama::pixel(verdeAzulado), 0xFF00C0C0U);
    EXPECT_EQ(Trama::pixel(0x123456), 0xFF563412U);
    EXPECT_EQ(Trama::pixel(colorTextoVentana), 0xFF000000U);
    EXPECT_EQ(Trama::pixel(colorFondoVentana), 0xFFFFFFFFU);
}

TEST(Trama, UnaZonaVaDeUnaEsquinaALaOpuesta) {
    EXPECT_EQ(entre(5, 1, 2, 9), (ZonaPixeles{2, 1, 5, 9}));
    EXPECT_EQ(comun({0, 0, 9, 9}, {5, -3, 20, 4}), (ZonaPixeles{5, 0, 9, 4}));
}

TEST_F(TramaDePixeles, SePintaDentroDeLaZonaYNadaMas) {
    Trama trozo(pixeles.data() + 10 * lado + 20, lado, {20, 10, 29, 14});
    trozo.rellenar({-100, -100, 100, 100}, tinta);
    trozo.punto(19, 10, tinta);
    trozo.punto(30, 10, tinta);
    trozo.punto(25, 9, tinta);
    trozo.punto(25, 15, tinta);
    trozo.linea(0, 11, 59, 12, tinta);
    trozo.curva({25, 12, 8}, tinta);
    EXPECT_EQ(manchados().size(), 50U);
    EXPECT_TRUE(conTinta(20, 10) && conTinta(29, 14));
}

TEST_F(TramaDePixeles, UnaZonaQueAcabaAntesDeEmpezarNoTienePixeles) {
    EXPECT_TRUE(dibujado([](Trama& hoja) {
                    hoja.rellenar({5, 5, 4, 9}, tinta);
                    hoja.rellenar({5, 5, 9, 4}, tinta);
                }).empty());
}

TEST_F(TramaDePixeles, UnMarcoTieneSusCuatroLados) {
    const auto puntos = dibujado([](Trama& hoja) { hoja.enmarcar({3, 4, 20, 15}, tinta); });
    EXPECT_EQ(puntos.size(), 2U * 18 + 2 * 10);
    for (const auto& [x, y] : puntos)
        EXPECT_TRUE(x == 3 || x == 20 || y == 4 || y == 15) << x << " " << y;
}

TEST_F(TramaDePixeles, UnaLineaTieneElPixelMasCercanoEnCadaColumnaOFila) {
    const std::vector<Punto> pasos{{40, 0},   {0, 40},    {40, 13},   {13, 40}, {40, -13},
                                   {-13, 40}, {-40, -13}, {-13, -40}, {30, 30}, {-30, 30},
                                   {40, 1},   {1, 40},    {6, 3},     {3, 6}};
    for (const Punto& paso : pasos) {
        const int dx = paso.first;
        const int dy = paso.second;
        const int x1 = dx < 0 ? 50 : 8;
        const int y1 = dy < 0 ? 50 : 8;
        const auto puntos = dibujado([&](Trama& hoja) { hoja.linea(x1, y1, x1 + dx, y1 + dy, tinta); });
        const bool tumbada = std::abs(dx) >= std::abs(dy);
        ASSERT_EQ(puntos.size(), static_cast<std::size_t>(std::max(std::abs(dx), std::abs(dy)) + 1));
        for (const auto& [x, y] : puntos) {
            const double exacto = tumbada ? y1 + (x - x1) * (1.0 * dy / dx) : x1 + (y - y1) * (1.0 * dx / dy);
            EXPECT_LE(std::abs((tumbada ? y : x) - exacto), 0.5 + 1e-9) << dx << " " << dy;
        }
        EXPECT_TRUE(puntos.contains({x1, y1}) && puntos.contains({x1 + dx, y1 + dy})) << dx << " " << dy;
    }
}

TEST_F(TramaDePixeles, UnaLineaEsLaMismaDesdeSusDosExtremos) {
    for (int dx = -20; dx <= 20; dx += 3)
        for (int dy = -20; dy <= 20; ++dy) {
            const auto ida = dibujado([&](Trama& hoja) { hoja.linea(30, 30, 30 + dx, 30 + dy, tinta); });
            const auto vuelta = dibujado([&](Trama& hoja) { hoja.linea(30 + dx, 30 + dy, 30, 30, tinta); });
            ASSERT_EQ(ida, vuelta) << dx << " " << dy;
        }
}

TEST_F(TramaDePixeles, EntreDosPixelesIgualDeCercaVaElDeAbajoOElDeLaDerecha) {
    EXPECT_EQ(dibujado([](Trama& hoja) { hoja.linea(10, 10, 12, 11, tinta); }),
              (std::set<Punto>{{10, 10}, {11, 11}, {12, 11}}));
    EXPECT_EQ(dibujado([](Trama& hoja) { hoja.linea(10, 11, 12, 10, tinta); }),
              (std::set<Punto>{{10, 11}, {11, 11}, {12, 10}}));
    EXPECT_EQ(dibujado([](Trama& hoja) { hoja.linea(10, 10, 11, 12, tinta); }),
              (std::set<Punto>{{10, 10}, {11, 11}, {11, 12}}));
}

TEST_F(TramaDePixeles, UnaLineaQueVieneDeLejosPasaPorDondeDebe) {
    constexpr int lejos = Trama::lejos;
    const auto puntos = dibujado([](Trama& hoja) { hoja.linea(-lejos, -lejos + 7, lejos, lejos, tinta); });
    EXPECT_EQ(puntos.size(), static_cast<std::size_t>(lado - 3));
    for (const auto& [x, y] : puntos)
        EXPECT_NEAR(y, x + 3.5, 0.51) << x;
    EXPECT_TRUE(dibujado([](Trama& hoja) { hoja.linea(-lejos, 0, 0, lejos, tinta); }).empty());
}

TEST_F(TramaDePixeles, UnaLineaDePuntosTieneUnoDeCadaTres) {
    const auto vertical = dibujado([](Trama& hoja) { hoja.puntear(5, 20, 5, 10, tinta); });
    EXPECT_EQ(vertical, (std::set<Punto>{{5, 10}, {5, 13}, {5, 16}, {5, 19}}));
    const auto oblicua = dibujado([](Trama& hoja) { hoja.puntear(10, 10, 16, 13, tinta); });
    EXPECT_EQ(oblicua, (std::set<Punto>{{10, 10}, {13, 12}, {16, 13}}));
    EXPECT_EQ(dibujado([](Trama& hoja) { hoja.puntear(7, 8, 7, 8, tinta); }), (std::set<Punto>{{7, 8}}));
}

namespace {

/// How far from a pixel's middle the curve passes, measured along the axes.
double lejania(const Curva& curva, const Punto& punto) {
    double cerca = 1e9;
    for (int i = 0; i < 20000; ++i) {
        const double giro = 2 * pi * i / 20000;
        const double dx = std::abs(curva.x + curva.ejeX() * std::cos(giro) - punto.first);
        const double dy = std::abs(curva.y - curva.ejeY() * std::sin(giro) - punto.second);
        cerca = std::min(cerca, std::max(dx, dy));
    }
    return cerca;
}

}  // namespace

TEST_F(TramaDePixeles, UnaCurvaPasaPorSusPixelesSinHuecos) {
    for (const Curva& curva : {Curva{30, 30, 20}, Curva{29.5, 30.5, 13.3}, Curva{30.2, 29.9, 24, {}, 0.4},
                               Curva{30, 30, 24.6, {}, 2.5}, Curva{30, 30, 0.4}, Curva{30, 30, 0}}) {
        const auto puntos = dibujado([&](Trama& hoja) { hoja.curva(curva, tinta); });
        for (const Punto& punto : puntos)
            EXPECT_LE(lejania(curva, punto), 0.501)
                << curva.radio << " " << punto.first << " " << punto.second;
        for (int grados = 0; grados < 360; ++grados) {
            const double x = curva.x + curva.ejeX() * std::cos(grados * pi / 180);
            const double y = curva.y - curva.ejeY() * std::sin(grados * pi / 180);
            bool hallado = false;
            for (int dx = -1; dx <= 1; ++dx)
                for (int dy = -1; dy <= 1; ++dy)
                    hallado = hallado || puntos.contains({static_cast<int>(std::lround(x)) + dx,
                                                          static_cast<int>(std::lround(y)) + dy});
            EXPECT_TRUE(hallado) << curva.radio << " " << grados;
        }
    }
}

TEST_F(TramaDePixeles, UnArcoNoSaleDeSuAbertura) {
    for (const Arco& arco : {Arco{0, pi / 2}, Arco{pi / 2, 2 * pi}, Arco{1.5 * pi, pi / 4}, Arco{0.1, 0.2}}) {
        const auto puntos = dibujado([&](Trama& hoja) { hoja.curva({30, 30, 20, arco}, tinta); });
        double abertura = arco.fin - arco.inicio;
        if (abertura < 0) abertura += 2 * pi;
        EXPECT_GE(static_cast<double>(puntos.size()), 20 * abertura * 0.8);
        for (const auto& [x, y] : puntos) {
            constexpr double unPixel = 1.0 / 20;
            const double giro = std::atan2(30 - y, x - 30) - arco.inicio;
            const double enVuelta = giro - 2 * pi * std::floor(giro / (2 * pi));
            EXPECT_TRUE(enVuelta <= abertura + unPixel || enVuelta >= 2 * pi - unPixel) << x << " " << y;
        }
    }
}

TEST_F(TramaDePixeles, UnaCurvaLlenaTieneLosPixelesQueRodea) {
    for (const Curva& curva : {Curva{30, 30, 20}, Curva{29.7, 30.1, 20.4, {}, 0.5}, Curva{30, 30, 0}}) {
        const auto puntos = dibujado([&](Trama& hoja) { hoja.rellenarCurva(curva, tinta); });
        for (int y = 0; y < lado; ++y)
            for (int x = 0; x < lado; ++x) {
                const double dx = (x - curva.x) / std::max(curva.ejeX(), 1e-9);
                const double dy = (y - curva.y) / std::max(curva.ejeY(), 1e-9);
                const double lejos = std::hypot(dx, dy);
                if (std::abs(lejos - 1) < 1e-9) continue;
                EXPECT_EQ(puntos.contains({x, y}), curva.radio > 0 && lejos < 1) << x << " " << y;
            }
    }
}
