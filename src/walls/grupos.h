#pragma once

#include "model/dibujo.h"

namespace bosquel {

// A wall's `NumeroGrupo` does two jobs: it tells that the wall is joined to others, and that it carries
// openings. Either keeps it from being edited alone.

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
