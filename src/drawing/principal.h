#pragma once

#include "drawing/sesion.h"

#include <array>
#include <string_view>

namespace bosquel {

/// The main buttons, by the index that their handler receives.
enum class Principal : std::uint8_t {
    Nuevo,
    Abrir,
    Guardar,
    Ayuda,
    Zoom,
    Definir,
    Opciones,
    Eliminar,
    Imprimir,
    Salir,
    Colores
};

/// The captions of the main buttons.
inline constexpr std::array<std::string_view, 11> BttPrincipal{"Nuevo",    "Abrir",   "Guardar",  "Ayuda",
                                                               "Zoom",     "Definir", "Opciones", "Eliminar",
                                                               "Imprimir", "Salir",   "Colores"};

/// A click: ends the tool in hand, and with it a wall that still waits, and runs the command inside the gate.
void pulsarPrincipal(Sesion& sesion, Principal boton);

/// The pointer crosses a main button: its border is raised, and no other.
void cruzarPrincipal(Sesion& sesion, Principal boton);

/// The one key of the main window.
void teclaSuprimir(Sesion& sesion);

}  // namespace bosquel
