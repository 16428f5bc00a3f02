#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// The free text: a one-line box on the sheet, edited in its place while it has the focus.

/// The size of the type at factor 1, points.
inline constexpr double puntosDeTexto = 12;

/// The box takes the size of what it says, with room for one more letter.
void ajustarATexto(Sesion& sesion, TextoLibre& texto);

/// The user has changed what the text that has the focus says: box and frame follow.
void escribirTexto(Sesion& sesion, const std::string& escrito);

/// The focus has left the text: if it is empty it takes a name, so that it can be seen.
void terminarTexto(Sesion& sesion, int indice);

}  // namespace bosquel
