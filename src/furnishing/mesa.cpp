#include "furnishing/figuras.h"

#include <algorithm>

namespace bosquel {

namespace {

/// The chairs of a placement code in the order of drawing, by their sides: U top, D bottom, L left, R right.
/// A letter written twice is a pair.
struct Colocacion {
    std::string_view codigo, sillas;
};

// clang-format off
constexpr std::array<Colocacion, 24> PosicionSillas{{
    {"0",       ""},
    {"1L",      "L"},
    {"1R",      "R"},
    {"1U",      "U"},
    {"1D",      "D"},
    {"2UD",     "UD"},
    {"2RL",     "LR"},
    {"2UU",     "UU"},
    {"2DD",     "DD"},
    {"2LL",     "LL"},
    {"2RR",     "RR"},
    {"3RUL",    "LRU"},
    {"3ULD",    "LUD"},
    {"3LDR",    "LDR"},
    {"3DRU",    "UDR"},
    {"4RLUD",   "LRUD"},
    {"4RRLL",   "LLRR"},
    {"4UUDD",   "UUDD"},
    {"5URRLL",  "LLRRU"},
    {"5DRRLL",  "LLRRD"},
    {"5LUUDD",  "UUDDL"},
    {"5RUUDD",  "UUDDR"},
    {"6URRLLD", "LLRRUD"},
    {"6LUUDDR", "UUDDLR"},
}};
// clang-format on

enum class Puesto : std::uint8_t { solo, primero, segundo };

Puesto puesto(std::string_view sillas, std::size_t i) {
    if (i > 0 && sillas[i - 1] == sillas[i]) return Puesto::segundo;
    return i + 1 < sillas.size() && sillas[i + 1] == sillas[i] ? Puesto::primero : Puesto::solo;
}

/// Where a chair of width `AS` begins along a side of length `lado`. A pair has a margin before, between
/// (twice) and after, rounded once.
double aLoLargo(Puesto puesto, double lado, double AS) {
    const double margen = redondear((lado - 2 * AS) / 4);
    switch (puesto) {
        case Puesto::primero: return margen;
        case Puesto::segundo: return 3 * margen + AS;
        case Puesto::solo: break;
    }
    return (lado - AS) / 2;
}

void dibujarMesa(const Pluma& pluma, const MblMesa& mesa, std::string_view sillas) {
    const double MX = pluma.salida().kEntero(mesa.MesaDimX - 20);
    const double MY = pluma.salida().kEntero(mesa.MesaDimY - 20);
    const double AS = pluma.salida().kEntero(mesa.AnchoSilla);
    const double HS = pluma.salida().kEntero(mesa.AltoSilla);
    const auto hay = [&](char lado) { return sillas.find(lado) != std::string_view::npos; };
    const double tx = hay('L') ? HS : 0;
    const double ty = hay('U') ? HS : 0;
    pluma.caja(tx, ty, MX, MY);
    for (std::size_t i = 0; i < sillas.size(); ++i) {
        const double x = tx + aLoLargo(puesto(sillas, i), MX, AS);
        const double y = ty + aLoLargo(puesto(sillas, i), MY, AS);
        switch (sillas[i]) {
            case 'U': pluma.caja(x, 0, AS, HS); break;
            case 'D': pluma.caja(x, ty + MY, AS, HS); break;
            case 'L': pluma.caja(0, y, HS, AS); break;
            default: pluma.caja(tx + MX, y, HS, AS);
        }
    }
}

}  // namespace

void figura(const Pluma& pluma, const MblMesa& mesa) {
    for (const auto& [codigo, sillas] : PosicionSillas)
        if (codigo == mesa.ColocacionSillas) dibujarMesa(pluma, mesa, sillas);
}

}  // namespace bosquel
