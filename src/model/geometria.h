#pragma once

#include <algorithm>

namespace bosquel {

/// A straight stroke on the sheet, in sheet units. Hidden until something draws it.
struct Segmento {
    float X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    bool Visible = false;

    bool operator==(const Segmento&) const = default;
};

/// A rectangle of the sheet or of the viewport, in sheet units.
struct Recuadro {
    double Left = 0, Top = 0, Width = 0, Height = 0;

    bool contiene(double x, double y) const {
        return x >= Left && y >= Top && x < Left + Width && y < Top + Height;
    }
    /// True also for rectangles that only touch: a stroke has no width of its own.
    bool toca(const Recuadro& otro) const {
        return Left <= otro.Left + otro.Width && otro.Left <= Left + Width && Top <= otro.Top + otro.Height &&
               otro.Top <= Top + Height;
    }
    bool operator==(const Recuadro&) const = default;
};

/// The smallest rectangle that holds both.
inline Recuadro unir(const Recuadro& a, const Recuadro& b) {
    const double left = std::min(a.Left, b.Left);
    const double top = std::min(a.Top, b.Top);
    return {left, top, std::max(a.Left + a.Width, b.Left + b.Width) - left,
            std::max(a.Top + a.Height, b.Top + b.Height) - top};
}

/// The bounding box of a stroke.
inline Recuadro contorno(const Segmento& s) {
    const double left = std::min(s.X1, s.X2);
    const double top = std::min(s.Y1, s.Y2);
    return {left, top, std::max<double>(s.X1, s.X2) - left, std::max<double>(s.Y1, s.Y2) - top};
}

}  // namespace bosquel
