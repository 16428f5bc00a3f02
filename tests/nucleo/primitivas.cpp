#include "surface/primitivas.h"

#include "model/polar.h"
#include "surface/grabadora.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace bosquel;

namespace {

using Trazos = std::vector<std::string>;

template <class Dibujar>
Trazos grabar(Dibujar dibujar) {
    Grabadora hoja;
    dibujar(hoja);
    return hoja.trazos();
}

std::string enLinea(PuntoSalida a, PuntoSalida b) {
    return grabar([&](SuperficieSalida& hoja) { hoja.Line(a.x, a.y, b.x, b.y, negro); }).at(0);
}

}  // namespace

TEST(Primitivas, NormalizarAngulo) {
    EXPECT_EQ(NormalizarAngulo(-30), 330);
    EXPECT_EQ(NormalizarAngulo(725.5), 6);
    EXPECT_EQ(NormalizarAngulo(-725), 355);
    EXPECT_EQ(NormalizarAngulo(0), 0);
    EXPECT_EQ(NormalizarAngulo(359.75), 359.75);
    EXPECT_EQ(NormalizarAngulo(-0.25), 359.75);
    EXPECT_EQ(NormalizarAngulo(360), 0);
    EXPECT_EQ(NormalizarAngulo(-360), 0);
    EXPECT_EQ(NormalizarAngulo(360.5), 0);  // half to even
    EXPECT_EQ(NormalizarAngulo(361.5), 2);
}

TEST(Primitivas, AnguloRadianes) {
    EXPECT_EQ(AnguloRadianes(-90), 270 * 3.14159265358979 / 180);
    EXPECT_EQ(AnguloRadianes(30.5), 30.5 * 3.14159265358979 / 180);
    EXPECT_EQ(AnguloRadianes(720), 0);
}

TEST(Primitivas, UnPasoACeroGradosNoPasaPorLaTrigonometria) {
    EXPECT_EQ(PolarX(7, 0, 100), 107.0F);
    EXPECT_EQ(PolarY(7, 0, 100), 7.0F);
    EXPECT_EQ(PolarY(7, 90, 100), -93.0F);
    const PuntoSalida medio = polar({0, 0}, 0.5, 100);  // half to even: 0
    EXPECT_EQ(medio.y, 0);
    EXPECT_EQ(polar({0, 0}, 1.5, 100).y, PolarY(0, 2, 100));
}

TEST(Primitivas, TrazarRecta) {
    const auto recta = [](double angulo, double longitud) {
        return grabar([&](SuperficieSalida& hoja) {
            TrazarRecta(hoja, rojo, {10, 20}, {70, 80}, angulo, longitud);
        });
    };
    EXPECT_EQ(recta(-10000, 999), Trazos{"Line 10 20 70 80 FF0000"});
    EXPECT_EQ(recta(0, 5), Trazos{"Line 10 20 15 20 FF0000"});
    EXPECT_EQ(recta(-90, 5), Trazos{"Line 10 20 10 25 FF0000"});
    EXPECT_EQ(recta(40000, 5), Trazos{});
    EXPECT_EQ(recta(std::numeric_limits<double>::quiet_NaN(), 5), Trazos{});
}

TEST(Primitivas, TrazarRecuadroRebasaQuinceUnidadesConCualquierSigno) {
    const auto recuadro = [](double ancho, double angulo) {
        return grabar([&](SuperficieSalida& hoja) {
            TrazarRecuadro(hoja, negro, {100, 200}, 50, ancho, angulo);
        });
    };
    EXPECT_EQ(recuadro(30, 0), (Trazos{"Line 100 200 150 200 000000", "Line 100 200 100 230 000000",
                                       "Line 100 230 165 230 000000", "Line 150 200 150 245 000000"}));
    EXPECT_EQ(recuadro(-30, 0), (Trazos{"Line 100 200 150 200 000000", "Line 100 200 100 170 000000",
                                        "Line 100 170 165 170 000000", "Line 150 200 150 185 000000"}));
    const PuntoSalida lejana = polar({100, 200}, 37, 50);
    const PuntoSalida cercana = polar({100, 200}, 127, -30);
    EXPECT_EQ(recuadro(30, 36.6),
              (Trazos{enLinea({100, 200}, lejana), enLinea({100, 200}, cercana),
                      enLinea(cercana, polar(cercana, 37, 65)), enLinea(lejana, polar(lejana, 127, -45))}));
}

TEST(Primitivas, TrazarElipseSonCuatroArcosConSusPropiosAngulos) {
    const Trazos trazos = grabar([](SuperficieSalida& hoja) {
        TrazarElipse(hoja, negro, {{0, 0}, 100, 40, 60, 120, 10.25, 20.5});
    });
    const auto arco = [](int hacia, double distancia, double radio, double desde, double hasta) {
        return grabar([&](SuperficieSalida& hoja) {
                   hoja.Circle({PolarX(0, hacia, distancia), PolarY(0, hacia, distancia), radio,
                                Arco{AnguloRadianes(desde), AnguloRadianes(hasta)}},
                               negro);
               })
            .at(0);
    };
    const double a = 30.75;
    EXPECT_EQ(trazos, (Trazos{arco(31, 30, 20, a - 60, a + 60), arco(211, 30, 20, a + 120, a + 240),
                              arco(-59, 20, 40, a + 60, a + 120), arco(121, 20, 40, a + 240, a + 300)}));
}

TEST(Primitivas, UnSegmentoDiscontinuoConservaSuPasoYAcabaEnSuExtremo) {
    const Segmento segmento{0, 0, 70, -35, true};
    const auto trazar = [&](double escala) {
        return grabar([&](SuperficieSalida& hoja) {
            TrazarSegmento(hoja, segmento, negro, escala, TipoDeTrazo::rayas);
        });
    };
    EXPECT_EQ(trazar(1), (Trazos{"Line 0 0 10 -5 000000", "Line 20 -10 30 -15 000000",
                                 "Line 40 -20 50 -25 000000", "Line 60 -30 70 -35 000000"}));
    EXPECT_EQ(trazar(2), (Trazos{"Line 0 0 10 -5 000000", "Line 20 -10 30 -15 000000",
                                 "Line 40 -20 50 -25 000000", "Line 60 -30 140 -70 000000"}));
}

TEST(Primitivas, ElPasoDeUnSegmentoDiscontinuoSeRedondeaAlPar) {
    const Segmento segmento{0, 0, 17.5F, 24.5F, true};  // sevenths: 2.5 and 3.5
    const Trazos trazos =
        grabar([&](SuperficieSalida& hoja) { TrazarSegmento(hoja, segmento, negro, 1, TipoDeTrazo::rayas); });
    EXPECT_EQ(trazos.at(0), "Line 0 0 2 4 000000");
    EXPECT_EQ(trazos.at(3), "Line 12 24 17.5 24.5 000000");
}

TEST(Primitivas, LoQueNoEsFinitoNoLlegaALaSuperficie) {
    const double infinito = std::numeric_limits<double>::infinity();
    EXPECT_EQ(grabar([&](SuperficieSalida& hoja) {
                  hoja.Line(0, infinito, 1, 1, negro);
                  hoja.Caja(0, 0, -infinito, 1, negro);
                  hoja.Circle({0, 0, infinito}, negro);
                  hoja.Circle({0, 0, -1}, negro);
                  hoja.Circle({0, 0, 1, Arco{0, infinito}}, negro);
                  TrazarSegmento(hoja, {3e38F, 0, 1, 1, true}, negro, 2);
                  TrazarSegmento(hoja, {3e38F, 0, -3e38F, 1, true}, negro, 2, TipoDeTrazo::rayas);
              }),
              Trazos{});
}
