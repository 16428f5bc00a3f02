#include "surface/trama.h"

#include <algorithm>
#include <utility>

namespace bosquel {

namespace {

/// Calls `poner(a, b)` for the pixels of a line from (a1, b1) to (a2, b2) that runs rather along `a`: those
/// with `a` within [desde, hasta].
template <class Poner>
void porPasos(int a1, int b1, int a2, int b2, int desde, int hasta, Poner poner) {
    if (a1 > a2) {
        std::swap(a1, a2);
        std::swap(b1, b2);
    }
    const int primero = std::max(a1, desde);
    const int ultimo = std::min(a2, hasta);
    // After i steps `b` has come as many pixels as 2 * i * subida + pasos holds 2 * pasos.
    const std::int64_t pasos = std::max(a2 - a1, 1);
    const std::int64_t subida = b2 - b1;
    const std::int64_t dividendo = 2 * std::int64_t{primero - a1} * subida + pasos;
    const std::int64_t hechos = dividendo / (2 * pasos) - (dividendo % (2 * pasos) < 0 ? 1 : 0);
    std::int64_t resto = dividendo - hechos * 2 * pasos;
    int b = b1 + static_cast<int>(hechos);
    for (int a = primero; a <= ultimo; ++a) {
        poner(a, b);
        resto += 2 * subida;
        if (resto >= 2 * pasos) {
            resto -= 2 * pasos;
            ++b;
        } else if (resto < 0) {
            resto += 2 * pasos;
            --b;
        }
    }
}

}  // namespace

ZonaPixeles comun(const ZonaPixeles& una, const ZonaPixeles& otra) {
    return {std::max(una.x1, otra.x1), std::max(una.y1, otra.y1), std::min(una.x2, otra.x2),
            std::min(una.y2, otra.y2)};
}

ZonaPixeles entre(int x1, int y1, int x2, int y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

Trama::Pixel Trama::pixel(Color color) {
    const auto plano = static_cast<Pixel>(rgb(color));
    return 0xFF000000U | (plano & 0xFFU) << 16U | (plano & 0xFF00U) | (plano >> 16U & 0xFFU);
}

void Trama::rellenar(const ZonaPixeles& zona, Pixel tinta) {
    const ZonaPixeles suya = comun(zona, zona_);
    if (suya.x1 > suya.x2 || suya.y1 > suya.y2) return;
    Pixel* fila = en(suya.x1, suya.y1);
    for (int y = suya.y1; y <= suya.y2; ++y, fila += salto_)
        std::fill_n(fila, suya.x2 - suya.x1 + 1, tinta);
}

void Trama::enmarcar(const ZonaPixeles& zona, Pixel tinta) {
    rellenar({zona.x1, zona.y1, zona.x2, zona.y1}, tinta);
    rellenar({zona.x1, zona.y2, zona.x2, zona.y2}, tinta);
    rellenar({zona.x1, zona.y1, zona.x1, zona.y2}, tinta);
    rellenar({zona.x2, zona.y1, zona.x2, zona.y2}, tinta);
}

/// Calls `poner(x, y, n)` for the pixels of a line, as far as they may lie in the zone: the n-th from its
/// upper or left end, which is number 0.
template <class Poner>
void Trama::porPixeles(int x1, int y1, int x2, int y2, Poner poner) {
    const ZonaPixeles marco = entre(x1, y1, x2, y2);
    const ZonaPixeles suya = comun(marco, zona_);
    if (suya.x1 > suya.x2 || suya.y1 > suya.y2) return;
    if (marco.x2 - marco.x1 >= marco.y2 - marco.y1)
        porPasos(x1, y1, x2, y2, zona_.x1, zona_.x2, [&](int x, int y) { poner(x, y, x - marco.x1); });
    else
        porPasos(y1, x1, y2, x2, zona_.y1, zona_.y2, [&](int y, int x) { poner(x, y, y - marco.y1); });
}

void Trama::linea(int x1, int y1, int x2, int y2, Pixel tinta) {
    if (x1 == x2 || y1 == y2) return rellenar(entre(x1, y1, x2, y2), tinta);
    porPixeles(x1, y1, x2, y2, [&](int x, int y, int) { punto(x, y, tinta); });
}

void Trama::puntear(int x1, int y1, int x2, int y2, Pixel tinta) {
    constexpr int cada = 3;
    porPixeles(x1, y1, x2, y2, [&](int x, int y, int paso) {
        if (paso % cada == 0) punto(x, y, tinta);
    });
}

}  // namespace bosquel
