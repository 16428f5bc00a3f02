#pragma once

#include "model/dibujo.h"

#include <span>
#include <vector>

namespace bosquel {

// The windows and doors of one wall.

/// All openings of the wall: windows, then doors.
std::vector<Referencia> aberturasDePared(const Dibujo& dibujo, int pared);

/// Sets openings into their walls anew, none of them selected. One that is missing is passed over.
void ColocarAberturas(Dibujo& dibujo, std::span<const Referencia> aberturas);
/// All those of the wall.
void MoverPuertasVentanasPared(Dibujo& dibujo, int pared);

/// What openings cover has to be painted again.
void ensuciarAberturas(Dibujo& dibujo, std::span<const Referencia> aberturas);

}  // namespace bosquel
