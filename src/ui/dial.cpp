#include "ui/dial.h"

#include "model/colores.h"
#include "model/polar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

namespace bosquel {

namespace {

constexpr double grueso = 1.4;      // px, of a spoke
constexpr double comienzo = 0.3;    // where a spoke starts, of its length
constexpr double holgura = 4;       // px between a spoke and its caption
constexpr int margen = 10;          // px around the whole
constexpr int resalteEtiqueta = 2;  // px that a caption can be hit beyond its text

/// At rest and lit.
void colorear(QWidget& control, bool encendido) {
    const Color color = rgb(encendido ? rojo : azulOscuro);
    QPalette colores;
    colores.setColor(QPalette::WindowText, QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF));
    control.setPalette(colores);
}

QPointF polar(int angulo, double distancia) {
    return {PolarX(0, angulo, distancia), PolarY(0, angulo, distancia)};
}

/// The centre of a caption that just touches the circle of this radius from without.
QPointF centroEtiqueta(int angulo, double radio, const QSize& medida) {
    const QPointF rumbo = polar(angulo, 1);
    return rumbo *
           (radio + std::abs(rumbo.x()) * medida.width() / 2 + std::abs(rumbo.y()) * medida.height() / 2);
}

}  // namespace

void EtiquetaDial::mousePressEvent(QMouseEvent* suceso) {
    apretada_ = suceso->button() == Qt::LeftButton;
}

void EtiquetaDial::mouseReleaseEvent(QMouseEvent* suceso) {
    if (std::exchange(apretada_, false) && rect().contains(suceso->position().toPoint())) emit pulsada();
}

void EtiquetaDial::mouseDoubleClickEvent(QMouseEvent* suceso) {
    if (suceso->button() == Qt::LeftButton) emit doblePulsada();
}

LineaDial::LineaDial(const QLineF& trazo, QWidget* padre) : QWidget(padre) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    const QRectF caja = QRectF(trazo.p1(), trazo.p2()).normalized();
    setGeometry(caja.adjusted(-grueso, -grueso, grueso, grueso).toAlignedRect());
    trazo_ = trazo.translated(-pos());
}

void LineaDial::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(palette().color(QPalette::WindowText), grueso, Qt::SolidLine, Qt::RoundCap));
    pintor.drawLine(trazo_);
}

Dial::Dial(const Traza& traza, QWidget* padre) : QWidget(padre) {
    setFocusPolicy(Qt::TabFocus);
    for (const Radio& radio : traza.radios)
        ponerRadio(traza, radio);
    encuadrar();
    encender(0);
}

void Dial::ponerRadio(const Traza& traza, const Radio& radio) {
    const int numero = static_cast<int>(etiquetas_.size()) + 1;
    const QLineF trazo(polar(radio.angulo, traza.largo * comienzo), polar(radio.angulo, traza.largo));
    auto* linea = new LineaDial(trazo, this);
    linea->setObjectName(traza.linea + QString::number(numero));
    linea->setAccessibleName("Radio " + radio.rotulo);

    auto* etiqueta = new EtiquetaDial(radio.rotulo, this);
    etiqueta->setObjectName(traza.etiqueta + QString::number(numero));
    etiqueta->setAccessibleName(radio.rotulo);
    etiqueta->setAlignment(Qt::AlignCenter);
    etiqueta->setCursor(Qt::PointingHandCursor);
    const QSize medida = etiqueta->sizeHint() + QSize(resalteEtiqueta, resalteEtiqueta) * 2;
    QRect caja(QPoint(), medida);
    caja.moveCenter(centroEtiqueta(radio.angulo, traza.largo + holgura, etiqueta->sizeHint()).toPoint());
    etiqueta->setGeometry(caja);
    connect(etiqueta, &EtiquetaDial::pulsada, this, [this, numero] { emit pulsado(numero); });
    connect(etiqueta, &EtiquetaDial::doblePulsada, this, [this, numero] { emit doblePulsado(numero); });

    lineas_.push_back(linea);
    etiquetas_.push_back(etiqueta);
}

/// Spokes and captions were laid around (0, 0): they move into the widget, which takes their size.
void Dial::encuadrar() {
    const QRect caja = childrenRect().united(QRect(0, 0, 1, 1)).adjusted(-margen, -margen, margen, margen);
    for (QWidget* hijo : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        hijo->move(hijo->pos() - caja.topLeft());
    setFixedSize(caja.size());
}

void Dial::encender(int radio) {
    encendido_ = radio;
    for (std::size_t i = 0; i < etiquetas_.size(); ++i) {
        const bool encendido = static_cast<int>(i) + 1 == radio;
        colorear(*etiquetas_[i], encendido);
        colorear(*lineas_[i], encendido);
    }
}

void Dial::keyPressEvent(QKeyEvent* suceso) {
    const int tecla = suceso->key();
    const bool atras = tecla == Qt::Key_Up || tecla == Qt::Key_Left;
    const bool adelante = tecla == Qt::Key_Down || tecla == Qt::Key_Right;
    if (!atras && !adelante) return QWidget::keyPressEvent(suceso);
    const int otro = encendido_ + (atras ? -1 : 1);
    if (otro >= 1 && otro <= static_cast<int>(etiquetas_.size())) emit pulsado(otro);
}

/// White on every desktop: the colours of the spokes are fixed.
void Dial::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    pintor.setBrush(Qt::white);
    pintor.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace bosquel
