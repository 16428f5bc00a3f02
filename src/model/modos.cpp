#include "model/modos.h"

#include <array>
#include <cstddef>

namespace bosquel {

namespace {

struct FilaModo {
    std::string_view texto;
    bool espera;
};

// clang-format off
// In the order of the modes.
constexpr std::array<FilaModo, 12> modos{{
    {"Aspa",         false},
    {"Flecha",       false},
    {"Seleccion",    true},
    {"PrimeraPared", true},
    {"SegundaPared", true},
    {"Union1",       true},
    {"Union2",       true},
    {"Separar",      true},
    {"Pared",        false},
    {"Ventana",      true},
    {"Puerta",       true},
    {"Escalera",     true},
}};
// clang-format on

const FilaModo& fila(Modo modo) {
    return modos[static_cast<std::size_t>(modo)];
}

}  // namespace

std::string_view texto(Modo modo) {
    return fila(modo).texto;
}

bool espera(Modo modo) {
    return fila(modo).espera;
}

}  // namespace bosquel
