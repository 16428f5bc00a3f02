#pragma once

#include "drawing/sesion.h"

#include <QImage>
#include <QPoint>
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

/// What lies over all that: what is being dragged, the selection frame, and the rubber line.
bool hayEncima(const Sesion& sesion);
void pintarEncima(QImage& imagen, const LugarHoja& lugar, const Sesion& sesion);

}  // namespace bosquel
