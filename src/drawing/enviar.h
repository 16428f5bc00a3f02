#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// Sends the drawing out: opens the window in which an area of it is chosen, to be printed, kept as a bitmap
/// or put on the clipboard.
void EnviarA(Sesion& sesion);

}  // namespace bosquel
