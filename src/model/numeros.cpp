#include "model/numeros.h"

#include <cmath>
#include <limits>

namespace bosquel {

namespace {

template <class Entero>
std::optional<Entero> entero(double valor) {
    const double redondo = redondear(valor);
    constexpr double minimo = std::numeric_limits<Entero>::min();
    constexpr double maximo = std::numeric_limits<Entero>::max();
    if (!(redondo >= minimo && redondo <= maximo)) return std::nullopt;
    return static_cast<Entero>(redondo);
}

template <class Entero>
void asignarEntero(Entero& destino, double valor) {
    destino = entero<Entero>(valor).value_or(destino);
}

}  // namespace

double redondear(double valor) {
    return std::nearbyint(valor);
}

double truncar(double valor) {
    return std::trunc(valor);
}

std::optional<std::int16_t> entero16(double valor) {
    return entero<std::int16_t>(valor);
}
std::optional<std::int32_t> entero32(double valor) {
    return entero<std::int32_t>(valor);
}

float simple(double valor) {
    constexpr double maximo = std::numeric_limits<float>::max();
    if (!(std::abs(valor) <= maximo)) return std::numeric_limits<float>::quiet_NaN();
    return static_cast<float>(valor);
}

void asignar(float& destino, double valor) {
    if (const float redondo = simple(valor); std::isfinite(redondo)) destino = redondo;
}

void asignar(double& destino, double valor) {
    if (std::isfinite(valor)) destino = valor;
}

void asignar(std::int16_t& destino, double valor) {
    asignarEntero(destino, valor);
}
void asignar(std::int32_t& destino, double valor) {
    asignarEntero(destino, valor);
}

void avanzar(std::int16_t& contador) {
    if (contador < std::numeric_limits<std::int16_t>::max()) ++contador;
}

}  // namespace bosquel
