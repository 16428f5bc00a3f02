#include "ui/boton.h"

#include "ui/iconos.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

namespace bosquel {

namespace {

constexpr int ladoIcono = 24;
constexpr int letra = 11;  // pixels
constexpr int aire = 3;
constexpr qreal curva = 4;

QColor tenue(const QPalette& paleta, int parte) {
    QColor color = paleta.color(QPalette::WindowText);
    color.setAlpha(parte);
    return color;
}

}  // namespace

Boton::Boton(const QString& nombre, const QString& rotulo, QString imagen, QWidget* padre)
    : QAbstractButton(padre), imagen_(std::move(imagen)) {
    setObjectName(nombre);
    setText(rotulo);
    setAccessibleName(rotulo);
    setIcon(icono(imagen_, palette()));
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    QFont fuente = font();
    fuente.setPixelSize(letra);
    setFont(fuente);
}

void Boton::ponerBordeElevado(bool elevado) {
    if (elevado == bordeElevado_) return;
    bordeElevado_ = elevado;
    update();
}

QSize Boton::sizeHint() const {
    return {std::max(ladoIcono, fontMetrics().horizontalAdvance(text())) + 2 * aire,
            ladoIcono + fontMetrics().height() + 3 * aire};
}

void Boton::pintarFondo(QPainter& pintor) const {
    const QRectF borde = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(Qt::NoPen);
    if (isDown()) {
        pintor.setBrush(tenue(palette(), 40));
        pintor.drawRoundedRect(borde, curva, curva);
    } else if (isChecked()) {
        pintor.setBrush(tenue(palette(), 22));
        pintor.drawRoundedRect(borde, curva, curva);
    }
    pintor.setBrush(Qt::NoBrush);
    if (bordeElevado_ && isEnabled()) {
        pintor.setPen(tenue(palette(), 110));
        pintor.drawRoundedRect(borde, curva, curva);
    }
    if (hasFocus()) {
        pintor.setPen(palette().color(QPalette::Highlight));
        pintor.drawRoundedRect(borde, curva, curva);
    }
    pintor.setRenderHint(QPainter::Antialiasing, false);
}

void Boton::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintarFondo(pintor);
    const int altoTexto = fontMetrics().height();
    const int arriba = (height() - ladoIcono - altoTexto - aire / 2) / 2;
    if (!icon().isNull())
        icon().paint(&pintor, QRect((width() - ladoIcono) / 2, arriba, ladoIcono, ladoIcono), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QRect sitio =
        icon().isNull() ? rect() : QRect(0, arriba + ladoIcono + aire / 2, width(), altoTexto);
    pintor.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    pintor.drawText(sitio, Qt::AlignCenter, text());
}

void Boton::mouseMoveEvent(QMouseEvent* evento) {
    emit cruzado();
    QAbstractButton::mouseMoveEvent(evento);
    // The window below is not what the pointer moves over.
    evento->accept();
}

void Boton::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::PaletteChange) setIcon(icono(imagen_, palette()));
    QAbstractButton::changeEvent(evento);
}

}  // namespace bosquel
