#include "surface/superficie_salida.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace bosquel {

namespace {

bool finitos(std::initializer_list<double> valores) {
    return std::all_of(valores.begin(), valores.end(), [](double valor) { return std::isfinite(valor); });
}

}  // namespace

void SuperficieSalida::Line(double x1, double y1, double x2, double y2, Color color) {
    if (finitos({x1, y1, x2, y2})) trazarLinea(x1, y1, x2, y2, color);
}

void SuperficieSalida::Caja(double x1, double y1, double x2, double y2, Color color) {
    if (finitos({x1, y1, x2, y2})) trazarCaja(x1, y1, x2, y2, color);
}

void SuperficieSalida::Circle(const Curva& curva, Color color) {
    const Arco arco = curva.arco.value_or(Arco{});
    const bool finita = finitos({curva.x, curva.y, curva.radio, curva.aspecto, arco.inicio, arco.fin});
    if (finita && curva.radio >= 0 && curva.aspecto > 0) trazarCurva(curva, color);
}

}  // namespace bosquel
