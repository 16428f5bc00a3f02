#pragma once

#include "model/dibujo.h"
#include "surface/calco.h"

#include <string_view>

namespace bosquel {

// Elements as pictures: as the sheet shows them at the first zoom step, in their own colours, wherever they
// stand and whether they are visible or not. What is missing has no strokes.

/// Furniture, a stair or a symbol; index 0 is the model of its kind.
Calco calcar(const Dibujo& dibujo, Clase clase, int indice);

/// The same piece of furniture in another layout: one of the kind's codes, of a table a placement.
Calco calcar(const Dibujo& dibujo, Clase clase, int indice, std::string_view codigo);

/// The model of the symbols as the one of this name.
Calco calcarSimbolo(const Dibujo& dibujo, std::string_view simbolo);

}  // namespace bosquel
