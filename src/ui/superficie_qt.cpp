#include "ui/superficie_qt.h"

#include "surface/superficie_pixeles.h"
#include "ui/color_qt.h"

#include <QPainterPath>
#include <QtMath>

namespace bosquel {

namespace {

LugarPixeles lugar(QPointF punto) {
    return {punto.x(), punto.y()};
}

}  // namespace

void SuperficieQt::ponerLapiz(Color color) {
    pintor_.setPen(QPen(colorQt(color), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void SuperficieQt::ponerBrocha() {
    pintor_.setBrush(relleno_ == Relleno::solido ? QBrush(colorQt(colorRelleno_)) : QBrush());
}

void SuperficieQt::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    const LugarPixeles desde = lugar(enPixeles(x1, y1));
    const LugarPixeles hasta = lugar(enPixeles(x2, y2));
    if (!alAlcance(desde) || !alAlcance(hasta)) return;
    ponerLapiz(color);
    pintor_.drawLine(pixelEntero(desde.x), pixelEntero(desde.y), pixelEntero(hasta.x), pixelEntero(hasta.y));
}

void SuperficieQt::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    const LugarPixeles una = lugar(enPixeles(x1, y1));
    const LugarPixeles otra = lugar(enPixeles(x2, y2));
    if (!alAlcance(una) || !alAlcance(otra)) return;
    const ZonaPixeles caja =
        entre(pixelEntero(una.x), pixelEntero(una.y), pixelEntero(otra.x), pixelEntero(otra.y));
    ponerLapiz(color);
    ponerBrocha();
    pintor_.drawRect(caja.x1, caja.y1, caja.x2 - caja.x1, caja.y2 - caja.y1);
}

void SuperficieQt::trazarCurva(const Curva& curva, Color color) {
    const QPointF centro = enPixeles(curva.x, curva.y);
    const QPointF ejes(curva.ejeX() * escala_, curva.ejeY() * escala_);
    if (!alAlcance(lugar(centro)) || !alAlcance(lugar(ejes))) return;
    const QRectF marco(centro - ejes, centro + ejes);
    ponerLapiz(color);
    if (!curva.arco) {
        ponerBrocha();
        return pintor_.drawEllipse(marco);
    }
    const double inicio = qRadiansToDegrees(curva.arco->inicio);
    double abertura = qRadiansToDegrees(curva.arco->fin) - inicio;
    if (abertura <= 0) abertura += 360;
    QPainterPath camino;
    camino.arcMoveTo(marco, inicio);
    camino.arcTo(marco, inicio, abertura);
    pintor_.strokePath(camino, pintor_.pen());
}

}  // namespace bosquel
