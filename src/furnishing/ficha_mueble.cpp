#include "furnishing/ficha_mueble.h"

#include <algorithm>
#include <array>

namespace bosquel {

namespace {

using enum Clase;

template <auto coleccion, auto campo>
auto sitio(Dibujo& dibujo, int indice) -> decltype(&((dibujo.*coleccion).en(indice)->*campo)) {
    auto* elemento = (dibujo.*coleccion).en(indice);
    return elemento ? &(elemento->*campo) : nullptr;
}

// clang-format off
constexpr std::array<CampoMueble, 1> camposSilla{{
    {"TxtSilla", "Medida del lado:", sitio<&Dibujo::MblSilla, &MblSilla::AnchoSilla>},
}};
constexpr std::array<CampoMueble, 2> camposArmario{{
    {"TxtDimX", "Horizontal", sitio<&Dibujo::MblArmario, &MblArmario::DimX>},
    {"TxtDimY", "Vertical",   sitio<&Dibujo::MblArmario, &MblArmario::DimY>},
}};
constexpr std::array<CampoMueble, 2> camposAsiento{{
    {"TxtAncho", "Ancho", sitio<&Dibujo::MblAsiento, &MblAsiento::AnchoAsiento>},
    {"TxtFondo", "Fondo", sitio<&Dibujo::MblAsiento, &MblAsiento::FondoAsiento>},
}};

constexpr std::array<OpcionMueble, 4> deUnoACuatro{{{1, "1", 1}, {2, "2", 2}, {3, "3", 3}, {4, "4", 4}}};
constexpr std::array<OpcionMueble, 3> deUnoATres{{{1, "1", 1}, {2, "2", 2}, {3, "3", 3}}};
constexpr std::array<OpcionMueble, 6> largosDeBañera{{
    {0, "1,00", 1000}, {1, "1,20", 1200}, {2, "1,40", 1400},
    {3, "1,60", 1600}, {4, "1,80", 1800}, {5, "2,00", 2000},
}};

constexpr OpcionesMueble asientos{"Option1", "Número de asientos", deUnoACuatro,
                                  sitio<&Dibujo::MblAsiento, &MblAsiento::NumeroAsientos>};
constexpr OpcionesMueble longitud{"Longitud", "Longitud en metros", largosDeBañera,
                                  sitio<&Dibujo::MblBañera, &MblBañera::Longitud>};
constexpr OpcionesMueble senos{"OptNumSenos", "Número de Senos", deUnoATres,
                               sitio<&Dibujo::MblFregadero, &MblFregadero::NumeroSenos>};

constexpr std::array<CodigoDist, 4> codigosSilla{
    {{"Norte", "Norte"}, {"Este", "Este"}, {"Oeste", "Oeste"}, {"Sur", "Sur"}}};
constexpr std::array<CodigoDist, 4> codigosCama130{
    {{"S", "Sur"}, {"W", "Oeste"}, {"N", "Norte"}, {"E", "Este"}}};
constexpr std::array<CodigoDist, 4> codigosDeLado{
    {{"N", "Norte"}, {"E", "Este"}, {"S", "Sur"}, {"W", "Oeste"}}};
constexpr std::array<CodigoDist, 8> codigosDeMano{{
    {"NR", "Norte, derecha"}, {"NL", "Norte, izquierda"}, {"WU", "Oeste, arriba"}, {"WD", "Oeste, abajo"},
    {"SR", "Sur, derecha"},   {"SL", "Sur, izquierda"},   {"EU", "Este, arriba"},  {"ED", "Este, abajo"},
}};
constexpr std::array<CodigoDist, 3> codigosDucha{
    {{"60", "60 centímetros"}, {"65", "65 centímetros"}, {"70", "70 centímetros"}}};
constexpr std::array<CodigoDist, 2> codigosFogon{{{"50", "50 centímetros"}, {"60", "60 centímetros"}}};

constexpr GrupoDist deSilla{"Orientación", codigosSilla};
constexpr GrupoDist deCama130{"Orientación", codigosCama130};
constexpr GrupoDist deLado{"Orientación", codigosDeLado};
constexpr GrupoDist deMano{"Orientación", codigosDeMano};
constexpr GrupoDist deDucha{"Lado en centímetros", codigosDucha, true};
constexpr GrupoDist deFogon{"Lado en centímetros", codigosFogon, true};

constexpr auto Escurridor = sitio<&Dibujo::MblFregadero, &MblFregadero::Escurridor>;

constexpr std::array<FichaMueble, 17> fichas{{
    {MblSilla,     "Propiedades de silla",     camposSilla,   true,  {},       nullptr,    deSilla},
    {MblCama90,    "Propiedades de cama",      {},            false, {},       nullptr,    deMano},
    {MblCama130,   "Propiedades de Cama",      {},            false, {},       nullptr,    deCama130},
    {MblArmario,   "Propiedades Armario",      camposArmario, false, {},       nullptr,    {}},
    {MblAsiento,   "Propiedades de asientos",  camposAsiento, false, asientos, nullptr,    deLado},
    {MblInodoro,   "Propiedades de Inodoro",   {},            false, {},       nullptr,    deLado},
    {MblLavabo,    "Propiedades de Lavabo",    {},            false, {},       nullptr,    deLado},
    {MblBidet,     "Propiedades Bidet",        {},            false, {},       nullptr,    deLado},
    {MblBañera,    "Propiedades de Bañera",    {},            false, longitud, nullptr,    deLado},
    {MblDucha,     "Propiedades Ducha",        {},            false, {},       nullptr,    deDucha},
    {MblUrinario,  "Propiedades de Urinario",  {},            false, {},       nullptr,    deLado},
    {MblCocina,    "Propiedades Cocina",       {},            false, {},       nullptr,    deFogon},
    {MblNevera,    "Propiedades Nevera",       {},            false, {},       nullptr,    deMano},
    {MblFregadero, "Propiedades de Fregadero", {},            false, senos,    Escurridor, deMano},
    {MblLavadora,  "Propiedades Lavadora",     {},            false, {},       nullptr,    deFogon},
    {MblLavadero,  "Propiedades Lavadero",     {},            false, {},       nullptr,    deLado},
    {MblVertedero, "Propiedades Vertedero",    {},            false, {},       nullptr,    deLado},
}};
// clang-format on

constexpr FichaMueble vacia;

}  // namespace

const FichaMueble& fichaDe(Clase clase) {
    const auto fila = std::find_if(fichas.begin(), fichas.end(),
                                   [=](const FichaMueble& una) { return una.clase == clase; });
    return fila == fichas.end() ? vacia : *fila;
}

}  // namespace bosquel
