#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace bosquel {

// The script of a symbol, parsed. Points are offsets from the symbol's place in sheet units, laid out for its
// zoom and turned; lengths stay in millimetres; angles in degrees, to which the symbol's own is still added.

struct PuntoGuion {
    double X = 0, Y = 0;
};

/// By `Length` and `RelativeAngle` from `A`; straight from `A` to `B` if `Length` is 0.
struct LineaGuion {
    PuntoGuion A, B;
    double Length = 0, RelativeAngle = 0;
};

struct RectGuion {
    PuntoGuion P1;
    double Length = 0, Wide = 0, RelativeAngle = 0;
};

/// From `Start` to `TheEnd`, counter-clockwise; 360 between them is the whole circle at any angle.
struct ArcoGuion {
    PuntoGuion C;
    double Radius = 0, Start = 0, TheEnd = 0;
};

struct ElipseGuion {
    PuntoGuion C;
    double Length = 0, Wide = 0;
    double LongCircleAngle = 0, ShortCircleAngle = 0, RelativeAngle = 0;
};

struct ListasGuion {
    std::vector<LineaGuion> Lines;
    std::vector<RectGuion> Rects;
    std::vector<ArcoGuion> Circles, Arcs;
    std::vector<ElipseGuion> Ellipses;
    std::optional<RectGuion> mascara;  ///< the region that the symbol covers; never stroked
};

/// How a symbol lies on the sheet: it turns about the centre of its frame.
struct MarcoGuion {
    double RectX = 0, RectY = 0;  ///< mm
    double factor = 1;            ///< sheet units per millimetre
    double Angle = 0;             ///< degrees
};

/// Parses a script, line by line. A statement that is not well formed, or that refers to a line which does
/// not stand before it, is left out. The language is told in docs/figuras.md.
ListasGuion leerGuion(std::string_view guion, const MarcoGuion& marco);

}  // namespace bosquel
