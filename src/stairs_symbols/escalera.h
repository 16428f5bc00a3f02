#pragma once

#include "model/elementos.h"
#include "surface/salida.h"

namespace bosquel {

/// What the plan of a stair comes out of: lengths in whole surface units, along flight 1 and across it.
struct PlantaEscalera {
    PlantaEscalera(const Salida& salida, const Escalera& escalera);

    double d, m;                     ///< thickness of a railing, margin of the frame
    std::array<double, 3> r{};       ///< railings: `d`, or 0 for none
    std::array<double, 3> L{}, W{};  ///< length and width of each flight
    double t;                        ///< going of a step
    double e;                        ///< eye; never narrower than the second flight is long
    double A, C;                     ///< the whole stair, along and across
    double D;                        ///< side of the square in which it can turn
};

/// Draws a stair of one to three flights about the centre of its square, at any angle; the fill state is not
/// touched. "D" turns one way, "R" the other; any other `Orientacion` draws nothing. The formulas stand in
/// docs/figuras.md.
void DibujarEscalera(const Salida& salida, const Escalera& escalera);

}  // namespace bosquel
