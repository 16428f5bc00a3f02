#pragma once

#include "surface/superficie_pixeles.h"

#include <QImage>
#include <QPainter>
#include <QRect>
#include <optional>

class QWidget;

namespace bosquel {

/// A surface on a picture of 32-bit pixels. As long as it is drawn on, the picture may not be copied.
class SuperficieImagen final : public SuperficiePixeles {
  public:
    /// Those that are not smoothed are the same on every desktop.
    enum class Letras : bool { sinSuavizar, suaves };

    /// `escala` pixels to a surface unit; the surface's origin falls on the place `origen` of the picture.
    SuperficieImagen(QImage& imagen, double escala, Letras letras, QPointF origen = {})
        : SuperficieImagen(imagen, escala, letras, origen, imagen.rect()) {}
    /// Nothing outside of `zona` is drawn on.
    SuperficieImagen(QImage& imagen, double escala, Letras letras, QPointF origen, const QRect& zona);

    void CurrentX(double x) override { texto_.x = x; }
    void CurrentY(double y) override { texto_.y = y; }
    void ForeColor(Color color) override { colorTexto_ = color; }
    void FontSize(float puntos) override { puntos_ = puntos; }
    void Print(std::string_view texto) override;

  private:
    QPainter& pintor();
    void ponerLetra();

    QImage& imagen_;
    Letras letras_;
    LugarPixeles texto_;  ///< where the next one stands, in surface units
    Color colorTexto_ = negro;
    double puntos_ = 8;

    std::optional<QPainter> pintor_;     ///< of texts, as soon as there is one
    std::optional<double> puntosLetra_;  ///< the size of its type
    double ascenso_ = 0;                 ///< of its letters, pixels
};

/// White paper as large as a widget, a pixel to each of its device's; and how it is put there, to the pixel.
QImage papelDe(const QWidget& widget);
void ponerPapel(QPainter& pintor, const QImage& papel);

}  // namespace bosquel
