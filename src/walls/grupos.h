#pragma once

#include "model/dibujo.h"

namespace bosquel {

// A wall's `NumeroGrupo` does two jobs: it tells that the wall is joined to others, and that it carries
// openings. Either keeps it from being edited alone.

/// Puts `ParedUno` and `ParedDos` into one group: a new one if both are free, that of the one which has one,
/// or the smaller number of two, which all walls of the larger one then take. Without both walls nothing
/// happens.
void AgruparParedes(Dibujo& dibujo);

/// Sets every wall of the group free: each becomes a plain rectangle with both caps again, from where it
/// starts now and as long as it is now, and its openings go.
void Desagrupar(Dibujo& dibujo, std::int16_t grupo);

/// Removes a window or door. If it was the one that closed its wall, the duty passes on to the next opening
/// of the same kind in that wall, and where there is none the wall is free again: windows do not see doors,
/// nor doors windows.
void EliminaVentana(Dibujo& dibujo, int indice);
void EliminaPuerta(Dibujo& dibujo, int indice);

/// Removes every window and door of the wall.
void EliminaAberturasPared(Dibujo& dibujo, int pared);

/// Removes the wall with its openings, lines and grips. It leaves a hole; other walls of its group stay in
/// it.
void EliminaPared(Dibujo& dibujo, int indice);

}  // namespace bosquel
