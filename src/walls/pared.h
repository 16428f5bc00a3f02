#pragma once

#include "model/dibujo.h"

#include <optional>
#include <span>

namespace bosquel {

// The wall: how its four lines and three grips follow from its fields, and how the fields follow from lines
// that something else has moved. The formulas stand in docs/geometria.md. A wall that does not exist is
// passed over by every function here.

/// Builds lines and grips of the wall from start point, `Angulo`, `Longitud` and width; shows both caps,
/// whatever `Visible1` and `Visible2` say; makes it the current element, with red grips if `seleccionada`.
void DibujaPared(Dibujo& dibujo, int indice, bool seleccionada);
/// `DibujaPared`, but of a wall that may be missing.
void RedibujaPared(Dibujo& dibujo, int indice, bool seleccionada);

/// Creates a wall of the kind, the widths, the angle and the length of `pared`: free, as good as applied,
/// with both caps. It has no place and is not drawn yet. Gives its index, 0 if there is none left to give.
int CreaParedComo(Dibujo& dibujo, const Pared& pared);

/// Keeps lines 1 and 3 as they are and builds the caps and the grips from them; a cap shows if `Visible1` or
/// `Visible2` says so.
void ReconstruyePared(Dibujo& dibujo, int indice);

/// The four lines of a plain rectangle from start point, `Angulo`, `Longitud` and width, all visible.
/// `factor` is sheet units to a mm.
void TrazaLineasPared(Pared& pared, double factor);

/// The caps follow the long sides; whether they show does not change.
void MueveTapasPared(Pared& pared);

/// Copies lines 1 and 3 into the fields that the file holds, and back.
void GuardaLineasPared(Dibujo& dibujo, int indice);
void RecuperaLineasPared(Dibujo& dibujo, int indice);

/// The three grips white and behind all other elements.
void DeseleccionaPared(Dibujo& dibujo, int indice);
/// The three grips in a colour, where they are in the z-order.
void PintaPinzasPared(Dibujo& dibujo, int indice, Color color);

/// Measures `Longitud` (mm) from the stored lines: from line 1 alone at 0 and 90 degrees, otherwise the mean
/// of both long sides, each taken from its horizontal run.
void LongitudPared(const Dibujo& dibujo, Pared& VarPared);
/// The start point of line 1 becomes that of the wall; nothing else changes.
void ActualizarPuntoInicialPared(Dibujo& dibujo, int indice);

/// The extent of what is visible of these, in sheet units; nothing if nothing is.
std::optional<Recuadro> contorno(std::span<const Segmento> lineas, std::span<const Pinza* const> pinzas);
/// The extent of all that the wall shows on the sheet.
std::optional<Recuadro> contorno(const Pared& pared);
/// The wall's extent has to be painted again.
void ensuciar(Dibujo& dibujo, const Pared& pared);

}  // namespace bosquel
