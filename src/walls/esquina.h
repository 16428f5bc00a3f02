#pragma once

#include "model/dibujo.h"

#include <cstdint>

namespace bosquel {

// The corner of the walls `ParedUno` and `ParedDos`. Every crossing that is found stands in `PuntoUnionX` and
// `PuntoUnionY` of the drawing (sheet units), and the choices read the latest one. All comparisons are exact;
// the formulas and the tables are told in docs/geometria.md.

/// Walls are parallel by their whole degrees alone.
bool sonParalelas(const Pared& una, const Pared& otra);

/// The crossing of the infinite lines through two strokes. Where a division by zero stands in the way, that
/// coordinate keeps its last value.
void PuntoUnion(Dibujo& dibujo, const Segmento& Linea1, const Segmento& Linea2);

enum class Extremo : std::uint8_t { inicial, final };

/// Moves an end of a stroke; a coordinate that no 32-bit float holds stays as it was.
void ponerExtremo(Segmento& linea, Extremo extremo, double x, double y);

/// Lengthens the stroke to the last crossing, or cuts its nearer end back to it if it lies within: both ends
/// as near, it is the end that moves.
void AlargarLinea(const Dibujo& dibujo, Segmento& QueLinea);

/// The crossed pairing: line 1 of `ParedUno` with line 3 of `ParedDos`, then 3 with 1. Without both walls
/// nothing happens.
void Une1331(Dibujo& dibujo);
/// The straight pairing: 1 with 1, then 3 with 3.
void Une1133(Dibujo& dibujo);

/// Mitres the two walls, opens their caps at the joint and puts them into one group. False, and nothing has
/// changed, if they are parallel. True without both walls, and nothing happens.
bool EsquinaParedes(Dibujo& dibujo);

}  // namespace bosquel
