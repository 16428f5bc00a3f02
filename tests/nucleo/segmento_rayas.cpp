#include "surface/grabadora.h"
#include "surface/primitivas.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

std::vector<std::string> rayas(const Segmento& segmento, double escala) {
    Grabadora grabadora;
    TrazarSegmento(grabadora, segmento, rojo, escala, TipoDeTrazo::rayas);
    return grabadora.trazos();
}

}  // namespace

TEST(SegmentoRayas, SonCuatroTrazosDeUnSeptimo) {
    EXPECT_EQ(rayas({100, 200, 170, 130, true}, 1),
              (std::vector<std::string>{"Line 100 200 110 190 FF0000", "Line 120 180 130 170 FF0000",
                                        "Line 140 160 150 150 FF0000", "Line 160 140 170 130 FF0000"}));
}

TEST(SegmentoRayas, ElPasoEsEnteroLaMitadAlParYElUltimoLlegaAlFin) {
    EXPECT_EQ(rayas({0, 0, 17.5F, 24.5F, true}, 1),
              (std::vector<std::string>{"Line 0 0 2 4 FF0000", "Line 4 8 6 12 FF0000",
                                        "Line 8 16 10 20 FF0000", "Line 12 24 17.5 24.5 FF0000"}));
}

TEST(SegmentoRayas, ElPasoNoSeEscalaYElUltimoSeEstira) {
    EXPECT_EQ(rayas({10, 0, 80, 0, true}, 2),
              (std::vector<std::string>{"Line 20 0 30 0 FF0000", "Line 40 0 50 0 FF0000",
                                        "Line 60 0 70 0 FF0000", "Line 80 0 160 0 FF0000"}));
}

TEST(SegmentoRayas, LoQueNoCabeSeOmite) {
    EXPECT_TRUE(rayas({3e38F, 0, 3e38F, 0, true}, 4).empty());
    EXPECT_EQ(rayas({3e38F, 0, -3e38F, 0, true}, 1).size(), 4U);
}
