#pragma once

#include <string>

namespace bosquel {

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

/// The digits on both sides of the decimal sign: "0" before it if there are none, nothing after it if there
/// are none.
struct Partes {
    std::string entera;
    std::string fraccion;
};
Partes partir(const Cifras& numero);

}  // namespace bosquel
