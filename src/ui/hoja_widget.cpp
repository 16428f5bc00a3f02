#include "ui/hoja_widget.h"

#include "ui/editor_texto.h"
#include "ui/iconos.h"
#include "ui/pintura_hoja.h"
#include "ui/unidades.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace bosquel {

namespace {

/// More rectangles than these are painted as the one that holds them all.
constexpr std::size_t muchas = 12;

/// Pixels around a stroke's box: its width, and the rounding to device pixels.
constexpr int margen = 2;

/// One side of the widget: a sheet larger than any widget is cut to what the viewport can show of it.
struct Lado {
    int lugar, tamano, origen;
};

Lado lado(int lugar, int tamano, int visor) {
    if (tamano <= QWIDGETSIZE_MAX) return {lugar, std::max(tamano, 0), 0};
    return {0, visor, -lugar};
}

/// Whole device pixels that cover a rectangle of logical ones.
QRect enPixeles(const QRect& zona, double escala) {
    return QRectF(QPointF(zona.topLeft()) * escala, QSizeF(zona.size()) * escala).toAlignedRect();
}

}  // namespace

HojaWidget::HojaWidget(Bosquel& bosquel, QWidget* padre)
    : QWidget(padre), bosquel_(bosquel), editor_(new EditorTexto(bosquel, this)) {
    setObjectName("Hoja");
    setAccessibleName("Hoja de dibujo");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    ponerCursor(Cursor::Cruz);
}

void HojaWidget::situar() {
    const HojaDibujo& hoja = bosquel_.sesion().dibujo.Hoja;
    const QSize visor = parentWidget()->size();
    const Lado x = lado(aPixeles(hoja.Left), aPixeles(hoja.Width), visor.width());
    const Lado y = lado(aPixeles(hoja.Top), aPixeles(hoja.Height), visor.height());
    const QPoint origen(x.origen, y.origen);
    if (origen != origen_) update();
    origen_ = origen;
    setGeometry(x.lugar, y.lugar, x.tamano, y.tamano);
    editor_->seguirFoco(origen_);
}

QRect HojaWidget::aLaVista() const {
    return (parentWidget()->rect().translated(-pos()) & rect()).translated(origen_);
}

QRegion HojaWidget::region(const std::vector<Recuadro>& zonas) const {
    const QRect vista = aLaVista();
    QRegion total;
    for (const Recuadro& zona : zonas) {
        const QPoint desde(aPixeles(zona.Left), aPixeles(zona.Top));
        const QPoint hasta(aPixeles(zona.Left + zona.Width), aPixeles(zona.Top + zona.Height));
        total |= QRect(desde, hasta).adjusted(-margen, -margen, margen, margen) & vista;
    }
    return zonas.size() > muchas ? QRegion(total.boundingRect()) : total;
}

void HojaWidget::ensuciar(const ZonaSucia& zona, const ZonaSucia& paso) {
    editor_->seguirFoco(origen_);
    if (zona.todo()) {
        pendiente_ = aLaVista();
        update();
        return;
    }
    const QRegion quieto = region(zona.zonas());
    pendiente_ |= quieto;
    update((quieto | region(paso.zonas())).translated(-origen_));
}

void HojaWidget::ponerCursor(Cursor rol) {
    if (rol == cursor_) return;
    cursor_ = rol;
    setCursor(bosquel::cursor(rol, devicePixelRatioF()));
}

void HojaWidget::pintarFondo(const QRect& zona) {
    const double escala = fondo_.devicePixelRatio();
    const QPoint esquina = (QPointF(vista_.topLeft()) * escala).toPoint();
    const QRect pixeles = enPixeles(zona, escala);
    fondo_.setDevicePixelRatio(1);
    QPainter pintor(&fondo_);
    pintor.translate(-esquina);
    pintor.setClipRect(pixeles);
    pintarQuieto(pintor, bosquel_.sesion(), pixeles, escala / unidadesPorPixel);
    pintor.end();
    fondo_.setDevicePixelRatio(escala);
}

void HojaWidget::actualizarFondo() {
    const QRect vista = aLaVista();
    if (vista != vista_ || fondo_.devicePixelRatio() != devicePixelRatioF()) {
        const QSizeF tamano = QSizeF(vista.size()) * devicePixelRatioF();
        fondo_ = QPixmap(static_cast<int>(std::ceil(tamano.width())),
                         static_cast<int>(std::ceil(tamano.height())));
        fondo_.setDevicePixelRatio(devicePixelRatioF());
        vista_ = vista;
        pendiente_ = vista;
    }
    if (fondo_.isNull()) return;
    for (const QRect& zona : pendiente_& vista_)
        pintarFondo(zona);
    pendiente_ = QRegion();
}

void HojaWidget::paintEvent(QPaintEvent* evento) {
    actualizarFondo();
    const double escala = devicePixelRatioF();
    QPainter pintor(this);
    pintor.setClipRegion(evento->region());
    pintor.translate(-origen_);
    pintor.drawPixmap(vista_.topLeft(), fondo_);
    pintor.scale(1 / escala, 1 / escala);
    // Only who asks for a picture of the whole sheet gets here with more than what is on view.
    for (const QRect& zona : evento->region().translated(origen_) - vista_) {
        const QRect pixeles = enPixeles(zona, escala);
        pintor.save();
        pintor.setClipRect(pixeles, Qt::IntersectClip);
        pintarQuieto(pintor, bosquel_.sesion(), pixeles, escala / unidadesPorPixel);
        pintor.restore();
    }
    pintarEnMovimiento(pintor, bosquel_.sesion(), escala / unidadesPorPixel);
}

QPointF HojaWidget::enHoja(const QMouseEvent& evento) const {
    return (evento.position() + origen_) * unidadesPorPixel;
}

void HojaWidget::mousePressEvent(QMouseEvent* evento) {
    const QPointF punto = enHoja(*evento);
    bosquel_.pulsar(static_cast<float>(punto.x()), static_cast<float>(punto.y()));
    editor_->seguirFoco(origen_);
    editor_->ponerCaret(evento->position().toPoint());
}

/// The Tab key leaves the sheet, and what has the focus on it.
void HojaWidget::focusOutEvent(QFocusEvent* evento) {
    QWidget::focusOutEvent(evento);
    const Qt::FocusReason motivo = evento->reason();
    if (motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason) bosquel_.perderFoco();
}

void HojaWidget::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF punto = enHoja(*evento);
    bosquel_.mover(evento->buttons().testFlag(Qt::LeftButton), evento->buttons() != Qt::NoButton,
                   static_cast<float>(punto.x()), static_cast<float>(punto.y()));
}

void HojaWidget::mouseReleaseEvent(QMouseEvent* evento) {
    const QPointF punto = enHoja(*evento);
    bosquel_.soltar(static_cast<float>(punto.x()), static_cast<float>(punto.y()));
}

void HojaWidget::mouseDoubleClickEvent(QMouseEvent* evento) {
    const QPointF punto = enHoja(*evento);
    bosquel_.dobleClic(static_cast<float>(punto.x()), static_cast<float>(punto.y()));
}

}  // namespace bosquel
