#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

namespace bosquel {

/// Draws a segment given in sheet units: both ends times `EscalaSalida`, as 32-bit floats. A segment that
/// does not fit them is left out.
void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color, double EscalaSalida);

}  // namespace bosquel
