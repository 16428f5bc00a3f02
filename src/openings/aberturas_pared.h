#pragma once

#include "model/dibujo.h"

namespace bosquel {

// The windows and doors of one wall.

/// Sets all openings of the wall into it anew: windows, then doors, none of them selected.
void MoverPuertasVentanasPared(Dibujo& dibujo, int pared);

/// What the openings of the wall cover has to be painted again.
void ensuciarAberturasPared(Dibujo& dibujo, int pared);

}  // namespace bosquel
