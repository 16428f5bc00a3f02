#include "ui/superficie_qt.h"

#include <array>
#include <cmath>

namespace bosquel {

namespace {

/// Pixels: larger than any screen, small enough for every painter.
constexpr double lejos = 20000;

/// Narrows [desde, hasta], a stretch of the line by its parameter, to where `inicio` + t `paso` is not above
/// `lejos`. False if nothing is left.
bool acotar(double inicio, double paso, double& desde, double& hasta) {
    if (paso == 0) return inicio <= lejos;
    const double t = (lejos - inicio) / paso;
    if (paso > 0)
        hasta = std::min(hasta, t);
    else
        desde = std::max(desde, t);
    return desde <= hasta;
}

QPoint enteros(QPointF punto) {
    return {static_cast<int>(std::lround(punto.x())), static_cast<int>(std::lround(punto.y()))};
}

bool cerca(QPointF punto) {
    return std::abs(punto.x()) <= lejos && std::abs(punto.y()) <= lejos;
}

}  // namespace

QColor colorQt(Color color) {
    const auto plano = static_cast<unsigned>(rgb(color));
    return QColor::fromRgb(static_cast<int>(plano & 0xFFU), static_cast<int>((plano >> 8U) & 0xFFU),
                           static_cast<int>((plano >> 16U) & 0xFFU));
}

std::optional<QLine> recortar(QPointF desde, QPointF hasta) {
    if (cerca(desde) && cerca(hasta)) return QLine(enteros(desde), enteros(hasta));
    const QPointF paso = hasta - desde;
    double inicio = 0;
    double fin = 1;
    const bool queda = acotar(desde.x(), paso.x(), inicio, fin) &&
                       acotar(-desde.x(), -paso.x(), inicio, fin) &&
                       acotar(desde.y(), paso.y(), inicio, fin) && acotar(-desde.y(), -paso.y(), inicio, fin);
    if (!queda) return std::nullopt;
    return QLine(enteros(desde + inicio * paso), enteros(desde + fin * paso));
}

void SuperficieQt::Line(float x1, float y1, float x2, float y2, Color color) {
    const auto linea = recortar(origen_ + QPointF(x1, y1) * escala_, origen_ + QPointF(x2, y2) * escala_);
    if (!linea) return;
    pintor_.setPen(QPen(colorQt(color), 1));
    pintor_.drawLine(*linea);
}

}  // namespace bosquel
