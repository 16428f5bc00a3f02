#pragma once

#include "model/dibujo.h"
#include "persistence/campos.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>

namespace bosquel {

// The drawing file as tables of fields: the sections of the drawing itself, and one table for each kind. What
// they mean stands in docs/formato-bqr.md.

inline constexpr std::string_view seccionCabecera = "Cabecera";
inline constexpr std::string_view seccionColores = "Colores";

/// The section of an element: "Mesa(12)".
inline std::string seccionDe(Clase clase, int indice) {
    return std::string(datos(clase).seccion) + "(" + std::to_string(indice) + ")";
}

/// Calls `paso(clave, contador)` for every counter in the order of the file.
template <class D, class Paso>
void porContadores(D& dibujo, Paso paso) {
    for (const Clase clase : ordenDeContadores())
        conColeccion(dibujo, clase,
                     [&](auto& coleccion) { paso(datos(clase).contador, coleccion.contador); });
}

// clang-format off
inline constexpr std::tuple camposHoja{
    Campo{"FactorZoomActual", &Dibujo::FactorZoomActual, "0.5", RealNormalizado{}},
    Campo{"AnchoAreaDibujo",  [](auto& dibujo) -> auto& { return dibujo.Hoja.Width; }, "10000"},
    Campo{"AltoAreaDibujo",   [](auto& dibujo) -> auto& { return dibujo.Hoja.Height; }, "10000"},
    Campo{"Cuadricula",       &Dibujo::Cuadricula, "100"},
    Campo{"Iman",             &Dibujo::Iman, "Verdadero"},
    Campo{"VerCuadricula",    &Dibujo::VerCuadricula, "Verdadero"},
    Campo{"TotalGrupos",      &Dibujo::TotalGrupos, "0"},
    Campo{"DistParalela",     &Dibujo::DistParalela, "1"},
};

inline constexpr std::tuple camposModelos{
    Campo{"ColorParedes",     [](auto& dibujo) -> auto& { return dibujo.Pared.modelo().LineColor; }, "0"},
    Campo{"ColorCarpinteria", [](auto& dibujo) -> auto& { return dibujo.Puerta.modelo().LineColor; }, "0"},
    Campo{"ColorTextos",      [](auto& dibujo) -> auto& { return dibujo.TextoLibre.modelo().ForeColor; }, "0"},
};

/// Doors and windows share one key: written from the doors, read for both.
inline constexpr std::tuple camposModeloVentana{
    Campo{"ColorCarpinteria", [](auto& dibujo) -> auto& { return dibujo.Ventana.modelo().LineColor; }, "0"},
};

inline constexpr std::tuple camposColores{
    Campo{"Esquema", &Dibujo::Esquema, "Blanco y Negro"},
    Campo{"Perfil",  &Dibujo::Perfil, ""},
};

// What elements with a place of their own share.
inline constexpr Campo campoLeft       {"Left",        &Elemento::Left};
inline constexpr Campo campoTop        {"Top",         &Elemento::Top};
inline constexpr Campo campoFactorZOOM {"FactorZOOM",  &Elemento::FactorZOOM, std::nullopt, RealNormalizado{}};
inline constexpr Campo campoOrientacion{"Orientacion", [](auto& elemento) -> auto& { return elemento.Orientacion; }};
inline constexpr Campo campoVisible    {"Visible",     &Elemento::Visible};
inline constexpr Campo campoLineColor  {"LineColor",   &Elemento::LineColor, "0"};
inline constexpr Campo campoBackColor  {"BackColor",   &ElementoConFondo::BackColor, "16777215"};

inline constexpr std::tuple camposSinFondo{
    campoLeft, campoTop, campoFactorZOOM, campoOrientacion, campoVisible, campoLineColor,
};
inline constexpr std::tuple camposConFondo = std::tuple_cat(camposSinFondo, std::tuple{campoBackColor});

/// The table of each kind.
template <class T>
inline constexpr auto camposDe = nullptr;

/// The one kind with a place and sizes of its own where the file tells none.
template <>
inline constexpr auto camposDe<MblMesa> = std::tuple{
    Campo{"Left",             &MblMesa::Left, "0"},
    Campo{"Top",              &MblMesa::Top, "0"},
    Campo{"AltoSilla",        &MblMesa::AltoSilla, "300"},
    Campo{"AnchoSilla",       &MblMesa::AnchoSilla, "400"},
    Campo{"ColocacionSillas", &MblMesa::ColocacionSillas, "4RLUD"},
    campoFactorZOOM,
    Campo{"MesaDimX",         &MblMesa::MesaDimX, "1000"},
    Campo{"MesaDimY",         &MblMesa::MesaDimY, "1000"},
    campoVisible, campoLineColor, campoBackColor,
};

template <>
inline constexpr auto camposDe<MblSilla> = std::tuple{
    campoLeft, campoTop,
    Campo{"AnchoSilla", &MblSilla::AnchoSilla},
    campoFactorZOOM, campoOrientacion, campoVisible, campoLineColor, campoBackColor,
};

template <> inline constexpr auto camposDe<MblCama90>  = camposConFondo;
template <> inline constexpr auto camposDe<MblCama130> = camposConFondo;

template <>
inline constexpr auto camposDe<MblArmario> = std::tuple{
    campoLeft, campoTop, campoFactorZOOM,
    Campo{"DimX", &MblArmario::DimX},
    Campo{"DimY", &MblArmario::DimY},
    campoVisible, campoLineColor, campoBackColor,
};

template <>
inline constexpr auto camposDe<MblAsiento> = std::tuple{
    campoLeft, campoTop, campoFactorZOOM,
    Campo{"AnchoAsiento",   &MblAsiento::AnchoAsiento},
    Campo{"FondoAsiento",   &MblAsiento::FondoAsiento},
    Campo{"NumeroAsientos", &MblAsiento::NumeroAsientos},
    campoOrientacion, campoVisible, campoLineColor, campoBackColor,
};

template <> inline constexpr auto camposDe<MblInodoro> = camposSinFondo;
template <> inline constexpr auto camposDe<MblLavabo>  = camposSinFondo;
template <> inline constexpr auto camposDe<MblBidet>   = camposSinFondo;

template <>
inline constexpr auto camposDe<MblBañera> = std::tuple{
    campoLeft, campoTop, campoFactorZOOM,
    Campo{"Longitud", &MblBañera::Longitud},
    campoOrientacion, campoVisible, campoLineColor,
};

template <> inline constexpr auto camposDe<MblDucha>    = camposSinFondo;
template <> inline constexpr auto camposDe<MblUrinario> = camposSinFondo;
template <> inline constexpr auto camposDe<MblCocina>   = camposConFondo;
template <> inline constexpr auto camposDe<MblNevera>   = camposConFondo;

template <>
inline constexpr auto camposDe<MblFregadero> = std::tuple{
    campoLeft, campoTop, campoFactorZOOM, campoOrientacion,
    Campo{"Escurridor",  &MblFregadero::Escurridor, "Verdadero", UnoOCero{}},
    Campo{"NumeroSenos", &MblFregadero::NumeroSenos},
    campoVisible, campoLineColor, campoBackColor,
};

template <> inline constexpr auto camposDe<MblLavadora>  = camposConFondo;
template <> inline constexpr auto camposDe<MblLavadero>  = camposConFondo;
template <> inline constexpr auto camposDe<MblVertedero> = camposConFondo;

template <>
inline constexpr auto camposDe<Pared> = std::tuple{
    Campo{"AnchoMuro",    &Pared::AnchoMuro},
    Campo{"AnchoTabique", &Pared::AnchoTabique},
    Campo{"Angulo",       &Pared::Angulo},
    Campo{"InicialX",     &Pared::InicialX},
    Campo{"InicialY",     &Pared::InicialY},
    Campo{"Longitud",     &Pared::Longitud},
    Campo{"NumeroGrupo",  &Pared::NumeroGrupo},
    Campo{"Tipo",         &Pared::Tipo},
    Campo{"Estado",       &Pared::Estado},
};

/// The long sides stand in the file whole, since a join of walls changes them.
inline constexpr std::tuple camposLineasPared{
    Campo{"Linea1X1", &Pared::InicialX},
    Campo{"Linea1Y1", &Pared::InicialY},
    Campo{"Linea1X2", &Pared::Linea1X2},
    Campo{"Linea1Y2", &Pared::Linea1Y2},
    Campo{"Linea3X1", &Pared::Linea3X1},
    Campo{"Linea3Y1", &Pared::Linea3Y1},
    Campo{"Linea3X2", &Pared::Linea3X2},
    Campo{"Linea3Y2", &Pared::Linea3Y2},
    Campo{"Visible1", &Pared::Visible1, "Verdadero"},
    Campo{"Visible2", &Pared::Visible2, "Verdadero"},
};

inline constexpr auto camposParedEntera = std::tuple_cat(camposDe<Pared>, camposLineasPared);

/// An opening's lines do not stand in the file: they follow from its wall.
inline constexpr std::tuple camposAbertura{
    Campo{"Alineacion",        &Abertura::Alineacion},
    Campo{"AnchoMuro",         &Abertura::AnchoMuro},
    Campo{"AnchoTabique",      &Abertura::AnchoTabique},
    Campo{"Angulo",            &Abertura::Angulo},
    Campo{"Distancia",         &Abertura::Distancia},
    Campo{"Estado",            &Abertura::Estado},
    Campo{"GrupoInicialPared", &Abertura::GrupoInicialPared},
    Campo{"Longitud",          &Abertura::Longitud},
    Campo{"NumeroPared",       &Abertura::NumeroPared},
    Campo{"Orientacion",       &Abertura::Orientacion},
};

template <>
inline constexpr auto camposDe<Ventana> =
    std::tuple_cat(camposAbertura, std::tuple{Campo{"Tipo", &Ventana::Tipo}});
template <>
inline constexpr auto camposDe<Puerta> =
    std::tuple_cat(camposAbertura, std::tuple{Campo{"OrientacionLateral", &Puerta::OrientacionLateral}});

template <>
inline constexpr auto camposDe<TextoLibre> = std::tuple{
    Campo{"Left", &TextoLibre::Left},
    Campo{"Top",  &TextoLibre::Top},
    Campo{"Text", &TextoLibre::Text},
};

template <std::size_t tramo>
inline constexpr auto anchoDeTramo = [](auto& escalera) -> auto& { return escalera.WidthStair[tramo]; };
template <std::size_t tramo>
inline constexpr auto peldanosDeTramo = [](auto& escalera) -> auto& { return escalera.StepsStair[tramo]; };
template <std::size_t lado>
inline constexpr auto barandaDeLado = [](auto& escalera) -> auto& { return escalera.RailingSide[lado]; };

template <>
inline constexpr auto camposDe<Escalera> = std::tuple_cat(camposSinFondo, std::tuple{
    Campo{"Angle",        &Escalera::Angle},
    Campo{"Stairs",       &Escalera::Stairs},
    Campo{"StairEye",     &Escalera::StairEye},
    Campo{"WidthSteps",   &Escalera::WidthSteps},
    Campo{"WidthStair1",  anchoDeTramo<0>},
    Campo{"WidthStair2",  anchoDeTramo<1>},
    Campo{"WidthStair3",  anchoDeTramo<2>},
    Campo{"StepsStair1",  peldanosDeTramo<0>},
    Campo{"StepsStair2",  peldanosDeTramo<1>},
    Campo{"StepsStair3",  peldanosDeTramo<2>},
    Campo{"RailingSide1", barandaDeLado<0>, std::nullopt, BooleanoDelIdioma{}},
    Campo{"RailingSide2", barandaDeLado<1>, std::nullopt, BooleanoDelIdioma{}},
    Campo{"RailingSide3", barandaDeLado<2>, std::nullopt, BooleanoDelIdioma{}},
});

/// The script of a symbol does not stand in the file: it follows from its name.
template <>
inline constexpr auto camposDe<Electrico> = std::tuple{
    campoLeft, campoTop,
    Campo{"ObjectType", &Electrico::ObjectType},
    Campo{"RectX",      &Electrico::RectX},
    Campo{"RectY",      &Electrico::RectY},
    campoFactorZOOM, campoVisible, campoLineColor,
    Campo{"Angle",      &Electrico::Angle, std::nullopt, RealNormalizadoAlEscribir{}},
};
// clang-format on

/// All that stands in the section of an element.
template <class T>
inline constexpr const auto& camposDeSeccion = camposDe<T>;
template <>
inline constexpr const auto& camposDeSeccion<Pared> = camposParedEntera;

}  // namespace bosquel
