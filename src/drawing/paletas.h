#pragma once

#include "drawing/sesion.h"

#include <array>

namespace bosquel {

/// A button of the window's left column. One whose command does not exist yet cannot be pressed.
struct BotonDePaleta {
    std::string_view rotulo;
    bool disponible = false;
};

inline constexpr std::array<BotonDePaleta, 4> BttOperacion{
    {{"Paralela", true}, {"Esquina", true}, {"Union", true}, {"Separar", true}}};

inline constexpr std::array<BotonDePaleta, 6> BttTipo{{{"Muebles", true},
                                                       {"Baño", true},
                                                       {"Cocina", true},
                                                       {"División", true},
                                                       {"Escalera", true},
                                                       {"Eléctrico", true}}};

inline constexpr std::array<BotonDePaleta, 6> BttMueble{{{"Mesa", true},
                                                         {"Silla", true},
                                                         {"Cama 90", true},
                                                         {"Cama M", true},
                                                         {"Armario", true},
                                                         {"Asiento", true}}};
inline constexpr std::array<BotonDePaleta, 6> BttBaño{{{"Inodoro", true},
                                                       {"Lavabo", true},
                                                       {"Bidet", true},
                                                       {"Bañera", true},
                                                       {"Ducha", true},
                                                       {"Urinario", true}}};
inline constexpr std::array<BotonDePaleta, 6> BttCocina{{{"Nevera", true},
                                                         {"Cocina", true},
                                                         {"Fregad.", true},
                                                         {"Lavado.", true},
                                                         {"Lavade.", true},
                                                         {"Vertede.", true}}};
inline constexpr std::array<BotonDePaleta, 6> BttUsuario{{{"Muro", true},
                                                          {"Tabique", true},
                                                          {"Pilar", true},
                                                          {"Texto", true},
                                                          {"Puerta", true},
                                                          {"Ventana", true}}};
inline constexpr std::array<BotonDePaleta, 6> BttElectrico{{{"Luz", true},
                                                            {"Llave", true},
                                                            {"Enchufe", true},
                                                            {"Pulsador", true},
                                                            {"Señal", true},
                                                            {"Cuadro", true}}};

/// The relations between walls: starts the tool that the button stands for.
void pulsarOperacion(Sesion& sesion, int indice);

/// The palette selector: shows a palette and its title; the tool in hand goes on. "Escalera" has no palette:
/// it takes the one on view away and makes a stair.
void pulsarTipo(Sesion& sesion, int indice);

/// The palette of divisions: creates the element that the button stands for.
void pulsarUsuario(Sesion& sesion, int indice);

}  // namespace bosquel
