#pragma once

#include "model/numeros.h"
#include "surface/superficie_salida.h"

namespace bosquel {

/// A surface and the scale at which elements are drawn on it. Positions are sheet units times
/// `EscalaSalida`, sizes millimetres times `EscalaElemento`.
struct Salida {
    SuperficieSalida& superficie;
    double EscalaSalida = 1;
    double EscalaElemento = 1;  ///< `EscalaSalida` times the drawing's `FactorZoomActual`
    double unidad = 1;          ///< a bare surface unit of an outline; 0 where only its millimetres count

    /// The place of an element, in whole units.
    double lugar(float posicion) const { return redondear(posicion * EscalaSalida); }
    /// A length, and the same in whole units.
    double k(double milimetros) const { return milimetros * EscalaElemento; }
    double kEntero(double milimetros) const { return redondear(k(milimetros)); }
};

}  // namespace bosquel
