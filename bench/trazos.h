#pragma once

#include "surface/calco.h"

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
class Trazos {
  public:
    /// `escala` pixels to a unit of the picture.
    Trazos(const Calco& calco, double escala);

    std::size_t cuantos() const { return cuantos_; }
    void pintar(QPainter& pintor) const;

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
    void anadir(const Calco::Recta& recta, const Calco::Trazo& trazo);
    void anadir(const Calco::Caja& caja, const Calco::Trazo& trazo);
    void anadir(const Curva& curva, const Calco::Trazo& trazo);

    double escala_;
    std::size_t cuantos_;
    std::vector<std::variant<Tanda, Mancha>> pasos_;
};

}  // namespace bosquel::bench
