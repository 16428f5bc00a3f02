#include "ui/regla_widget.h"

#include "ui/unidades.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace bosquel {

namespace {

constexpr double unDecimetro = 100;     // mm
constexpr double separacionMinima = 3;  // pixels between marks
constexpr double pocoLegible = 18;      // pixels between numbers
constexpr int letra = 9;                // pixels

const QColor papel(255, 252, 235, 215);
const QColor tinta(40, 40, 40);

/// Every how many decimetres a mark stands, so that marks keep apart: 1, 5, 10, 50, 100...
int pasoDeMarcas(double pixelesPorDecimetro, double minimo) {
    int paso = 1;
    for (int veces = 5; paso * pixelesPorDecimetro < minimo && paso < 1000000; veces = 7 - veces)
        paso *= veces;
    return paso;
}

}  // namespace

ReglaWidget::ReglaWidget(Bosquel& bosquel, QWidget* padre) : QWidget(padre), bosquel_(bosquel) {
    setObjectName("Regla");
    setAccessibleName("Regla en metros");
    setCursor(Qt::SizeAllCursor);
    hide();
}

void ReglaWidget::situar() {
    const Regla& regla = bosquel_.sesion().regla;
    setGeometry(aPixeles(regla.Left), aPixeles(regla.Top), aPixeles(regla.Width), aPixeles(regla.Height));
    setVisible(regla.Visible);
    if (regla.FactorZoom != factorPintado_) update();
    factorPintado_ = regla.FactorZoom;
}

void ReglaWidget::pintarMarca(QPainter& pintor, int decimetros, double lugar) const {
    const bool tumbada = bosquel_.sesion().regla.orientacion == Regla::Orientacion::HID;
    const int grosor = tumbada ? height() : width();
    const int largo = decimetros % 10 == 0 ? grosor / 2 : decimetros % 5 == 0 ? grosor / 3 : grosor / 5;
    const int p = static_cast<int>(std::lround(lugar));
    if (tumbada)
        pintor.drawLine(p, 0, p, largo);
    else
        pintor.drawLine(0, p, largo, p);
}

void ReglaWidget::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), papel);
    pintor.setPen(QPen(tinta, 1));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    const Regla& regla = bosquel_.sesion().regla;
    const double decimetro = unDecimetro * regla.FactorZoom / unidadesPorPixel;
    if (!(decimetro > 0) || !std::isfinite(decimetro)) return;

    const bool tumbada = regla.orientacion == Regla::Orientacion::HID;
    const int longitud = tumbada ? width() : height();
    const int marca = pasoDeMarcas(decimetro, separacionMinima);
    const int numero = std::max(10, pasoDeMarcas(decimetro, pocoLegible));
    QFont fuente = font();
    fuente.setPixelSize(letra);
    pintor.setFont(fuente);
    for (int i = 0; i * decimetro < longitud; i += marca) {
        const double lugar = i * decimetro;
        pintarMarca(pintor, i, lugar);
        if (i % numero != 0) continue;
        const QRectF sitio = tumbada ? QRectF(lugar + 2, height() / 2.0, 40, height() / 2.0)
                                     : QRectF(0, lugar + 1, width() - 3, letra + 3);
        pintor.drawText(sitio, Qt::AlignVCenter | (tumbada ? Qt::AlignLeft : Qt::AlignRight),
                        QString::number(i / 10));
    }
}

void ReglaWidget::mousePressEvent(QMouseEvent* evento) {
    bosquel_.pulsarRegla(aUnidades(evento->position().x()), aUnidades(evento->position().y()));
}

void ReglaWidget::mouseMoveEvent(QMouseEvent* evento) {
    bosquel_.moverRegla(evento->buttons().testFlag(Qt::LeftButton), aUnidades(evento->position().x()),
                        aUnidades(evento->position().y()));
}

void ReglaWidget::mouseReleaseEvent(QMouseEvent*) {
    bosquel_.soltarRegla();
}

void ReglaWidget::mouseDoubleClickEvent(QMouseEvent*) {
    bosquel_.dobleClicRegla();
}

}  // namespace bosquel
