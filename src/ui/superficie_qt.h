#pragma once

#include "surface/superficie_salida.h"

#include <QFont>
#include <QLine>
#include <QPainter>
#include <QRect>
#include <optional>

namespace bosquel {

/// The colour as the toolkit has it, and back: a plain one.
QColor colorQt(Color color);
Color colorDe(const QColor& color);

/// A surface on a painter whose units are device pixels: strokes are one of them wide, whatever the density.
/// Unless the painter smooths, a position is the pixel whose middle comes nearest, of curves as of lines. A
/// curve too great or too far away for a painter is left out. As long as it is drawn on, nobody else may
/// change the painter's pen.
class SuperficieQt final : public SuperficieSalida {
  public:
    /// `escala` device pixels to a surface unit; the surface's origin falls on `origen`.
    SuperficieQt(QPainter& pintor, double escala, QPointF origen)
        : pintor_(pintor), escala_(escala), origen_(origen) {
        pintor_.setBrush(Qt::NoBrush);
    }

    /// All strokes come out in this colour, whatever their own; nothing for their own again.
    void ponerTinta(std::optional<Color> tinta) { tinta_ = tinta; }

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }
    void CurrentX(double x) override { texto_.setX(x); }
    void CurrentY(double y) override { texto_.setY(y); }
    void ForeColor(Color color) override { colorTexto_ = color; }
    void FontSize(float puntos) override { puntos_ = puntos; }
    void Print(std::string_view texto) override;

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    QPointF enPixeles(double x, double y) const { return origen_ + QPointF(x, y) * escala_; }
    Color tinta(Color color) const { return tinta_.value_or(color); }
    bool suave() const { return pintor_.testRenderHint(QPainter::Antialiasing); }
    QBrush brocha() const { return relleno_ == Relleno::solido ? QBrush(colorQt(colorRelleno_)) : QBrush(); }
    void ponerLapiz(Color color);
    void trazarCajaEnPixeles(const QRect& caja, Color color);
    void trazarCurvaEnPixeles(const Curva& curva, Color color);
    void trazarCurvaSuave(const Curva& curva, const QRectF& marco, Color color);

    QPainter& pintor_;
    double escala_;
    QPointF origen_;
    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro, colorTexto_ = negro;
    std::optional<Color> tinta_, lapiz_;
    QPointF texto_;  ///< where the next one stands, in surface units
    double puntos_ = 8;
};

/// The type of free texts, `escala` pixels to a sheet unit.
QFont fuenteTexto(double puntos, double escala);

/// The same type on a picture that is not smoothed: nothing of its letters is left to the settings of the
/// screen.
QFont sinSuavizar(QFont letra);

/// The pixels between two corners, both included.
QRect entre(QPoint una, QPoint otra);

/// The part of a line that lies near the paper, in whole pixels; nothing if none does. A painter takes ints,
/// and a drawing may reach far beyond them.
std::optional<QLine> recortar(QPointF desde, QPointF hasta);

}  // namespace bosquel
