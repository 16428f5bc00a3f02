#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// The box of a text takes the size of what it says, with room for one more letter.
void ajustarATexto(Sesion& sesion, TextoLibre& texto);

}  // namespace bosquel
