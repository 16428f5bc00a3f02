#pragma once

#include "surface/superficie_salida.h"

#include <QLine>
#include <QPoint>
#include <vector>

namespace bosquel {

/// The pixels of a curve that is one pixel wide, to be drawn without smoothing; its lengths are pixels, and a
/// pixel stands for the whole numbers of its middle. Each is one through whose square the curve passes, and
/// where it passes through two that share a side, one of them may do for both.
std::vector<QPoint> pixelesDe(const Curva& curva);

/// The rows of pixels whose middles a whole circle or ellipse surrounds.
std::vector<QLine> filasDe(const Curva& curva);

}  // namespace bosquel
