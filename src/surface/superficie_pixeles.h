#pragma once

#include "surface/trama.h"

#include <optional>

namespace bosquel {

/// A place in pixels, with its fraction.
struct LugarPixeles {
    double x = 0, y = 0;
};

/// A surface on a raster: strokes are one pixel wide, whatever the scale, and nothing is smoothed. A position
/// is the pixel whose middle comes nearest. A curve too large or too far away for a raster is left out.
class SuperficiePixeles : public SuperficieSalida {
  public:
    /// `escala` pixels to a surface unit; the surface's origin falls on `origen`.
    SuperficiePixeles(const Trama& trama, double escala, LugarPixeles origen)
        : trama_(trama), escala_(escala), origen_(origen) {}

    /// All strokes come out in this colour, whatever their own; nothing for their own again.
    void ponerTinta(std::optional<Color> tinta) { tinta_ = tinta; }

    Trama& trama() { return trama_; }
    double escala() const { return escala_; }
    LugarPixeles enPixeles(double x, double y) const {
        return {origen_.x + x * escala_, origen_.y + y * escala_};
    }

    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { fondo_ = Trama::pixel(color); }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    Trama::Pixel tinta(Color color) const { return Trama::pixel(tinta_.value_or(color)); }

    Trama trama_;
    double escala_;
    LugarPixeles origen_;
    Relleno relleno_ = Relleno::transparente;
    Trama::Pixel fondo_ = Trama::pixel(negro);
    std::optional<Color> tinta_;
};

/// The whole pixel nearest to a coordinate; what lies too far away for a raster is brought near.
int pixelEntero(double coordenada);

/// Whether a place is within the reach of curves and letters.
bool alAlcance(LugarPixeles lugar);

/// The part of a line that lies within the reach of a raster, as whole pixels: its ends. Nothing if none
/// does.
struct TramoPixeles {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};
std::optional<TramoPixeles> recortar(LugarPixeles desde, LugarPixeles hasta);

}  // namespace bosquel
