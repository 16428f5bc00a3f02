#include "walls/pared.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace bosquel;

namespace {

double longitud(int angulo, double factor, const Segmento& uno, const Segmento& tres) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = factor;
    Pared pared;
    pared.Angulo = static_cast<std::int16_t>(angulo);
    pared.InicialX = uno.X1;
    pared.InicialY = uno.Y1;
    pared.Linea1X2 = uno.X2;
    pared.Linea1Y2 = uno.Y2;
    pared.Linea3X1 = tres.X1;
    pared.Linea3Y1 = tres.Y1;
    pared.Linea3X2 = tres.X2;
    pared.Linea3Y2 = tres.Y2;
    LongitudPared(dibujo, pared);
    return pared.Longitud;
}

}  // namespace

TEST(LongitudPared, ACeroGradosCuentaSoloLaLineaUnoPorSuX) {
    EXPECT_EQ(longitud(0, 0.5, {100, 0, 1100, 50}, {0, 9, 9000, 9}), 2000.0);
    EXPECT_EQ(longitud(0, 1.5, {1100, 0, 200, 0}, {}), 600.0);
}

TEST(LongitudPared, ANoventaCuentaSoloLaLineaUnoPorSuY) {
    for (const int angulo : {90, -90})
        for (const double factor : {0.5, 1.0, 1.5})
            EXPECT_EQ(longitud(angulo, factor, {0, 100, 70, 850}, {0, 0, 0, 9000}), 750 / factor);
}

TEST(LongitudPared, EnLosDemasEsLaMediaDeLosDosLadosPorSuTramoHorizontal) {
    for (int angulo = -89; angulo < 90; ++angulo) {
        if (angulo == 0) continue;
        const double coseno = std::cos(angulo * 3.14159265358979 / 180.0);
        for (const double factor : {0.5, 1.0, 1.5})
            EXPECT_EQ(longitud(angulo, factor, {100, 7, 1300.25F, 9}, {1500, 0, 600.5F, 0}),
                      (1200.25 / coseno / factor + 899.5 / coseno / factor) / 2)
                << angulo;
    }
}

TEST(LongitudPared, UnFactorNuloDejaLaLongitudQueHabia) {
    EXPECT_EQ(longitud(0, 0, {0, 0, 100, 0}, {}), 4000.0);
}
