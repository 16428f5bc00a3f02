#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// Clears the marks of the current element: of the wall, window or door that the pointer crossed last, since
/// a grip has to be crossed to be pressed; of the stair or symbol itself.
void QuitarSeleccion(Dibujo& dibujo);

/// The sign by which a stair or a symbol shows that it is selected; nullptr for whatever has none.
bool* resaltadoDe(Dibujo& dibujo, Referencia cual);

/// That sign goes out.
void apagar(Dibujo& dibujo, Referencia cual);

/// Removes the current element. A wall of a group asks first, unless `Forzar` is true. The selection goes on
/// pointing at the hole, so that removing again does nothing.
void EliminarElemento(Sesion& sesion, bool Forzar);

/// Removes every element of the drawing; the models and the counters stay.
void EliminarTodos(Sesion& sesion);

/// Opens the wall dialog. A wall of a group asks first whether it is to be taken out of it.
void AbreParedProp(Sesion& sesion, int indice);

}  // namespace bosquel
