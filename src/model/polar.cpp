#include "model/polar.h"

#include "model/numeros.h"

#include <cmath>

namespace bosquel {

double radianes(double grados) {
    return (grados * 3.14159265358979) / 180.0;
}

float PolarX(double x, int Angulo, double longitud) {
    return simple(Angulo == 0 ? x + longitud : x + longitud * std::cos(radianes(Angulo)));
}

float PolarY(double y, int Angulo, double longitud) {
    return simple(Angulo == 0 ? y : y + longitud * std::sin(radianes(-Angulo)));
}

}  // namespace bosquel
