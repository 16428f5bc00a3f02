#pragma once

#include <cstdint>

namespace bosquel {

/// Degrees to radians in the one order of operations that all geometry uses.
double radianes(double grados);

/// The point reached from (x, y) by `longitud` sheet units in the direction of `Angulo` (whole degrees,
/// positive upwards on the screen, where y grows downwards), rounded to a 32-bit float. At exactly 0 degrees
/// no trigonometry enters; at 90 the cosine's tiny residue is kept. NaN if no 32-bit float holds the result.
/// The formulas stand in docs/geometria.md.
float PolarX(double x, int Angulo, double longitud);
float PolarY(double y, int Angulo, double longitud);

}  // namespace bosquel
