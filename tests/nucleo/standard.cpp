#include "model/standard.h"

#include <gtest/gtest.h>

using namespace bosquel;

TEST(Standard, FiltraEnteroDejaPasarSoloCifras) {
    for (char32_t cifra = U'0'; cifra <= U'9'; ++cifra)
        EXPECT_EQ(FiltraEntero(cifra), cifra);
    for (const char32_t otra : {U'/', U':', U',', U'.', U'-', U'+', U' ', U'a', U'\u0663', U'\U0001D7D8'})
        EXPECT_EQ(FiltraEntero(otra), std::nullopt);
}

TEST(Standard, FiltraDecimalConvierteElPuntoEnComa) {
    EXPECT_EQ(FiltraDecimal(U'7'), U'7');
    EXPECT_EQ(FiltraDecimal(U','), U',');
    EXPECT_EQ(FiltraDecimal(U'.'), U',');
}

TEST(Standard, FiltraDecimalRehusaElSignoMenos) {
    for (const char32_t otra : {U'-', U'+', U' ', U'e', U'\u2212'})
        EXPECT_EQ(FiltraDecimal(otra), std::nullopt);
}
