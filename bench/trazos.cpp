#include "trazos.h"

#include "ui/color_qt.h"

#include <QtMath>
#include <algorithm>
#include <cmath>

namespace bosquel::bench {

namespace {

/// The pixels between two corners, both included.
QRect entre(QPoint una, QPoint otra) {
    return {QPoint(std::min(una.x(), otra.x()), std::min(una.y(), otra.y())),
            QPoint(std::max(una.x(), otra.x()), std::max(una.y(), otra.y()))};
}

}  // namespace

Trazos::Trazos(const Calco& calco, double escala) : escala_(escala), cuantos_(calco.trazos.size()) {
    for (const Calco::Trazo& trazo : calco.trazos)
        std::visit([&](const auto& forma) { anadir(forma, trazo); }, trazo.forma);
}

int Trazos::pixel(double unidades) const {
    return static_cast<int>(std::lround(unidades * escala_));
}

Trazos::Tanda& Trazos::tanda(Color color) {
    auto* ultima = pasos_.empty() ? nullptr : std::get_if<Tanda>(&pasos_.back());
    if (ultima && ultima->color == color) return *ultima;
    pasos_.push_back(Tanda{color, {}, {}, {}});
    return std::get<Tanda>(pasos_.back());
}

void Trazos::anadir(const Calco::Recta& recta, const Calco::Trazo& trazo) {
    const QPoint desde(pixel(recta.x1), pixel(recta.y1));
    const QPoint hasta(pixel(recta.x2), pixel(recta.y2));
    Tanda& suya = tanda(trazo.color);
    if (desde.x() == hasta.x() || desde.y() == hasta.y())
        suya.rectas.push_back(entre(desde, hasta));
    else
        suya.oblicuas.emplace_back(desde, hasta);
}

void Trazos::anadir(const Calco::Caja& esquinas, const Calco::Trazo& trazo) {
    const QRect caja =
        entre({pixel(esquinas.x1), pixel(esquinas.y1)}, {pixel(esquinas.x2), pixel(esquinas.y2)});
    if (trazo.fondo) {
        pasos_.push_back(Mancha{caja, *trazo.fondo, trazo.color});
        return;
    }
    Tanda& suya = tanda(trazo.color);
    for (const QRect& lado :
         {QRect(caja.topLeft(), caja.topRight()), QRect(caja.bottomLeft(), caja.bottomRight()),
          QRect(caja.topLeft(), caja.bottomLeft()), QRect(caja.topRight(), caja.bottomRight())})
        suya.rectas.push_back(lado);
}

void Trazos::anadir(const Curva& curva, const Calco::Trazo& trazo) {
    const double inicio = curva.arco ? curva.arco->inicio : 0;
    double abertura = curva.arco ? curva.arco->fin - curva.arco->inicio : 2 * M_PI;
    if (abertura <= 0) abertura += 2 * M_PI;
    // A corner at every third pixel or so.
    const double ejeX = curva.ejeX() * escala_;
    const double ejeY = curva.ejeY() * escala_;
    const int lados = std::clamp(static_cast<int>(abertura * std::max(ejeX, ejeY) / 3), 4, 200);
    QPolygon linea;
    for (int i = 0; i <= lados; ++i) {
        const double t = inicio + abertura * i / lados;
        linea << QPoint(static_cast<int>(std::lround(curva.x * escala_ + ejeX * std::cos(t))),
                        static_cast<int>(std::lround(curva.y * escala_ - ejeY * std::sin(t))));
    }
    tanda(trazo.color).curvas.push_back(linea);
}

void Trazos::pintar(QPainter& pintor) const {
    for (const auto& paso : pasos_) {
        if (const auto* mancha = std::get_if<Mancha>(&paso)) {
            pintor.fillRect(mancha->caja, colorQt(mancha->borde));
            pintor.fillRect(mancha->caja.adjusted(1, 1, -1, -1), colorQt(mancha->fondo));
            continue;
        }
        const auto& suya = std::get<Tanda>(paso);
        const QColor color = colorQt(suya.color);
        for (const QRect& recta : suya.rectas)
            pintor.fillRect(recta, color);
        if (suya.oblicuas.empty() && suya.curvas.empty()) continue;
        pintor.setPen(color);
        if (!suya.oblicuas.empty())
            pintor.drawLines(suya.oblicuas.data(), static_cast<int>(suya.oblicuas.size()));
        for (const QPolygon& curva : suya.curvas)
            pintor.drawPolyline(curva);
    }
}

}  // namespace bosquel::bench
