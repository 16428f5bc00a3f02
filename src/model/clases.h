#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace bosquel {

/// The kinds of element, in the order of the drawing file, of the zoom and of the output.
enum class Clase : std::uint8_t {
    MblMesa,
    MblSilla,
    MblCama90,
    MblCama130,
    MblArmario,
    MblAsiento,
    MblInodoro,
    MblLavabo,
    MblBidet,
    MblBañera,
    MblDucha,
    MblUrinario,
    MblCocina,
    MblNevera,
    MblFregadero,
    MblLavadora,
    MblLavadero,
    MblVertedero,
    Pared,
    Ventana,
    Puerta,
    TextoLibre,
    Escalera,
    Electrico
};
inline constexpr std::size_t numeroDeClases = 24;

/// The groups of buttons that create elements, and the one that chooses among the palettes.
enum class Grupo : std::uint8_t { BttMueble, BttBaño, BttCocina, BttUsuario, BttElectrico, BttTipo };

/// How a double click opens an element's dialog.
enum class DobleClic : std::uint8_t { enElActo, diferido, enFlecha, nada };

/// One row for each kind: whatever differs from kind to kind in a pass over all of them.
struct DatosClase {
    Clase clase;
    std::string_view nombre;    ///< what the user's files and the rest of the program call it
    std::string_view seccion;   ///< the section of the drawing file, before the index
    std::string_view contador;  ///< the key of its counter
    Grupo grupo;                ///< the buttons that make it, from `boton` on
    int boton;
    std::string_view dialogo;  ///< the form that edits it; empty if there is none
    DobleClic dobleClic;
    int desdeZoom;             ///< first index of the zoom pass: 0 where the model is kept in step
    bool zoomConContador;      ///< the zoom pass takes the counter's own index in
    bool eliminarConContador;  ///< so does the pass that empties the drawing
    bool dibujarConContador;   ///< so does the pass that draws it all
};

const DatosClase& datos(Clase clase);
const std::array<DatosClase, numeroDeClases>& todasLasClases();

/// The order in which the drawing is emptied: openings go before their walls.
const std::array<Clase, numeroDeClases>& ordenDeEliminar();

/// The order of the counters in the drawing file, which is not that of the kinds: the bidet's is written
/// before the basin's, and once more after it.
const std::array<Clase, numeroDeClases + 1>& ordenDeContadores();

}  // namespace bosquel
