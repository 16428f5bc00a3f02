#pragma once

#include "model/dibujo.h"

namespace bosquel::bench {

/// The side of the sheet of these drawings, in sheet units at the first zoom step, and in millimetres.
inline constexpr float ladoHoja = 20000;
inline constexpr std::int32_t ladoHojaMm = 40000;

/// Puts `cuantos` elements into an empty drawing: of all kinds by turns, some fifty elements to a square of
/// two metres in the largest, the openings in their walls, each where chance, always the same, puts it.
void ponerElementos(Dibujo& dibujo, int cuantos);

/// A wall with this many windows beside one another at a place of the sheet. Gives its index.
int ponerMuroConVentanas(Dibujo& dibujo, float x, float y, int ventanas);

/// A group of this many walls, one under the other from a place of the sheet on. Gives the index of the
/// first.
int ponerGrupo(Dibujo& dibujo, float x, float y, int paredes);

}  // namespace bosquel::bench
