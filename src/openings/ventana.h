#pragma once

#include "model/dibujo.h"

namespace bosquel {

// The window: eight lines and a grip that follow from its wall. `lineas` is both what stands on the sheet and
// what is drawn elsewhere. A window that does not exist is passed over.

/// The lines of a window in a wall: the jambs, five mullions and, in a wall thicker than the frame, its back
/// edge. `factor` is sheet units to a mm.
void TrazaLineasVentana(Ventana& ventana, const Pared& pared, double factor);

/// Builds lines and grip of the window from its wall, the grip behind all else; makes it the current element
/// with a red grip if `seleccionada`. In a wall that is missing or not drawn yet it gets neither.
void ColocaVentana(Dibujo& dibujo, int indice, bool seleccionada);
/// `ColocaVentana`, selected.
void RedibujaVentana(Dibujo& dibujo, int indice);

/// The grip white and behind all other elements.
void DeseleccionaVentana(Dibujo& dibujo, int indice);

}  // namespace bosquel
