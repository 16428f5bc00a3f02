#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// The release on a wall in a mode in which the wall is the target of a command: parallel, corner, union,
/// separate, a new window or door, a new stair along it. The command runs, or waits for its second wall.
/// False if the mode is none of theirs.
bool elegirPared(Sesion& sesion, int indice);

}  // namespace bosquel
