#pragma once

#include "model/modos.h"

#include <string>
#include <string_view>

namespace bosquel {

// What the foot of the main window tells.

/// What the tool in hand waits for.
std::string_view indicacion(Modo modo);

/// The scale at which the drawing stands on the sheet, as "Escala 1:100"; empty for a factor that gives none.
std::string textoEscala(double FactorZoomActual);

}  // namespace bosquel
