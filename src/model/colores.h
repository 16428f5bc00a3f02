#pragma once

#include <cstdint>

namespace bosquel {

/// A colour: plain RGB as 0x00BBGGRR, or one of the system's two when negative.
using Color = std::int32_t;

inline constexpr Color colorTextoVentana = -2147483640;  ///< the default of strokes: black on every desktop
inline constexpr Color colorFondoVentana = -2147483643;  ///< the default of fills: white on every desktop

inline constexpr Color negro = 0x000000;
inline constexpr Color blanco = 0xFFFFFF;        ///< a grip at rest
inline constexpr Color rojo = 0x0000FF;          ///< a grip of the selected element
inline constexpr Color verdeAzulado = 0xC0C000;  ///< a grip under the pointer: 12632064
inline constexpr Color azulOscuro = 0x800000;    ///< a dial at rest
inline constexpr Color colorCuadricula = 0xFFF0F0;

/// The plain RGB of a colour: paper is paper, so the system's text is black and its ground is white, and so
/// is every other system colour, which no drawing of ours holds.
constexpr Color rgb(Color color) {
    if (color >= 0) return color & 0xFFFFFF;
    return color == colorFondoVentana ? blanco : negro;
}

}  // namespace bosquel
