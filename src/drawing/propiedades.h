#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// The dialog of an element. Nothing for a hole, and for texts, which have none.
void abrirPropiedades(Sesion& sesion, Referencia cual);

/// The dialog of the current element.
void MostrarPropiedades(Sesion& sesion);

}  // namespace bosquel
