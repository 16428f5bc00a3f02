#pragma once

#include "model/dibujo.h"

namespace bosquel {

// The door: twelve lines and a grip that follow from its wall. `lineas` is both what stands on the sheet and
// what is drawn elsewhere. A door that does not exist is passed over.

/// The lines of a door in a wall: the frame, one leaf or two that stand open, and the chords of their swing.
/// The second leaf of a single door is hidden. An unknown side or hinge leaves the leaves as they are.
/// `factor` is sheet units to a mm.
void TrazaLineasPuerta(Puerta& puerta, const Pared& pared, double factor);

/// Builds lines and grip of the door from its wall, the grip before all else; makes it the current element
/// with a red grip if `seleccionada`. In a wall that is missing or not drawn yet it gets neither.
void ColocaPuerta(Dibujo& dibujo, int indice, bool seleccionada);
/// `ColocaPuerta`, selected.
void RedibujaPuerta(Dibujo& dibujo, int indice);

/// The grip white and behind all other elements.
void DeseleccionaPuerta(Dibujo& dibujo, int indice);

}  // namespace bosquel
