#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// The input focus and the frame that shows it. Furniture and texts take it; everything else on the sheet
// leaves it to the sheet itself.

/// Whether elements of the kind take the focus: all furniture, and texts.
bool tomaFoco(Clase clase);

/// Selects the element, unless it has the focus already.
void darFoco(Sesion& sesion, Referencia cual);

/// The sheet takes the focus: the frame goes, and a text that says nothing gets a name to say.
void quitarFoco(Sesion& sesion);

/// The element is gone, and with it the focus. The frame stays where it stood.
void olvidarFoco(Sesion& sesion, Referencia cual);

/// The frame takes the place and the size of an element.
void enmarcar(Sesion& sesion, Referencia cual);

/// The frame follows its element; its size stays.
void llevarMarco(Sesion& sesion, const Situado& elemento);

void ocultarMarco(Sesion& sesion);

}  // namespace bosquel
