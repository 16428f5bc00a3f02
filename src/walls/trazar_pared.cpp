#include "walls/trazar_pared.h"

#include "surface/primitivas.h"

namespace bosquel {

void TrazarPared(SuperficieSalida& superficie, const Pared& pared, Color color, double EscalaSalida) {
    for (const Segmento& linea : pared.lineas)
        if (linea.Visible) TrazarSegmento(superficie, linea, color, EscalaSalida);
}

}  // namespace bosquel
