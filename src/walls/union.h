#pragma once

#include "model/dibujo.h"

#include <cstdint>

namespace bosquel {

// The union of the walls `ParedUno` and `ParedDos`, which cuts them where they cross (X) or where one ends on
// the other (T), so that the joint is open. The tables are told in docs/geometria.md.

/// How the first long sides of the two walls meet.
enum class Encuentro : std::uint8_t {
    ninguno,    ///< a wall is missing
    paralelas,  ///< nowhere
    fuera,      ///< outside of both walls: a corner at best
    cruce       ///< within one of them at least
};

/// Finds out and leaves the crossing in the drawing. The x test spares a wall that reaches the crossing; the
/// y test is closed for `ParedUno` and open for `ParedDos`.
Encuentro encuentroDeParedes(Dibujo& dibujo);

/// Puts the walls into one group and cuts them by their angles and by where the crossing lies, which
/// `encuentroDeParedes` must have told to be a `cruce` just before. One wall comes of a T, two of an X. The
/// order of the two matters: there are pairs of angles that are only grouped.
void UnionParedes(Dibujo& dibujo);

}  // namespace bosquel
