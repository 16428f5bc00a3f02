#pragma once

#include "model/dibujo.h"

#include <optional>

namespace bosquel {

// Where an element stands on the sheet, in sheet units. Nothing for what is missing, is not visible, draws
// nothing, or is larger than any number.

/// The box of an element, by which it is framed, placed and picked: the extent of its figure without the bare
/// units that do not scale; of a stair the square in which it can turn; of a symbol its frame; of a text the
/// field that holds it.
std::optional<Recuadro> recuadroDe(const Dibujo& dibujo, Clase clase, int indice);

/// The extent of all that the element paints on the sheet; of a stair also where the pointer finds it.
std::optional<Recuadro> extensionDe(const Dibujo& dibujo, Clase clase, int indice);

}  // namespace bosquel
