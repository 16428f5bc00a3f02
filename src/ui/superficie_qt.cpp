#include "ui/superficie_qt.h"

#include "ui/pixeles_curva.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>
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

QPen lapiz(Color color) {
    return {colorQt(color), 1, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin};
}

bool cerca(QPointF punto) {
    return std::abs(punto.x()) <= lejos && std::abs(punto.y()) <= lejos;
}

/// The nearest place that a painter can take.
QPointF acercado(QPointF punto) {
    return {std::clamp(punto.x(), -lejos, lejos), std::clamp(punto.y(), -lejos, lejos)};
}

}  // namespace

QColor colorQt(Color color) {
    const auto plano = static_cast<unsigned>(rgb(color));
    return QColor::fromRgb(static_cast<int>(plano & 0xFFU), static_cast<int>((plano >> 8U) & 0xFFU),
                           static_cast<int>((plano >> 16U) & 0xFFU));
}

Color colorDe(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

QFont fuenteTexto(double puntos, double escala) {
    QFont letra(QStringLiteral("sans-serif"));
    letra.setStyleHint(QFont::SansSerif);
    constexpr double sinDesbordar = 1e5;
    letra.setPixelSize(
        static_cast<int>(std::lround(std::clamp(puntos * unidadesPorPunto * escala, 1.0, sinDesbordar))));
    return letra;
}

QFont sinSuavizar(QFont letra) {
    letra.setStyleStrategy(QFont::NoAntialias);
    letra.setHintingPreference(QFont::PreferFullHinting);
    return letra;
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

QRect entre(QPoint una, QPoint otra) {
    return {QPoint(std::min(una.x(), otra.x()), std::min(una.y(), otra.y())),
            QPoint(std::max(una.x(), otra.x()), std::max(una.y(), otra.y()))};
}

/// A painter takes long over a change of pen, and most strokes have the colour of the one before.
void SuperficieQt::ponerLapiz(Color color) {
    if (color == lapiz_) return;
    lapiz_ = color;
    pintor_.setPen(lapiz(color));
}

void SuperficieQt::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    const auto linea = recortar(enPixeles(x1, y1), enPixeles(x2, y2));
    if (!linea) return;
    // The same pixels as a filled rectangle, much sooner.
    const bool recta = linea->dx() == 0 || linea->dy() == 0;
    if (recta && !suave()) return pintor_.fillRect(entre(linea->p1(), linea->p2()), colorQt(tinta(color)));
    ponerLapiz(tinta(color));
    pintor_.drawLine(*linea);
}

void SuperficieQt::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    const QRect caja = entre(enteros(acercado(enPixeles(x1, y1))), enteros(acercado(enPixeles(x2, y2))));
    if (!suave()) return trazarCajaEnPixeles(caja, color);
    ponerLapiz(tinta(color));
    pintor_.setBrush(brocha());
    pintor_.drawRect(caja.adjusted(0, 0, -1, -1));
    pintor_.setBrush(Qt::NoBrush);
}

void SuperficieQt::trazarCajaEnPixeles(const QRect& caja, Color color) {
    const QColor borde = colorQt(tinta(color));
    if (relleno_ == Relleno::solido) {
        const QRect dentro = caja.adjusted(1, 1, -1, -1);
        pintor_.fillRect(caja, borde);
        if (dentro.isValid()) pintor_.fillRect(dentro, colorQt(colorRelleno_));
        return;
    }
    for (const QRect& lado :
         {entre(caja.topLeft(), caja.topRight()), entre(caja.bottomLeft(), caja.bottomRight()),
          entre(caja.topLeft(), caja.bottomLeft()), entre(caja.topRight(), caja.bottomRight())})
        pintor_.fillRect(lado, borde);
}

void SuperficieQt::trazarCurva(const Curva& curva, Color color) {
    const QPointF centro = enPixeles(curva.x, curva.y);
    const QPointF ejes(curva.ejeX() * escala_, curva.ejeY() * escala_);
    if (!cerca(centro) || !cerca(ejes)) return;
    if (suave())
        trazarCurvaSuave(curva, QRectF(centro - ejes, centro + ejes), color);
    else
        trazarCurvaEnPixeles({centro.x(), centro.y(), curva.radio * escala_, curva.arco, curva.aspecto},
                             color);
}

/// The toolkit's own curves without smoothing stray by up to two pixels from where they should be.
void SuperficieQt::trazarCurvaEnPixeles(const Curva& curva, Color color) {
    if (!curva.arco && relleno_ == Relleno::solido) {
        ponerLapiz(colorRelleno_);
        const std::vector<QLine> filas = filasDe(curva);
        pintor_.drawLines(filas.data(), static_cast<int>(filas.size()));
    }
    ponerLapiz(tinta(color));
    const std::vector<QPoint> pixeles = pixelesDe(curva);
    pintor_.drawPoints(pixeles.data(), static_cast<int>(pixeles.size()));
}

void SuperficieQt::trazarCurvaSuave(const Curva& curva, const QRectF& marco, Color color) {
    ponerLapiz(tinta(color));
    if (!curva.arco) {
        pintor_.setBrush(brocha());
        pintor_.drawEllipse(marco);
        pintor_.setBrush(Qt::NoBrush);
        return;
    }
    double abertura = qRadiansToDegrees(curva.arco->fin - curva.arco->inicio);
    if (abertura <= 0) abertura += 360;
    QPainterPath camino;
    camino.arcMoveTo(marco, qRadiansToDegrees(curva.arco->inicio));
    camino.arcTo(marco, qRadiansToDegrees(curva.arco->inicio), abertura);
    pintor_.strokePath(camino, pintor_.pen());
}

void SuperficieQt::Print(std::string_view texto) {
    QFont letra = fuenteTexto(puntos_, escala_);
    if (!pintor_.testRenderHint(QPainter::TextAntialiasing)) letra = sinSuavizar(letra);
    const QPointF esquina = enPixeles(texto_.x(), texto_.y());
    if (!cerca(esquina)) return;
    pintor_.setFont(letra);
    ponerLapiz(colorTexto_);
    const QString linea = QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
    pintor_.drawText(QPointF(enteros(esquina + QPointF(0, QFontMetricsF(letra).ascent()))), linea);
}

}  // namespace bosquel
