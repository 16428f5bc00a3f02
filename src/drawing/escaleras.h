#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// The button "Escalera": opens the dialog for a new stair, unless there are walls and the user wants to
/// align it to one of them. Then the mode waits for that wall.
void CrearEscalera(Sesion& sesion);

/// The stair dialog. Index 0 makes a new stair, in the direction of a wall if `angulo` is not 0. A stair that
/// is missing opens nothing.
void AbreEscaleraProp(Sesion& sesion, int indice, int angulo);

}  // namespace bosquel
