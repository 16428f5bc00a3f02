#include "model/clases.h"

#include <algorithm>

namespace bosquel {

namespace {

using enum Clase;
using enum Grupo;
using enum DobleClic;

// clang-format off
constexpr std::array<DatosClase, numeroDeClases> tabla{{
    {MblMesa,      "MblMesa",      "Mesa",       "NumMesa",      BttMueble,    0, "MesaProp",      diferido, 0, false, false, false},
    {MblSilla,     "MblSilla",     "Silla",      "NumSilla",     BttMueble,    1, "SillaProp",     diferido, 0, false, false, false},
    {MblCama90,    "MblCama90",    "Cama90",     "NumCama90",    BttMueble,    2, "Cama90Prop",    enElActo, 0, false, false, false},
    {MblCama130,   "MblCama130",   "Cama130",    "NumCama130",   BttMueble,    3, "Cama130Prop",   enElActo, 0, false, false, false},
    {MblArmario,   "MblArmario",   "Armario",    "NumArmario",   BttMueble,    4, "ArmarioProp",   enElActo, 0, false, false, false},
    {MblAsiento,   "MblAsiento",   "Asiento",    "NumAsiento",   BttMueble,    5, "AsientoProp",   diferido, 0, false, false, false},
    {MblInodoro,   "MblInodoro",   "Inodoro",    "NumInodoro",   BttBaño,      0, "InodoroProp",   enElActo, 0, false, false, false},
    {MblLavabo,    "MblLavabo",    "Lavabo",     "NumLavabo",    BttBaño,      1, "LavaboProp",    enElActo, 0, false, false, false},
    {MblBidet,     "MblBidet",     "Bidet",      "NumBidet",     BttBaño,      2, "BidetProp",     enElActo, 0, false, false, false},
    {MblBañera,    "MblBañera",    "Bañera",     "NumBañera",    BttBaño,      3, "BañeraProp",    enElActo, 0, false, false, false},
    {MblDucha,     "MblDucha",     "Ducha",      "NumDucha",     BttBaño,      4, "DuchaProp",     enElActo, 0, false, false, false},
    {MblUrinario,  "MblUrinario",  "Urinario",   "NumUrinario",  BttBaño,      5, "UrinarioProp",  enElActo, 0, false, false, false},
    {MblCocina,    "MblCocina",    "Cocina",     "NumCocina",    BttCocina,    1, "CocinaProp",    enElActo, 0, false, false, false},
    {MblNevera,    "MblNevera",    "Nevera",     "NumNevera",    BttCocina,    0, "NeveraProp",    enElActo, 0, false, false, false},
    {MblFregadero, "MblFregadero", "Fregadero",  "NumFregadero", BttCocina,    2, "FregaderoProp", enElActo, 0, false, false, false},
    {MblLavadora,  "MblLavadora",  "Lavadora",   "NumLavadora",  BttCocina,    3, "LavadoraProp",  enElActo, 0, false, false, false},
    {MblLavadero,  "MblLavadero",  "Lavadero",   "NumLavadero",  BttCocina,    4, "LavaderoProp",  enElActo, 0, false, false, false},
    {MblVertedero, "MblVertedero", "Vertedero",  "NumVertedero", BttCocina,    5, "VertederoProp", enElActo, 0, false, false, false},
    {Pared,        "Pared",        "Pared",      "NumPared",     BttUsuario,   0, "ParedProp",     enFlecha, 1, false, false, false},
    {Ventana,      "Ventana",      "Ventana",    "NumVentana",   BttUsuario,   5, "VentanaProp",   enFlecha, 1, false, false, false},
    {Puerta,       "Puerta",       "Puerta",     "NumPuerta",    BttUsuario,   4, "PuertaProp",    enFlecha, 1, false, false, false},
    {TextoLibre,   "TextoLibre",   "TextoLibre", "NumTexto",     BttUsuario,   3, "",              nada,     0, false, false, true},
    {Escalera,     "Escalera",     "Escalera",   "NumEscalera",  BttTipo,      4, "EscaleraProp",  enFlecha, 0, true,  true,  true},
    {Electrico,    "Electrico",    "Electrico",  "NumElectrico", BttElectrico, 0, "ElectricoProp", diferido, 0, false, true,  false},
}};
// clang-format on

constexpr auto enOrdenDeEliminar = [] {
    std::array<Clase, numeroDeClases> orden{};
    for (std::size_t i = 0; i < numeroDeClases; ++i)
        orden[i] = tabla[i].clase;
    const auto pared = std::find(orden.begin(), orden.end(), Pared);
    std::rotate(pared, pared + 1, pared + 3);
    return orden;
}();

constexpr auto enOrdenDeContadores = [] {
    std::array<Clase, numeroDeClases + 1> orden{};
    std::size_t n = 0;
    for (const DatosClase& fila : tabla) {
        if (fila.clase == MblLavabo) orden[n++] = MblBidet;
        orden[n++] = fila.clase;
    }
    return orden;
}();

}  // namespace

const DatosClase& datos(Clase clase) {
    return tabla[static_cast<std::size_t>(clase)];
}

const std::array<DatosClase, numeroDeClases>& todasLasClases() {
    return tabla;
}

const std::array<Clase, numeroDeClases>& ordenDeEliminar() {
    return enOrdenDeEliminar;
}

const std::array<Clase, numeroDeClases + 1>& ordenDeContadores() {
    return enOrdenDeContadores;
}

}  // namespace bosquel
