#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// The palettes of elements. What is created appears at the top left corner of the part of the sheet on view,
// selected. Furniture and symbols come into being only while no tool is in hand; sanitary ware and appliances
// do at any time.

void pulsarMueble(Sesion& sesion, int indice);
void pulsarBaño(Sesion& sesion, int indice);
void pulsarCocina(Sesion& sesion, int indice);
void pulsarElectrico(Sesion& sesion, int indice);

void crearTexto(Sesion& sesion);

}  // namespace bosquel
