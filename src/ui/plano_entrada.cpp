#include "ui/plano_entrada.h"

#include <QLineF>
#include <QList>
#include <QPainter>
#include <algorithm>

namespace bosquel {

namespace {

// A dwelling of two rooms and a bath, 12.4 m by 5 m, in metres from its top left corner.
constexpr double ancho = 12.4, alto = 5;

// clang-format off
const QList<QLineF> muros = {
    // outer face, broken by three windows and the door of the house
    {0, 0, 1.2, 0}, {3.2, 0, 5.8, 0}, {7.8, 0, 9.8, 0}, {11.2, 0, 12.4, 0}, {12.4, 0, 12.4, 5},
    {12.4, 5, 6.4, 5}, {5.4, 5, 0, 5}, {0, 5, 0, 0},
    // bedroom
    {.2, .2, 1.2, .2}, {3.2, .2, 4.6, .2}, {4.6, .2, 4.6, 3.2}, {4.6, 4.2, 4.6, 4.8},
    {4.6, 4.8, .2, 4.8}, {.2, 4.8, .2, .2},
    // living room
    {4.7, .2, 5.8, .2}, {7.8, .2, 9, .2}, {9, .2, 9, 3.4}, {9, 4.4, 9, 4.8},
    {9, 4.8, 6.4, 4.8}, {5.4, 4.8, 4.7, 4.8}, {4.7, 4.8, 4.7, 4.2}, {4.7, 3.2, 4.7, .2},
    // bath
    {9.1, .2, 9.8, .2}, {11.2, .2, 12.2, .2}, {12.2, .2, 12.2, 4.8},
    {12.2, 4.8, 9.1, 4.8}, {9.1, 4.8, 9.1, 4.4}, {9.1, 3.4, 9.1, .2},
    // reveals of windows and doors
    {1.2, 0, 1.2, .2}, {3.2, 0, 3.2, .2}, {5.8, 0, 5.8, .2}, {7.8, 0, 7.8, .2}, {9.8, 0, 9.8, .2}, {11.2, 0, 11.2, .2},
    {4.6, 3.2, 4.7, 3.2}, {4.6, 4.2, 4.7, 4.2}, {5.4, 5, 5.4, 4.8}, {6.4, 5, 6.4, 4.8}, {9, 3.4, 9.1, 3.4}, {9, 4.4, 9.1, 4.4},
};

const QList<QLineF> carpinteria = {
    // panes
    {1.2, .1, 3.2, .1}, {5.8, .1, 7.8, .1}, {9.8, .1, 11.2, .1},
    // leaves
    {4.6, 4.2, 3.6, 4.2}, {5.4, 4.8, 5.4, 3.8}, {9.1, 4.4, 10.1, 4.4},
};

/// A quarter of a circle around a hinge: where a leaf swings. Sixteenths of a degree, from the right upwards.
struct Giro {
    QPointF gozne;
    double hoja = 0;
    int desde = 0;
};
const QList<Giro> giros = {{{4.6, 4.2}, 1, 90 * 16}, {{5.4, 4.8}, 1, 0}, {{9.1, 4.4}, 1, 0}};

const QList<QRectF> muebles = {
    // bed, pillow, wardrobe
    {.2, 1, 2, 1.5}, {.3, 1.1, .45, 1.3}, {.2, 4.2, 2.2, .6},
    // table and four chairs
    {6.1, 1.6, 1.6, .9}, {6.3, 1.05, .4, .4}, {7.1, 1.05, .4, .4},
    {6.3, 2.65, .4, .4}, {7.1, 2.65, .4, .4},
    // bath tub, basin
    {11.5, .4, .7, 1.7}, {11.6, .5, .5, 1.5}, {11.7, 2.9, .5, .6},
};
// clang-format on

}  // namespace

void dibujarPlano(QPainter& pintor, const QRectF& marco, const QColor& tintaMuros,
                  const QColor& tintaMuebles) {
    const double escala = std::min(marco.width() / ancho, marco.height() / alto);
    pintor.save();
    pintor.translate(marco.left() + (marco.width() - ancho * escala) / 2, marco.top());
    pintor.scale(escala, escala);
    const auto pluma = [&](const QColor& color, double grueso) {
        QPen trazo(color, grueso, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        trazo.setCosmetic(true);
        pintor.setPen(trazo);
    };
    pintor.setBrush(Qt::NoBrush);
    pluma(tintaMuebles, 1);
    pintor.drawRects(muebles);
    pintor.drawLines(carpinteria);
    for (const auto& [gozne, hoja, desde] : giros)
        pintor.drawArc(QRectF(gozne - QPointF(hoja, hoja), QSizeF(2 * hoja, 2 * hoja)), desde, 90 * 16);
    pluma(tintaMuros, 1.6);
    pintor.drawLines(muros);
    pintor.restore();
}

}  // namespace bosquel
