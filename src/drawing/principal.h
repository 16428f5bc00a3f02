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

/// A button of the main strip. One whose command does not exist yet cannot be pressed.
struct BotonPrincipal {
    std::string_view rotulo;
    bool disponible;
};

inline constexpr std::array<BotonPrincipal, 11> BttPrincipal{{{"Nuevo", true},
                                                              {"Abrir", true},
                                                              {"Guardar", true},
                                                              {"Ayuda", true},
                                                              {"Zoom", true},
                                                              {"Definir", true},
                                                              {"Opciones", true},
                                                              {"Eliminar", true},
                                                              {"Imprimir", true},
                                                              {"Salir", true},
                                                              {"Colores", true}}};

/// A click: ends the tool in hand, and with it a wall that still waits, and runs the command inside the gate.
void pulsarPrincipal(Sesion& sesion, Principal boton);

/// The pointer crosses a main button: its border is raised, and no other.
void cruzarPrincipal(Sesion& sesion, Principal boton);

/// The one key of the main window.
void teclaSuprimir(Sesion& sesion);

}  // namespace bosquel
