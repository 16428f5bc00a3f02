#include "surface/primitivas.h"

#include "model/numeros.h"

#include <cmath>

namespace bosquel {

namespace {

struct Punto {
    float x, y;
};

void rayar(SuperficieSalida& superficie, Punto desde, Punto hasta, Color color) {
    if (std::isfinite(desde.x) && std::isfinite(desde.y) && std::isfinite(hasta.x) && std::isfinite(hasta.y))
        superficie.Line(desde.x, desde.y, hasta.x, hasta.y, color);
}

}  // namespace

void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color, double EscalaSalida,
                    Trazo trazo) {
    const Punto desde{simple(segmento.X1 * EscalaSalida), simple(segmento.Y1 * EscalaSalida)};
    const Punto hasta{simple(segmento.X2 * EscalaSalida), simple(segmento.Y2 * EscalaSalida)};
    if (trazo == Trazo::continuo) return rayar(superficie, desde, hasta, color);
    const double dx = redondear((static_cast<double>(segmento.X2) - segmento.X1) / 7);
    const double dy = redondear((static_cast<double>(segmento.Y2) - segmento.Y1) / 7);
    const auto punto = [&](int n) { return Punto{simple(desde.x + n * dx), simple(desde.y + n * dy)}; };
    for (const int n : {0, 2, 4})
        rayar(superficie, punto(n), punto(n + 1), color);
    rayar(superficie, punto(6), hasta, color);
}

}  // namespace bosquel
