#pragma once

#include <cstdint>
#include <string_view>

namespace bosquel {

/// The tool modes: what the next press or release of the pointer means.
enum class Modo : std::uint8_t {
    Aspa,          ///< idle
    Flecha,        ///< the pointer stands over something that can be picked
    Seleccion,     ///< waits for the wall from which to draw a parallel
    PrimeraPared,  ///< corner: waits for the first wall
    SegundaPared,  ///< corner: waits for the second wall
    Union1,        ///< union: waits for the first wall
    Union2,        ///< union: waits for the second wall
    Separar,       ///< waits for a wall whose group is to be dissolved
    Pared,         ///< a new wall waits for its start point
    Ventana,       ///< a new window waits for its wall
    Puerta,        ///< a new door waits for its wall
    Escalera       ///< a new stair waits for the wall to align to
};

std::string_view texto(Modo modo);

/// True in the nine modes in which a wall is only a target, neither picked nor dragged.
bool espera(Modo modo);

/// The cursors of the sheet, by role.
enum class Cursor : std::uint8_t { Cruz, Flecha, Palma, IcoSeleccion, IcoPared };

}  // namespace bosquel
