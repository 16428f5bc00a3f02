#pragma once

#include "drawing/sesion.h"

#include <QPainter>
#include <QRect>

namespace bosquel {

// What stands on the sheet, painted in device pixels: `zona` is the part of the sheet wanted, in device
// pixels from the sheet's corner, and the painter's origin is that corner. `escala` is device pixels to a
// sheet unit.

/// Paper, grid, and all that stands still, in its z-order.
void pintarQuieto(QPainter& pintor, const Sesion& sesion, const QRect& zona, double escala);

/// What is being dragged, the selection frame, and the rubber line.
void pintarEnMovimiento(QPainter& pintor, const Sesion& sesion, double escala);

}  // namespace bosquel
