#pragma once

#include "drawing/sesion.h"

#include <array>
#include <string_view>

namespace bosquel {

// The palettes of elements. What is created appears at the top left corner of the part of the sheet on view,
// selected. Furniture and symbols come into being only while no tool is in hand; sanitary ware and appliances
// do at any time.

/// What each button of `BttElectrico` makes; sizes in millimetres.
struct SimboloDeBoton {
    std::string_view ObjectType;
    double RectX, RectY;
};
inline constexpr std::array<SimboloDeBoton, 6> simbolosDeBoton{{{"Punto de Luz", 250, 250},
                                                                {"Interruptor", 200, 200},
                                                                {"Enchufe", 160, 180},
                                                                {"Pulsador", 150, 150},
                                                                {"Señal TV", 200, 200},
                                                                {"Cuadro Eléctrico", 325, 165}}};

void pulsarMueble(Sesion& sesion, int indice);
void pulsarBaño(Sesion& sesion, int indice);
void pulsarCocina(Sesion& sesion, int indice);
void pulsarElectrico(Sesion& sesion, int indice);

void crearTexto(Sesion& sesion);

}  // namespace bosquel
