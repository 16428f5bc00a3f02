#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

#include <optional>

namespace bosquel {

/// A surface that keeps nothing of what is drawn on it but its extent. A text counts as if all its letters
/// were as wide as they are high, which none is.
class Medidora : public SuperficieSalida {
  public:
    void FillStyle(Relleno) override {}
    void FillColor(Color) override {}
    void CurrentX(double x) override { x_ = x; }
    void CurrentY(double y) override { y_ = y; }
    void FontSize(float puntos) override { puntos_ = puntos; }
    void Print(std::string_view texto) override;
    bool bastanLosExtremos() const override { return true; }

    /// Nothing if nothing has been drawn.
    const std::optional<Recuadro>& extension() const { return extension_; }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    void abarcar(double x, double y);

    std::optional<Recuadro> extension_;
    double x_ = 0, y_ = 0, puntos_ = 0;
};

}  // namespace bosquel
