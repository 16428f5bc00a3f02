#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// The pointer on the grip of a window or a door, told apart by `clase`. An opening is picked and edited by
// it; it is not dragged, since it moves with its wall alone.

void pulsarPinzaAbertura(Sesion& sesion, Clase clase, int indice);
void moverPinzaAbertura(Sesion& sesion, Clase clase, int indice);
void dobleClicPinzaAbertura(Sesion& sesion, Clase clase, int indice);

}  // namespace bosquel
