#pragma once

#include "drawing/sesion.h"

#include <array>

namespace bosquel {

// The captions of the buttons in the window's left column.

inline constexpr std::array<std::string_view, 4> BttOperacion{"Paralela", "Esquina", "Union", "Separar"};
inline constexpr std::array<std::string_view, 6> BttTipo{"Muebles",  "Baño",     "Cocina",
                                                         "División", "Escalera", "Eléctrico"};
inline constexpr std::array<std::string_view, 6> BttMueble{"Mesa",   "Silla",   "Cama 90",
                                                           "Cama M", "Armario", "Asiento"};
inline constexpr std::array<std::string_view, 6> BttBaño{"Inodoro", "Lavabo", "Bidet",
                                                         "Bañera",  "Ducha",  "Urinario"};
inline constexpr std::array<std::string_view, 6> BttCocina{"Nevera",  "Cocina",  "Fregad.",
                                                           "Lavado.", "Lavade.", "Vertede."};
inline constexpr std::array<std::string_view, 6> BttUsuario{"Muro",  "Tabique", "Pilar",
                                                            "Texto", "Puerta",  "Ventana"};
inline constexpr std::array<std::string_view, 6> BttElectrico{"Luz",      "Llave", "Enchufe",
                                                              "Pulsador", "Señal", "Cuadro"};

/// The relations between walls: starts the tool that the button stands for.
void pulsarOperacion(Sesion& sesion, int indice);

/// The palette selector: shows a palette and its title; the tool in hand goes on. "Escalera" has no palette:
/// it takes the one on view away and makes a stair.
void pulsarTipo(Sesion& sesion, int indice);

/// The palette of divisions: creates the element that the button stands for.
void pulsarUsuario(Sesion& sesion, int indice);

}  // namespace bosquel
