#include "surface/superficie_pixeles.h"

#include <algorithm>
#include <cmath>

namespace bosquel {

namespace {

/// Narrows [desde, hasta], a stretch of the line by its parameter, to where `inicio` + t `paso` is not above
/// the reach. False if nothing is left.
bool acotar(double inicio, double paso, double& desde, double& hasta) {
    if (paso == 0) return inicio <= Trama::lejos;
    const double t = (Trama::lejos - inicio) / paso;
    if (paso > 0)
        hasta = std::min(hasta, t);
    else
        desde = std::max(desde, t);
    return desde <= hasta;
}

bool dentroDe(LugarPixeles lugar, double alcance) {
    return std::abs(lugar.x) <= alcance && std::abs(lugar.y) <= alcance;
}

TramoPixeles enteros(LugarPixeles desde, LugarPixeles hasta) {
    return {pixelEntero(desde.x), pixelEntero(desde.y), pixelEntero(hasta.x), pixelEntero(hasta.y)};
}

}  // namespace

int pixelEntero(double coordenada) {
    return pixelCercano(std::max<double>(-Trama::lejos, std::min<double>(Trama::lejos, coordenada)));
}

bool alAlcance(LugarPixeles lugar) {
    return dentroDe(lugar, Trama::lejosCurva);
}

std::optional<TramoPixeles> recortar(LugarPixeles desde, LugarPixeles hasta) {
    if (dentroDe(desde, Trama::lejos) && dentroDe(hasta, Trama::lejos)) return enteros(desde, hasta);
    const double dx = hasta.x - desde.x;
    const double dy = hasta.y - desde.y;
    double inicio = 0;
    double fin = 1;
    const bool queda = acotar(desde.x, dx, inicio, fin) && acotar(-desde.x, -dx, inicio, fin) &&
                       acotar(desde.y, dy, inicio, fin) && acotar(-desde.y, -dy, inicio, fin);
    if (!queda) return std::nullopt;
    return enteros({desde.x + inicio * dx, desde.y + inicio * dy}, {desde.x + fin * dx, desde.y + fin * dy});
}

void SuperficiePixeles::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    const auto tramo = recortar(enPixeles(x1, y1), enPixeles(x2, y2));
    if (tramo) trama_.linea(tramo->x1, tramo->y1, tramo->x2, tramo->y2, tinta(color));
}

void SuperficiePixeles::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    const TramoPixeles esquinas = enteros(enPixeles(x1, y1), enPixeles(x2, y2));
    const ZonaPixeles caja = entre(esquinas.x1, esquinas.y1, esquinas.x2, esquinas.y2);
    if (relleno_ == Relleno::solido)
        trama_.rellenar({caja.x1 + 1, caja.y1 + 1, caja.x2 - 1, caja.y2 - 1}, fondo_);
    trama_.enmarcar(caja, tinta(color));
}

void SuperficiePixeles::trazarCurva(const Curva& curva, Color color) {
    const LugarPixeles centro = enPixeles(curva.x, curva.y);
    if (!alAlcance(centro) || !alAlcance({curva.ejeX() * escala_, curva.ejeY() * escala_})) return;
    const Curva enPixeles{centro.x, centro.y, curva.radio * escala_, curva.arco, curva.aspecto};
    if (!curva.arco && relleno_ == Relleno::solido) trama_.rellenarCurva(enPixeles, fondo_);
    trama_.curva(enPixeles, tinta(color));
}

}  // namespace bosquel
