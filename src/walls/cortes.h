#pragma once

#include "model/dibujo.h"

#include <cstdint>

namespace bosquel {

/// The ways to open a union. A T has a stem, which is cut, and a bar, which is cut in two; the names tell the
/// family and where the bar lies. In an X both walls are cut in two.
enum class Corte : std::uint8_t {
    nada,
    XPP,  ///< both angles on one side of level
    XPN,
    Up,
    Right,
    Down,
    Left,
    T270Up,
    T270Right,
    T270Down,
    T270Left
};

/// Cuts `ParedUno` and `ParedDos` at the four crossings of their long sides. The new pieces stand at the
/// counter of walls, in the group of the wall that they come from, whose far end and end cap they take over;
/// openings stay with the first piece. Without both walls nothing happens.
void CortarParedes(Dibujo& dibujo, Corte corte);

}  // namespace bosquel
