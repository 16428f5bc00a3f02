#pragma once

#include "model/dibujo.h"
#include "persistence/perfiles.h"

namespace bosquel {

// The drawing file. Reading never fails: what is missing takes its default, what cannot be converted leaves
// its field as it is.

/// Writes the drawing into an empty profile file, section by section in the order of the kinds.
void escribirDibujo(ArchivoPerfil& archivo, const Dibujo& dibujo);

/// Reads the sheet, the settings, the counters and the colours of the models.
void leerCabecera(const ArchivoPerfil& archivo, Dibujo& dibujo);

/// Reads the elements that the counters promise, into a drawing that has none.
void leerElementos(const ArchivoPerfil& archivo, Dibujo& dibujo);

}  // namespace bosquel
