#pragma once

class QColor;
class QPainter;
class QRectF;

namespace bosquel {

/// The small plan of the splash, filling the width or the height of `marco`: walls in one ink, what stands
/// in the rooms in the other.
void dibujarPlano(QPainter& pintor, const QRectF& marco, const QColor& tintaMuros,
                  const QColor& tintaMuebles);

}  // namespace bosquel
