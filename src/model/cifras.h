#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace bosquel {

/// The significant digits that a text has of a 64-bit and of a 32-bit real at most.
inline constexpr int cifrasDoble = 15;
inline constexpr int cifrasSimple = 7;

/// Ten to the power of 0 to 15, exactly.
constexpr double potenciaDeDiez(int exponente) {
    constexpr std::array<double, cifrasDoble + 1> potencias{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                            1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    return potencias[static_cast<std::size_t>(exponente)];
}

/// A finite number in decimal: 0.`cifras` times ten to the power of `punto`. There are no zeros at either
/// end of the digits; zero has none at all and no sign.
struct Cifras {
    bool negativo = false;
    std::string cifras;
    int punto = 0;
};

/// Every digit of the value, exactly: a binary fraction always ends in decimal. What is infinite or no
/// number gives zero.
Cifras cifrasExactas(double valor);

/// Keeps the first `cuantas` digits. Since the digits are exact, the first one that goes decides: half or
/// more goes away from zero, less than half towards it.
Cifras recortar(Cifras numero, int cuantas);

/// The same as `recortar(cifrasExactas(valor), cuantas)`, for 15 digits at most, at a fraction of the cost.
Cifras primerasCifras(double valor, int cuantas);

/// A whole number, of whose digits so many are decimals.
struct Decimal {
    std::uint64_t numero;
    int decimales;
};

/// What `primerasCifras` gives of a number that is not negative, for whole numbers, for 32-bit reals from
/// 1E-5 on in 7 digits, and for those of few decimals, which most are, by a few operations that are exact.
/// Nothing for the others. There may be zeros at the end.
std::optional<Decimal> decimalCorto(double magnitud, int cuantas);

/// The digits on both sides of the decimal sign: "0" before it if there are none, nothing after it if there
/// are none.
struct Partes {
    std::string entera;
    std::string fraccion;
};
Partes partir(const Cifras& numero);

}  // namespace bosquel
