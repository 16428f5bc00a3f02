#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// The three grips of a wall, in the order of `Pared::pinzas`.
enum class PinzaDePared : std::uint8_t { inicial, final, centro };

// The pointer on a grip of a wall, in sheet units from the grip's corner. Everything that a user does to a
// wall goes through here: picking and dragging it, and choosing it as the target of another command.

void pulsarPinzaPared(Sesion& sesion, int indice, PinzaDePared cual, float X, float Y);
void moverPinzaPared(Sesion& sesion, int indice, PinzaDePared cual, bool boton1, float X, float Y);
void soltarPinzaPared(Sesion& sesion, int indice);
void dobleClicPinzaPared(Sesion& sesion, int indice);

/// What was being dragged stands still again.
void terminarMovimiento(Sesion& sesion);

/// Remembers where the ends of the long sides and the other two grips stand from the start grip, in whole
/// sheet units.
void CapturarMovimientoPared(Sesion& sesion, int indice);
/// Builds the wall's lines from the start grip's place: a pure translation.
void MoverPared(Sesion& sesion, int indice);
/// Moves the wall so that the start of line 1 falls on the grid.
void AlinearPared(Sesion& sesion, int indice);
/// The three grips teal, unless the wall is selected.
void MostrarNodos(Dibujo& dibujo, int indice);

}  // namespace bosquel
