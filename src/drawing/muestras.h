#pragma once

#include "drawing/sesion.h"
#include "surface/calco.h"

namespace bosquel {

/// What a button of a palette shows: the model of the kind that it makes, as it is now, or its symbol in the
/// model's colour. Without strokes for what has a drawn icon of its own.
Calco muestraDe(const Dibujo& dibujo, Paleta paleta, int boton);

}  // namespace bosquel
