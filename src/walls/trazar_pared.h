#pragma once

#include "model/elementos.h"
#include "surface/superficie_salida.h"

namespace bosquel {

/// Draws a wall as four strokes: line 1, start cap, line 3, end cap. What is hidden is left out: a cap at a
/// joint, and all of a wall that waits for its dialog. `color` is that of all walls.
void TrazarPared(SuperficieSalida& superficie, const Pared& pared, Color color, double EscalaSalida);

}  // namespace bosquel
