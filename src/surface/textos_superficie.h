#pragma once

#include "model/colores.h"

#include <string>

namespace bosquel {

/// The shortest text that gives the number back, with a point whatever the locale: as a 32-bit number if it
/// is one. Minus zero is "0".
std::string textoCorto(double valor);

/// The colour as RRGGBB.
std::string textoColor(Color color);

}  // namespace bosquel
