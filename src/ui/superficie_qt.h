#pragma once

#include "surface/superficie_salida.h"

#include <QLine>
#include <QPainter>
#include <optional>

namespace bosquel {

/// A surface on a painter whose units are device pixels: strokes are one of them wide, whatever the density.
class SuperficieQt final : public SuperficieSalida {
  public:
    /// `escala` device pixels to a surface unit; the surface's origin falls on `origen`.
    SuperficieQt(QPainter& pintor, double escala, QPointF origen)
        : pintor_(pintor), escala_(escala), origen_(origen) {}

    void Line(float x1, float y1, float x2, float y2, Color color) override;

  private:
    QPainter& pintor_;
    double escala_;
    QPointF origen_;
};

/// The colour as the toolkit has it.
QColor colorQt(Color color);

/// The part of a line that lies near the paper, in whole pixels; nothing if none does. A painter takes ints,
/// and a drawing may reach far beyond them.
std::optional<QLine> recortar(QPointF desde, QPointF hasta);

}  // namespace bosquel
