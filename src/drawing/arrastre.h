#pragma once

#include "model/dibujo.h"

namespace bosquel {

/// The pointer went down at (X, Y) of an element: the grab point, in whole sheet units.
void agarrar(Arrastre& arrastre, float X, float Y);

/// One step of a drag: moves the thing whose corner is (`left`, `top`) so that the grab point comes under the
/// pointer. X and Y are in the coordinates of that thing, which is itself moving, so that each sample already
/// holds the effect of the last step; two anchors take the samples in turn. After the ruler has been dragged
/// an anchor keeps a rest, which all later drags carry.
void Movimiento(Arrastre& arrastre, float& left, float& top, float X, float Y);

}  // namespace bosquel
