#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// How furniture, texts, stairs and symbols answer the pointer, which comes in the element's own coordinates,
// from its top left corner. An element that is gone answers nothing.

void pulsarElemento(Sesion& sesion, Referencia cual, float X, float Y);
void moverElemento(Sesion& sesion, Referencia cual, bool boton1, float X, float Y);
void dobleClicElemento(Sesion& sesion, Referencia cual);

/// Selects a stair or a symbol.
void senalarElemento(Sesion& sesion, Referencia cual);

/// What was dragged stands still again.
void asentarObjeto(Sesion& sesion);

/// The event that armed `Timer2` has ended: the dialog that waited for it opens.
void abrirDiferido(Sesion& sesion);

}  // namespace bosquel
