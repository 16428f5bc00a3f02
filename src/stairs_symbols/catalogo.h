#pragma once

#include "model/elementos.h"

#include <string>
#include <string_view>

namespace bosquel {

/// The script of a symbol by its name, its lines joined by CR LF; empty for a name that the catalogue does
/// not have.
std::string DrawObjects(std::string_view simbolo);

/// Makes the element that symbol: its name and its script, which always change together.
void ponerSimbolo(Electrico& electrico, std::string_view simbolo);

}  // namespace bosquel
