#pragma once

#include "drawing/sesion.h"

namespace bosquel {

/// Stands the ruler upright at the viewport's right edge.
void acoplarRegla(Sesion& sesion);

/// Shows the ruler in the other of its two places: docked, or lying in the middle of the viewport.
void alternarRegla(Sesion& sesion);
void ocultarRegla(Sesion& sesion);

/// The pointer on the ruler, in sheet units from its corner.
void pulsarRegla(Sesion& sesion, float X, float Y);
void moverRegla(Sesion& sesion, bool boton1, float X, float Y);
void soltarRegla(Sesion& sesion);

}  // namespace bosquel
