#include "stairs_symbols/catalogo.h"

#include <algorithm>
#include <array>

namespace bosquel {

namespace {

struct Simbolo {
    std::string_view nombre;
    std::array<std::string_view, 6> lineas;
};

// clang-format off
constexpr std::array<Simbolo, 10> catalogo{{
    {"Punto de Luz", {
        "CIRCLE(Redondel, [125|125], 70)",
        "LINE(L1, [12|12], 315, 90)",
        "LINE(L2, [12|238], 45, 90)",
        "LINE(L3, [238|12], 225, 90)",
        "LINE(L4, [238|238], 135, 90)",
        "MASKRECT(Alrededor, [0|0], 250, 250, 0)",
    }},
    {"Interruptor", {
        "CIRCLE(Redondel, [50|50], 50)",
        "LINE(L1, [85|85], 315, 120)",
        "LINE(L2, [L1_B], 45, 70)",
        "MASKRECT(Alrededor, [0|0], 200, 200, 0)",
    }},
    {"Conmutador", {
        "CIRCLE(Redondel, [100|100], 40)",
        "LINE(L1, [130|130], 315, 60)",
        "LINE(L2, [L1_B], 45, 60)",
        "LINE(L3, [30|30], 315, 60)",
        "LINE(L4, [L3_A], 225, 60)",
        "MASKRECT(Alrededor, [0|0], 200, 200, 0)",
    }},
    {"Enchufe", {
        "ARC(A1, [80|5], 80, 180, 0)",
        "LINE(L1, [80|180], 90, 95)",
        "MASKRECT(Alrededor, [0|0], 160, 180, 0)",
    }},
    {"Enchufe de Fuerza", {
        "ARC(A1, [80|5], 80, 180, 0)",
        "LINE(L1, [80|180], 90, 95)",
        "LINE(L2, [10|100], 0, 140)",
        "LINE(L3, [10|140], 0, 140)",
        "MASKRECT(Alrededor, [0|0], 160, 180, 0)",
    }},
    {"Enchufe Trifásico", {
        "ARC(A1, [80|5], 80, 180, 0)",
        "LINE(L1, [80|180], 90, 95)",
        "LINE(L2, [10|90], 0, 140)",
        "LINE(L3, [10|130], 0, 140)",
        "LINE(L4, [10|170], 0, 140)",
        "MASKRECT(Alrededor, [0|0], 160, 180, 0)",
    }},
    {"Pulsador", {
        "CIRCLE(Exterior, [75|75], 75)",
        "CIRCLE(Interior, [75|75], 30)",
    }},
    {"Señal TV", {
        "CIRCLE(Exterior, [100|100], 100)",
        "LINE(T1, [40|60], 0, 50)",
        "LINE(T2, [65|60], 270, 85)",
        "LINE(V1, [100|60], 282, 85)",
        "LINE(V2, [140|60], 258, 85)",
    }},
    {"Señal Teléfono", {
        "CIRCLE(Exterior, [100|100], 100)",
        "LINE(T1, [80|60], 0, 50)",
        "LINE(T2, [105|60], 270, 85)",
    }},
    {"Cuadro Eléctrico", {
        "RECT(Exterior, [0|0], 325, 165, 0)",
        "RECT(Interior, [25|25], 270, 110, 0)",
        "LINE(Diagonal, [25|135], 22, 288)",
    }},
}};
// clang-format on

}  // namespace

std::string DrawObjects(std::string_view simbolo) {
    const auto fila = std::find_if(catalogo.begin(), catalogo.end(),
                                   [&](const Simbolo& uno) { return uno.nombre == simbolo; });
    if (fila == catalogo.end()) return {};
    std::string guion;
    for (const std::string_view linea : fila->lineas) {
        if (linea.empty()) break;
        if (!guion.empty()) guion += "\r\n";
        guion += linea;
    }
    return guion;
}

void ponerSimbolo(Electrico& electrico, std::string_view simbolo) {
    electrico.ObjectType = simbolo;
    electrico.Guion = DrawObjects(simbolo);
}

}  // namespace bosquel
