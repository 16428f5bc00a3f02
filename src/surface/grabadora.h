#pragma once

#include "surface/superficie_salida.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace bosquel {

/// A surface that writes down what is drawn on it, one stroke a line, with the colour at the end: "Line 0 0
/// 100 0 000000", "Box 0 0 100 50 000000", "Circle 50 50 20 000000", "Arc 50 50 20 0 3.14 000000" (ends in
/// radians), "Ellipse 50 50 20 0.7 000000", "EllipticArc 50 50 20 0 3.14 0.7 000000". Numbers stand in their
/// shortest text, whatever the locale, as 32-bit ones if they are; colours as RRGGBB.
class Grabadora : public SuperficieSalida {
  public:
    void FillStyle(Relleno relleno) override;
    void FillColor(Color color) override;
    void CurrentX(double x) override;
    void CurrentY(double y) override;
    void ForeColor(Color color) override;
    void FontSize(float puntos) override;
    void Print(std::string_view texto) override;

    const std::vector<std::string>& trazos() const { return trazos_; }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    void anotar(std::string trazo, std::initializer_list<double> valores);
    void anotar(std::string trazo, std::initializer_list<double> valores, Color color);

    std::vector<std::string> trazos_;
};

}  // namespace bosquel
