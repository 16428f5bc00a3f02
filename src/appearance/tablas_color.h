#pragma once

#include "model/clases.h"
#include "model/colores.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace bosquel {

/// What the colour dialog offers, as tables: a row for each option, tab, type, category and list of colours.

/// A choice of `optSchemaColor`.
struct EsquemaColor {
    std::string_view rotulo;
    std::string_view nombre;  ///< what the drawing keeps as `Esquema`
    bool conPerfiles;         ///< profiles can be chosen and saved
    bool conSolapas;          ///< colours can be changed one by one
    bool marcar;              ///< starts with all boxes ticked
};

enum class Solapa : std::uint8_t { Categoria, Muebles, Cocina, Sanitarios };

struct DatosSolapa {
    std::string_view rotulo, nota;
};

/// A type of furniture: its box `chkColores` and its swatches.
struct TipoColor {
    std::string_view rotulo;
    Clase clase;
    Solapa solapa;
    bool conFondo;
};

/// A category: its box `chkCatColor` and its swatches. It passes its colours on to the types of a tab, or is
/// the colour of whole kinds.
struct CategoriaColor {
    std::string_view rotulo;
    std::optional<Solapa> solapa;
    std::span<const Clase> clases;
    bool conFondo;
};

/// The lists of colours that a profile is made of.
enum class ListaColor : std::uint8_t { Varios, Lineas, Fondos };

struct DatosListaColor {
    std::string_view seccion;  ///< of the profile file
    Color constante;           ///< what all of its swatches start with
    std::size_t cuantos;
};

inline constexpr std::array clasesCarpinteria{Clase::Puerta, Clase::Ventana};
inline constexpr std::array clasesParedes{Clase::Pared};
inline constexpr std::array clasesTextos{Clase::TextoLibre};
inline constexpr std::array clasesEscaleras{Clase::Escalera};
inline constexpr std::array clasesElectricidad{Clase::Electrico};

// clang-format off
inline constexpr std::array<EsquemaColor, 3> esquemasColor{{
    {"Blanco y Negro (Predeterminado)", "Blanco y Negro",         false, false, true},
    {"Colores personalizados",          "Colores Personalizados", false, true,  false},
    {"Perfiles Guardados",              "Perfil Predefinido",     true,  true,  false},
}};

inline constexpr std::array<DatosSolapa, 4> solapasColor{{
    {"Categoría",  "Marque colores en esta solapa para cambiar el color de todos los elementos pertenecientes a las categorías seleccionadas"},
    {"Muebles",    "Marque colores en esta solapa para cambiar el color de todos los muebles del mismo tipo."},
    {"Cocina",     "Marque colores en esta solapa para cambiar el color de todos los aparatos de cocina del mismo tipo."},
    {"Sanitarios", "Marque colores en esta solapa para cambiar el color de todos los aparatos de baño o sanitarios del mismo tipo."},
}};

/// Those with a fill come first.
inline constexpr std::array<TipoColor, 18> tiposColor{{
    {"Mesas",     Clase::MblMesa,      Solapa::Muebles,    true},
    {"Sillas",    Clase::MblSilla,     Solapa::Muebles,    true},
    {"Asientos",  Clase::MblAsiento,   Solapa::Muebles,    true},
    {"Armarios",  Clase::MblArmario,   Solapa::Muebles,    true},
    {"Cama 90",   Clase::MblCama90,    Solapa::Muebles,    true},
    {"Cama 130",  Clase::MblCama130,   Solapa::Muebles,    true},
    {"Nevera",    Clase::MblNevera,    Solapa::Cocina,     true},
    {"Cocina",    Clase::MblCocina,    Solapa::Cocina,     true},
    {"Fregadero", Clase::MblFregadero, Solapa::Cocina,     true},
    {"Lavadora",  Clase::MblLavadora,  Solapa::Cocina,     true},
    {"Lavadero",  Clase::MblLavadero,  Solapa::Cocina,     true},
    {"Vertedero", Clase::MblVertedero, Solapa::Cocina,     true},
    {"Inodoro",   Clase::MblInodoro,   Solapa::Sanitarios, false},
    {"Bidet",     Clase::MblBidet,     Solapa::Sanitarios, false},
    {"Lavabo",    Clase::MblLavabo,    Solapa::Sanitarios, false},
    {"Bañera",    Clase::MblBañera,    Solapa::Sanitarios, false},
    {"Ducha",     Clase::MblDucha,     Solapa::Sanitarios, false},
    {"Urinario",  Clase::MblUrinario,  Solapa::Sanitarios, false},
}};

/// Those with a fill come first.
inline constexpr std::array<CategoriaColor, 8> categoriasColor{{
    {"Muebles",      Solapa::Muebles,    {},                 true},
    {"Cocina",       Solapa::Cocina,     {},                 true},
    {"Sanitarios",   Solapa::Sanitarios, {},                 false},
    {"Carpintería",  std::nullopt,       clasesCarpinteria,  false},
    {"Paredes",      std::nullopt,       clasesParedes,      false},
    {"Textos",       std::nullopt,       clasesTextos,       false},
    {"Escaleras",    std::nullopt,       clasesEscaleras,    false},
    {"Electricidad", std::nullopt,       clasesElectricidad, false},
}};

/// By the values of `ListaColor`.
inline constexpr std::array<DatosListaColor, 3> listasColor{{
    {"PerfilesVarios", colorTextoVentana, 5},
    {"PerfilesLineas", colorTextoVentana, 18},
    {"PerfilesFondos", colorFondoVentana, 12},
}};
// clang-format on

constexpr const DatosListaColor& datos(ListaColor lista) {
    return listasColor[static_cast<std::size_t>(lista)];
}

inline constexpr std::size_t tiposConFondo = 12, categoriasConFondo = 2;
inline constexpr std::size_t primeraCategoriaDelPerfil = 3;  ///< those before it only pass their colours on

}  // namespace bosquel
