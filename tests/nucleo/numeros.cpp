#include "model/numeros.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <utility>

using namespace bosquel;

namespace {

constexpr double infinito = std::numeric_limits<double>::infinity();
constexpr double ninguno = std::numeric_limits<double>::quiet_NaN();

}  // namespace

TEST(Numeros, UnaMitadVaAlParVecino) {
    for (const auto& [valor, esperado] : {std::pair{0.5, 0.0},
                                          {1.5, 2.0},
                                          {2.5, 2.0},
                                          {-0.5, 0.0},
                                          {-1.5, -2.0},
                                          {-2.5, -2.0},
                                          {2.4999, 2.0},
                                          {2.5001, 3.0},
                                          {1e300, 1e300}})
        EXPECT_EQ(redondear(valor), esperado) << valor;
}

TEST(Numeros, TruncarVaHaciaElCero) {
    for (const auto& [valor, esperado] :
         {std::pair{2.98, 2.0}, {-2.98, -2.0}, {0.99, 0.0}, {-0.99, 0.0}, {3.0, 3.0}})
        EXPECT_EQ(truncar(valor), esperado) << valor;
}

TEST(Numeros, UnEnteroQueNoCabeNoEsNinguno) {
    EXPECT_EQ(entero16(32767.5), std::nullopt);
    EXPECT_EQ(entero16(32767.4), std::int16_t{32767});
    EXPECT_EQ(entero16(-32768.5), std::int16_t{-32768});
    EXPECT_EQ(entero16(-32769.0), std::nullopt);
    EXPECT_EQ(entero32(2147483647.5), std::nullopt);
    EXPECT_EQ(entero32(-2147483648.0), std::numeric_limits<std::int32_t>::min());
    for (const double valor : {infinito, -infinito, ninguno}) {
        EXPECT_EQ(entero16(valor), std::nullopt);
        EXPECT_EQ(entero32(valor), std::nullopt);
    }
}

TEST(Numeros, AsignarDejaComoEstabaLoQueNoPuedeGuardar) {
    for (const double valor : {infinito, -infinito, ninguno, 1e39}) {
        float corto = 7;
        std::int16_t entero = 7;
        std::int32_t largo = 7;
        asignar(corto, valor);
        asignar(entero, valor);
        asignar(largo, valor);
        EXPECT_EQ(corto, 7.0F) << valor;
        EXPECT_EQ(entero, 7) << valor;
        EXPECT_EQ(largo, 7) << valor;
    }
    double real = 7;
    for (const double valor : {infinito, -infinito, ninguno})
        asignar(real, valor);
    EXPECT_EQ(real, 7.0);
}

TEST(Numeros, AsignarRedondeaAlGuardar) {
    float corto = 0;
    std::int16_t entero = 0;
    std::int32_t largo = 0;
    asignar(corto, 0.1);
    asignar(entero, 4.5);
    asignar(largo, -5.5);
    EXPECT_EQ(corto, 0.1F);
    EXPECT_EQ(entero, 4);
    EXPECT_EQ(largo, -6);
}

TEST(Numeros, UnContadorLlenoSeQuedaEnElFinal) {
    std::int16_t contador = 32766;
    avanzar(contador);
    EXPECT_EQ(contador, 32767);
    avanzar(contador);
    EXPECT_EQ(contador, 32767);
}
