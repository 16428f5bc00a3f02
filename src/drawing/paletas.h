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

inline constexpr std::array<BotonDePaleta, 6> BttMueble{
    {{"Mesa"}, {"Silla"}, {"Cama 90"}, {"Cama M"}, {"Armario"}, {"Asiento"}}};
inline constexpr std::array<BotonDePaleta, 6> BttBaño{
    {{"Inodoro"}, {"Lavabo"}, {"Bidet"}, {"Bañera"}, {"Ducha"}, {"Urinario"}}};
inline constexpr std::array<BotonDePaleta, 6> BttCocina{
    {{"Nevera"}, {"Cocina"}, {"Fregad."}, {"Lavado."}, {"Lavade."}, {"Vertede."}}};
inline constexpr std::array<BotonDePaleta, 6> BttUsuario{
    {{"Muro", true}, {"Tabique", true}, {"Pilar", true}, {"Texto"}, {"Puerta", true}, {"Ventana", true}}};
inline constexpr std::array<BotonDePaleta, 6> BttElectrico{
    {{"Luz"}, {"Llave"}, {"Enchufe"}, {"Pulsador"}, {"Señal"}, {"Cuadro"}}};

/// The relations between walls: starts the tool that the button stands for.
void pulsarOperacion(Sesion& sesion, int indice);

/// The palette selector: shows a palette and its title; the tool in hand goes on. "Escalera" has no palette:
/// it takes the one on view away and makes a stair.
void pulsarTipo(Sesion& sesion, int indice);

/// The palette of divisions: creates the element that the button stands for.
void pulsarUsuario(Sesion& sesion, int indice);

}  // namespace bosquel
