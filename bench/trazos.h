#pragma once

#include "surface/superficie_salida.h"

#include <QColor>
#include <QLine>
#include <QPainter>
#include <QPolygon>
#include <QRect>
#include <variant>
#include <vector>

namespace bosquel::bench {

/// The strokes of a drawing in whole pixels, painted in the fastest way that the toolkit has: axis-parallel
/// ones as filled rectangles, slanted ones together, arcs as polylines that are kept, the colour set where it
/// changes. What the painting of the program is measured against.
class Trazos : public SuperficieSalida {
  public:
    explicit Trazos(double escala) : escala_(escala) {}

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }
    void CurrentX(double) override {}
    void CurrentY(double) override {}
    void ForeColor(Color) override {}
    void FontSize(float) override {}
    void Print(std::string_view) override {}

    std::size_t cuantos() const { return cuantos_; }
    void pintar(QPainter& pintor) const;

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    struct Tanda {
        Color color;
        std::vector<QRect> rectas;
        std::vector<QLine> oblicuas;
        std::vector<QPolygon> curvas;
    };
    struct Mancha {
        QRect caja;
        Color fondo, borde;
    };

    int pixel(double unidades) const;
    Tanda& tanda(Color color);

    double escala_;
    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro;
    std::size_t cuantos_ = 0;
    std::vector<std::variant<Tanda, Mancha>> pasos_;
};

}  // namespace bosquel::bench
