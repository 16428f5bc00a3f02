#pragma once

#include "model/elementos.h"
#include "surface/superficie_salida.h"

namespace bosquel {

// Draws what of an opening is visible, line by line; the chord of a door's swing is dashed. `color` is that
// of all openings of the kind.

void TrazarVentana(SuperficieSalida& superficie, const Ventana& ventana, Color color, double EscalaSalida);
void TrazarPuerta(SuperficieSalida& superficie, const Puerta& puerta, Color color, double EscalaSalida);

}  // namespace bosquel
