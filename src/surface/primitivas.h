#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

#include <cstdint>

namespace bosquel {

enum class Trazo : std::uint8_t { continuo, rayas };

/// Draws a segment given in sheet units: both ends times `EscalaSalida`, as 32-bit floats; a dashed one as
/// four strokes of a seventh each. The dashes keep the length that they have on the sheet, whatever the
/// scale, and the last one reaches to the end. What does not fit a 32-bit float is left out.
void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color, double EscalaSalida,
                    Trazo trazo = Trazo::continuo);

}  // namespace bosquel
