#include "surface/primitivas.h"

#include "model/numeros.h"

#include <cmath>

namespace bosquel {

void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color,
                    double EscalaSalida) {
    const float x1 = simple(segmento.X1 * EscalaSalida);
    const float y1 = simple(segmento.Y1 * EscalaSalida);
    const float x2 = simple(segmento.X2 * EscalaSalida);
    const float y2 = simple(segmento.Y2 * EscalaSalida);
    if (std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2))
        superficie.Line(x1, y1, x2, y2, color);
}

}  // namespace bosquel
