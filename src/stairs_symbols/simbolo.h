#pragma once

#include "model/elementos.h"
#include "stairs_symbols/guion.h"
#include "surface/salida.h"

namespace bosquel {

/// The script of a symbol laid out as the symbol lies.
ListasGuion listasDe(const Electrico& electrico, double FactorZoomActual);

/// Draws the lists of a symbol whose place, angle and colour are those of `electrico`: strokes only.
void DibujarListas(const Salida& salida, const Electrico& electrico, const ListasGuion& listas);

}  // namespace bosquel
