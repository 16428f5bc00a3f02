#include "ui/visor.h"

#include <QApplication>
#include <QPainter>
#include <QWheelEvent>

namespace bosquel {

namespace {

/// Between the window's ground and its text, nearer to the ground: it sets off the paper on light and on
/// dark.
QColor fondo(const QPalette& paleta, qreal peso) {
    const QColor ventana = paleta.color(QPalette::Window);
    const QColor texto = paleta.color(QPalette::WindowText);
    const auto mezcla = [peso](int a, int b) { return a + static_cast<int>((b - a) * peso); };
    return {mezcla(ventana.red(), texto.red()), mezcla(ventana.green(), texto.green()),
            mezcla(ventana.blue(), texto.blue())};
}

}  // namespace

Visor::Visor(QWidget* padre) : QWidget(padre) {
    setObjectName("ContImagen");
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Visor::ponerBarras(QScrollBar* horizontal, QScrollBar* vertical) {
    horizontal_ = horizontal;
    vertical_ = vertical;
}

void Visor::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), fondo(palette(), 0.18));
    if (!hoja_) return;
    pintor.setPen(fondo(palette(), 0.55));
    pintor.drawRect(hoja_->geometry().adjusted(-1, -1, 0, 0));
}

void Visor::wheelEvent(QWheelEvent* evento) {
    const bool tumbada = evento->modifiers().testFlag(Qt::ShiftModifier) || evento->angleDelta().y() == 0;
    QScrollBar* barra = tumbada ? horizontal_ : vertical_;
    if (barra && barra->isEnabled()) QApplication::sendEvent(barra, evento);
    evento->accept();
}

}  // namespace bosquel
