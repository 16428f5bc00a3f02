#pragma once

#include "surface/superficie_salida.h"

#include <algorithm>

namespace bosquel {

/// More parts in one row than these are not drawn, whatever a file asks for: what it may ask for would keep
/// the painter busy for hours, and nobody could tell the parts apart.
inline constexpr int maximoEnFila = 1000;

/// Calls `paso(i)` for the parts `desde` to `hasta`, both included, of a straight row of like parts: seats,
/// bowls, steps. A surface that only measures is given the first and the last, between which all others lie.
template <class Paso>
void porFila(const SuperficieSalida& superficie, int desde, int hasta, Paso paso) {
    const int ultima = std::min(hasta, desde + maximoEnFila - 1);
    const int salto = superficie.bastanLosExtremos() ? std::max(ultima - desde, 1) : 1;
    for (int i = desde; i <= ultima; i += salto)
        paso(i);
}

}  // namespace bosquel
