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

QColor translucido(QColor color, int parte) {
    color.setAlpha(parte);
    return color;
}

QColor tenue(const QPalette& paleta, int parte) {
    return translucido(paleta.color(QPalette::WindowText), parte);
}

}  // namespace

Boton::Boton(const QString& nombre, const QString& rotulo, const QString& imagen, QWidget* padre)
    : QAbstractButton(padre) {
    setObjectName(nombre);
    setText(rotulo);
    setAccessibleName(rotulo);
    setIconSize({ladoIcono, ladoIcono});
    ponerImagen([imagen](const QPalette& paleta) { return icono(imagen, paleta); });
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    QFont fuente = font();
    fuente.setPixelSize(letra);
    setFont(fuente);
}

void Boton::ponerImagen(Imagen imagen) {
    imagen_ = std::move(imagen);
    setIcon(imagen_(palette()));
}

void Boton::ponerBordeElevado(bool elevado) {
    if (elevado == bordeElevado_) return;
    bordeElevado_ = elevado;
    update();
}

int Boton::altoRotulo() const {
    return text().isEmpty() ? 0 : fontMetrics().height();
}

QSize Boton::sizeHint() const {
    return {std::max(iconSize().width(), fontMetrics().horizontalAdvance(text())) + 2 * aire,
            iconSize().height() + altoRotulo() + 3 * aire};
}

void Boton::pintarFondo(QPainter& pintor) const {
    const QRectF borde = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor acento = palette().color(QPalette::Highlight);
    const auto marco = [&](const QRectF& donde, const QPen& lapiz, const QBrush& relleno) {
        pintor.setPen(lapiz);
        pintor.setBrush(relleno);
        pintor.drawRoundedRect(donde, curva, curva);
    };
    pintor.setRenderHint(QPainter::Antialiasing);
    if (isDown()) marco(borde, Qt::NoPen, tenue(palette(), 40));
    if (bordeElevado_ && isEnabled()) marco(borde, tenue(palette(), 110), Qt::NoBrush);
    if (isChecked()) marco(borde, acento, translucido(acento, 56));
    if (hasFocus()) marco(isChecked() ? borde.adjusted(2, 2, -2, -2) : borde, acento, Qt::NoBrush);
    pintor.setRenderHint(QPainter::Antialiasing, false);
}

void Boton::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintarFondo(pintor);
    const int alto = altoRotulo();
    const QSize imagen = iconSize();
    const int arriba = (height() - imagen.height() - alto - (alto > 0 ? aire / 2 : 0)) / 2;
    if (!icon().isNull())
        icon().paint(&pintor, QRect(QPoint((width() - imagen.width()) / 2, arriba), imagen), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
    const QRect sitio =
        icon().isNull() ? rect() : QRect(0, arriba + imagen.height() + aire / 2, width(), alto);
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
    if (evento->type() == QEvent::PaletteChange) setIcon(imagen_(palette()));
    QAbstractButton::changeEvent(evento);
}

}  // namespace bosquel
