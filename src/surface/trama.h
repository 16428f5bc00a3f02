#pragma once

#include "surface/superficie_salida.h"

#include <cstddef>
#include <cstdint>

namespace bosquel {

/// A rectangle of whole pixels, its sides included; empty if it ends before it begins.
struct ZonaPixeles {
    int x1 = 0, y1 = 0, x2 = -1, y2 = -1;

    bool operator==(const ZonaPixeles&) const = default;
};

/// What two rectangles have in common.
ZonaPixeles comun(const ZonaPixeles& una, const ZonaPixeles& otra);
/// The rectangle with these opposite corners.
ZonaPixeles entre(int x1, int y1, int x2, int y2);

/// The whole pixel whose middle comes nearest to a coordinate within `Trama::lejos`, of two the lower or
/// right one: it is the same one wherever pixels are counted from.
inline int pixelCercano(double coordenada) {
    // Above 0 a fraction is cut off downwards.
    constexpr int encima = 1 << 30;
    constexpr double medioMas = encima + 0.5;
    return static_cast<int>(coordenada + medioMas) - encima;
}

/// A raster to draw on, in memory that belongs to somebody else. Nothing is smoothed: a pixel has the colour
/// of the stroke, or not. Whatever falls outside of its zone is left out.
class Trama {
  public:
    /// 0xffRRGGBB.
    using Pixel = std::uint32_t;

    static Pixel pixel(Color color);

    /// `primero` is the pixel in the corner of `zona`, which the one below it follows `salto` pixels later.
    Trama(Pixel* primero, std::ptrdiff_t salto, const ZonaPixeles& zona)
        : primero_(primero), salto_(salto), zona_(zona) {}

    const ZonaPixeles& zona() const { return zona_; }

    void punto(int x, int y, Pixel tinta) {
        if (x < zona_.x1 || x > zona_.x2 || y < zona_.y1 || y > zona_.y2) return;
        *en(x, y) = tinta;
    }
    void rellenar(const ZonaPixeles& zona, Pixel tinta);
    /// The sides of a rectangle.
    void enmarcar(const ZonaPixeles& zona, Pixel tinta);

    /// Both ends included, none of them farther than `lejos` from (0, 0). In each column, or in each row if
    /// the line runs rather down than across, the pixel whose middle comes nearest; of two the lower or right
    /// one.
    void linea(int x1, int y1, int x2, int y2, Pixel tinta);

    /// Every third pixel of such a line, from its upper or left end on.
    void puntear(int x1, int y1, int x2, int y2, Pixel tinta);

    /// A curve whose lengths are pixels, middle and half-axes within `lejosCurva`; a pixel stands for the
    /// whole numbers of its middle. Each is one through whose square the curve passes, and where it passes
    /// through two that share a side, one of them may do for both.
    void curva(const Curva& curva, Pixel tinta);
    /// The pixels whose middles a whole circle or ellipse surrounds.
    void rellenarCurva(const Curva& curva, Pixel tinta);

    /// Larger than any sheet.
    static constexpr int lejos = 100'000'000;
    /// Larger than any screen.
    static constexpr int lejosCurva = 20'000;

  private:
    template <class Poner>
    void porPixeles(int x1, int y1, int x2, int y2, Poner poner);
    Pixel* en(int x, int y) { return primero_ + (y - zona_.y1) * salto_ + (x - zona_.x1); }

    Pixel* primero_;
    std::ptrdiff_t salto_;
    ZonaPixeles zona_;
};

}  // namespace bosquel
