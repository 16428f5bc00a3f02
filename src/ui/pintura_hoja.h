#pragma once

#include "drawing/sesion.h"

#include <QImage>
#include <QPainter>
#include <QRect>

namespace bosquel {

// What stands on the sheet, painted in device pixels, which are counted from the sheet's corner.

/// Where a picture of the sheet, or of a part of it, lies: its corner, and device pixels to a sheet unit.
struct LugarHoja {
    QPoint esquina;
    double escala = 1;
};

/// Paper, grid, and all that stands still in a part of the sheet, in its z-order.
void pintarQuieto(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion, const QRect& zona);

/// What is being dragged.
bool hayMovimiento(const Sesion& sesion);
void pintarEnMovimiento(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion);

/// The selection frame and the rubber line. The painter's origin is the sheet's corner.
void pintarGuias(QPainter& pintor, const Sesion& sesion, double escala);

}  // namespace bosquel
