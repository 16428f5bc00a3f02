#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

#include <string>

namespace bosquel {

/// A surface that writes an SVG picture: one element a line, in the order of drawing.
class EscritorSvg : public SuperficieSalida {
  public:
    /// `zona` is the part of the surface that the picture shows, `trazo` the width of strokes in its units,
    /// `ancho` the picture's width in pixels.
    EscritorSvg(const Recuadro& zona, double trazo, double ancho);

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }
    void CurrentX(double x) override { x_ = x; }
    void CurrentY(double y) override { y_ = y; }
    void ForeColor(Color color) override { colorTexto_ = color; }
    void FontSize(float puntos) override { puntos_ = puntos; }
    void Print(std::string_view texto) override;

    /// The whole picture.
    std::string documento() const;

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    void cerrar(std::string trazo, Color color, bool relleno);

    std::string cabecera_, cuerpo_;
    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro, colorTexto_ = negro;
    double x_ = 0, y_ = 0, puntos_ = 8;
};

}  // namespace bosquel
