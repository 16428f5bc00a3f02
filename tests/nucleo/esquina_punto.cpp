#include "walls/esquina.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

struct Cruce {
    double x, y;
    bool operator==(const Cruce&) const = default;
};

std::ostream& operator<<(std::ostream& salida, const Cruce& cruce) {
    return salida << "(" << cruce.x << ", " << cruce.y << ")";
}

/// The crossing, after one at (7, 8).
Cruce cruce(const Segmento& una, const Segmento& otra) {
    Dibujo dibujo;
    dibujo.PuntoUnionX = 7;
    dibujo.PuntoUnionY = 8;
    PuntoUnion(dibujo, una, otra);
    return {dibujo.PuntoUnionX, dibujo.PuntoUnionY};
}

/// The stroke after it was lengthened or cut to (x, y).
Segmento alargada(Segmento linea, double x, double y) {
    Dibujo dibujo;
    dibujo.PuntoUnionX = x;
    dibujo.PuntoUnionY = y;
    AlargarLinea(dibujo, linea);
    return linea;
}

}  // namespace

TEST(PuntoUnion, DosLineasInclinadas) {
    EXPECT_EQ(cruce({0, 0, 10, 10}, {0, 10, 10, 0}), (Cruce{5, 5}));
    EXPECT_EQ(cruce({0, 0, 1, 1}, {0, 100, 1, 99}), (Cruce{50, 50})) << "lines have no ends";
}

TEST(PuntoUnion, UnaVerticalDeCualquierLado) {
    EXPECT_EQ(cruce({4, 0, 4, 10}, {0, 2, 8, 6}), (Cruce{4, 4}));
    EXPECT_EQ(cruce({0, 2, 8, 6}, {4, 0, 4, 10}), (Cruce{4, 4}));
}

TEST(PuntoUnion, SeEvaluaEnElOrdenEscrito) {
    const float x1 = 1000.1F, y1 = 2000.7F, x2 = 3333.3F, y2 = 1111.9F;
    const float x3 = 900.3F, y3 = 800.6F, x4 = 2900.9F, y4 = 2300.2F;
    const double dx1 = static_cast<double>(x2) - x1, dy1 = static_cast<double>(y2) - y1;
    const double dx2 = static_cast<double>(x4) - x3, dy2 = static_cast<double>(y4) - y3;
    const double b1 = y1 - (dy1 / dx1) * x1;
    const double b2 = y3 - (dy2 / dx2) * x3;
    const double x = ((b1 - b2) * dx2 * dx1) / ((dx1 * y4 - dx1 * y3) - (dx2 * y2 - dx2 * y1));
    EXPECT_EQ(cruce({x1, y1, x2, y2}, {x3, y3, x4, y4}), (Cruce{x, b1 + dy1 * x / dx1}));
}

TEST(PuntoUnion, DosVerticalesDejanLaYComoEstaba) {
    EXPECT_EQ(cruce({3, 0, 3, 10}, {5, 0, 5, 10}), (Cruce{3, 8}));
    EXPECT_EQ(cruce({3, 0, 3, 10}, {5, 5, 5, 5}), (Cruce{3, 8})) << "a stroke of no length";
    EXPECT_EQ(cruce({0, 0, 0, 10}, {0, 0, 0, 10}), (Cruce{0, 8}));
}

TEST(PuntoUnion, DosParalelasDejanLaXComoEstaba) {
    EXPECT_EQ(cruce({0, 0, 10, 10}, {0, 5, 10, 15}), (Cruce{7, 7}));
    EXPECT_EQ(cruce({0, 1, 10, 1}, {0, 5, 10, 5}), (Cruce{7, 1}));
    EXPECT_EQ(cruce({0, 1, 10, 1}, {0, 1, 10, 1}), (Cruce{7, 1}));
}

TEST(AlargarLinea, MasAllaDeUnExtremoMueveEseExtremo) {
    EXPECT_EQ(alargada({10, 5, 20, 5}, 4, 6), (Segmento{4, 6, 20, 5}));
    EXPECT_EQ(alargada({10, 5, 20, 5}, 25, 6), (Segmento{10, 5, 25, 6}));
}

TEST(AlargarLinea, EnMedioMueveElExtremoMasCercano) {
    EXPECT_EQ(alargada({10, 5, 20, 5}, 12, 6), (Segmento{12, 6, 20, 5}));
    EXPECT_EQ(alargada({10, 5, 20, 5}, 18, 6), (Segmento{10, 5, 18, 6}));
}

TEST(AlargarLinea, ElEmpateEsDelFinal) {
    EXPECT_EQ(alargada({10, 5, 20, 5}, 15, 6), (Segmento{10, 5, 15, 6}));
    EXPECT_EQ(alargada({5, 10, 5, 20}, 6, 15), (Segmento{5, 10, 6, 15}));
    EXPECT_EQ(alargada({5, 20, 5, 10}, 6, 15), (Segmento{5, 20, 6, 15}));
}

TEST(AlargarLinea, VerticalHaciaAbajo) {
    EXPECT_EQ(alargada({5, 10, 5, 20}, 6, 4), (Segmento{6, 4, 5, 20}));
    EXPECT_EQ(alargada({5, 10, 5, 20}, 6, 25), (Segmento{5, 10, 6, 25}));
    EXPECT_EQ(alargada({5, 10, 5, 20}, 6, 12), (Segmento{6, 12, 5, 20}));
    EXPECT_EQ(alargada({5, 10, 5, 20}, 6, 18), (Segmento{5, 10, 6, 18}));
}

TEST(AlargarLinea, VerticalHaciaArriba) {
    EXPECT_EQ(alargada({5, 20, 5, 10}, 6, 25), (Segmento{6, 25, 5, 10}));
    EXPECT_EQ(alargada({5, 20, 5, 10}, 6, 4), (Segmento{5, 20, 6, 4}));
    EXPECT_EQ(alargada({5, 20, 5, 10}, 6, 18), (Segmento{6, 18, 5, 10}));
    EXPECT_EQ(alargada({5, 20, 5, 10}, 6, 12), (Segmento{5, 20, 6, 12}));
}

// A stroke of no length that P has passed by less than a 32-bit float can tell: it has not passed it.
TEST(AlargarLinea, SeComparaEnSencillaPrecision) {
    EXPECT_EQ(alargada({5, 10, 5, 10}, 6, 10 + 1e-9), (Segmento{5, 10, 6, 10}));
    EXPECT_EQ(alargada({5, 10, 5, 10}, 6, 10 + 1e-3), (Segmento{6, 10 + 1e-3F, 5, 10}));
}

// The middle lies between two 32-bit floats: only 64 bits tell on which side of it P is.
TEST(AlargarLinea, SeMideEnDoblePrecision) {
    const float desde = 1.0F, hasta = 1.0F + 3 * 0x1p-23F;
    const double medio = 1.0 + 1.5 * 0x1p-23;
    EXPECT_EQ(alargada({desde, 0, hasta, 0}, medio - 0x1p-40, 9).Y1, 9);
    EXPECT_EQ(alargada({desde, 0, hasta, 0}, medio, 9).Y2, 9);
    EXPECT_EQ(alargada({desde, 0, hasta, 0}, medio + 0x1p-40, 9).Y2, 9);
}

TEST(AlargarLinea, LoQueNoCabeNoLlegaALaLinea) {
    EXPECT_EQ(alargada({10, 5, 20, 5}, 1e300, 6), (Segmento{10, 5, 20, 6}));
}

}  // namespace bosquel::apoyo
