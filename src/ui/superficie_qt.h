#pragma once

#include "surface/superficie_salida.h"

#include <QPainter>

namespace bosquel {

/// A surface on a painter that smooths: what small pictures are made with. Its units are device pixels:
/// strokes are one of them wide, and straight ones run along the middles of pixels. What is too large or too
/// far away for a painter is left out, and so are texts. As long as it is drawn on, nobody else may change
/// the painter's pen.
class SuperficieQt final : public SuperficieSalida {
  public:
    /// `escala` device pixels to a surface unit; the surface's origin falls on `origen`.
    SuperficieQt(QPainter& pintor, double escala, QPointF origen)
        : pintor_(pintor), escala_(escala), origen_(origen) {}

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    QPointF enPixeles(double x, double y) const { return origen_ + QPointF(x, y) * escala_; }
    void ponerLapiz(Color color);
    void ponerBrocha();

    QPainter& pintor_;
    double escala_;
    QPointF origen_;
    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro;
};

}  // namespace bosquel
