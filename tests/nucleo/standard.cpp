#include "model/standard.h"

#include <gtest/gtest.h>

using namespace bosquel;

TEST(Filtros, LosEnterosSoloDejanCifras) {
    for (char32_t tecla = 1; tecla < 0x200; ++tecla) {
        const bool cifra = tecla >= U'0' && tecla <= U'9';
        EXPECT_EQ(FiltraEntero(tecla), cifra ? std::optional(tecla) : std::nullopt)
            << static_cast<unsigned>(tecla);
    }
}

TEST(Filtros, LosDecimalesDejanCifrasYVuelvenComaElPunto) {
    for (char32_t tecla = 1; tecla < 0x200; ++tecla) {
        const auto esperado = tecla == U'.'   ? std::optional(U',')
                              : tecla == U',' ? U','
                                              : FiltraEntero(tecla);
        EXPECT_EQ(FiltraDecimal(tecla), esperado) << static_cast<unsigned>(tecla);
    }
}
