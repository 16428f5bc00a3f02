#pragma once

namespace bosquel {

// The measures of the output picture, in twips of it. Its pixel is the 96th part of an inch on every screen,
// so that the same drawing always gives the same pixels, and the same length on paper.

inline constexpr double twipsPorPulgada = 1440, milimetrosPorPulgada = 25.4;
inline constexpr double twipsPorPixel = 15;

/// Twips of the output to a sheet unit: 500 sheet units, a metre at the first zoom factor, come out as 10 mm.
inline constexpr double EscalaSalida = 10 / (500 * milimetrosPorPulgada / twipsPorPulgada);

/// Pixels: no picture is wider or higher than this, so that a few of them fit into most machines. What lies
/// further right or further down is cut off.
inline constexpr int ladoMaximo = 8192;

}  // namespace bosquel
