#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// How windows and doors come into being and are edited.

/// The palette: a new window or door (`clase`) without a wall; it waits for the release on one.
void crearAbertura(Sesion& sesion, Clase clase);

/// The release on a wall: the window or door created last takes it for its own, and its dialog opens. Once it
/// is applied the wall can no longer be edited alone: a free one gets a group of its own. One that is
/// cancelled stays in the drawing, not drawn, and keeps its wall.
void situarVentana(Sesion& sesion, int pared);
void situarPuerta(Sesion& sesion, int pared);

/// The dialog of a window or door that exists.
void AbreVentanaProp(Sesion& sesion, int indice);
void AbrePuertaProp(Sesion& sesion, int indice);

}  // namespace bosquel
