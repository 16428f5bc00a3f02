#pragma once

#include "model/dibujo.h"
#include "surface/salida.h"

namespace bosquel {

/// How an element of this drawing comes out at an output scale.
Salida salidaDe(const Dibujo& dibujo, SuperficieSalida& superficie, double EscalaSalida);

/// Draws one element. A hole, a model, and what is not visible (of walls and openings: whose line 1 is not)
/// draw nothing. The fill state is as on a bare surface afterwards.
void DibujarElemento(const Salida& salida, const Dibujo& dibujo, Clase clase, int indice);

/// Draws the whole drawing kind by kind; what comes later lies over what comes before: walls over the fills
/// of furniture, openings over walls.
void DibujarTodo(const Salida& salida, const Dibujo& dibujo);

}  // namespace bosquel
