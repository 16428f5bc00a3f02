#pragma once

#include "surface/superficie_salida.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bosquel::apoyo {

/// What white paper has to look like after the strokes that it is told, by plain geometry: which colours each
/// pixel may have, and where each stroke must be seen unless a later one has covered it.
///
/// A straight stroke has one pixel at each step of its longer side, from the pixel of one end to that of the
/// other; between two pixels it takes either. A box has the pixels of its corners' rectangle. A curve has a
/// pixel near each of its points, and none that is not near one. What is filled is so up to its outline. A
/// text stays within its measured box, and something of it shows.
class Trazador : public SuperficieSalida {
  public:
    using Pixel = std::pair<int, int>;

    /// How far a pixel of a curve may lie from it, and the curve from the nearest of its pixels: as far as
    /// the middle of a pixel may lie from a point that falls into it, half a diagonal, and a tenth of a pixel
    /// for the corners that a line one pixel wide cuts.
    static constexpr double cerca = 0.81;

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }
    void CurrentX(double x) override { texto_.setX(x); }
    void CurrentY(double y) override { texto_.setY(y); }
    void ForeColor(Color color) override { colorTexto_ = color; }
    void FontSize(float puntos) override { puntos_ = puntos; }
    void Print(std::string_view texto) override;

    /// The first thing that is wrong with the picture, which has 32 bits to a pixel, in words; nothing if it
    /// is as it has to be.
    std::string falta(const QImage& imagen) const;

    /// How many steps have been told so far: points at which something must be seen.
    std::size_t pasos() const { return pasos_.size(); }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    static constexpr QRgb blancoOpaco = 0xFFFFFFFFU;

    struct Celda {
        std::vector<QRgb> posibles{blancoOpaco};
        std::size_t ultimo = 0;  ///< the stroke that came last here, counted from 1
    };
    /// One of these pixels is of this colour, unless one of them has been drawn over.
    struct Paso {
        std::size_t trazo;
        QRgb color;
        std::vector<Pixel> pixeles;
    };

    void paso(Color color, std::vector<Pixel> pixeles);
    void tocar(const Pixel& pixel, QRgb color);
    void cubrir(const Pixel& pixel, QRgb color);
    void rellenarElipse(const Curva& curva);
    bool seVe(const Paso& paso, const QImage& imagen) const;

    std::map<Pixel, Celda> celdas_;  ///< all that are no longer sure to be white
    std::vector<Paso> pasos_;
    std::size_t trazo_ = 0;

    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro, colorTexto_ = negro;
    QPointF texto_;
    double puntos_ = 0;
};

}  // namespace bosquel::apoyo
