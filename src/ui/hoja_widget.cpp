#include "ui/hoja_widget.h"

#include "ui/editor_texto.h"
#include "ui/iconos.h"
#include "ui/unidades.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace bosquel {

namespace {

/// More rectangles than these are painted as the one that holds them all, and so are those that leave little
/// of it free: that it is so many times as large as they are.
constexpr std::size_t muchas = 12;
constexpr std::int64_t desperdicio = 2;

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

/// The logical pixels of the sheet that a stroke in this box may touch.
QRect logica(const Recuadro& zona) {
    const QPoint desde(aPixeles(zona.Left), aPixeles(zona.Top));
    const QPoint hasta(aPixeles(zona.Left + zona.Width), aPixeles(zona.Top + zona.Height));
    return QRect(desde, hasta).adjusted(-margen, -margen, margen, margen);
}

std::int64_t area(const QRect& rect) {
    return static_cast<std::int64_t>(rect.width()) * rect.height();
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
    QRect todas;
    std::int64_t suArea = 0;
    for (const Recuadro& zona : zonas) {
        const QRect una = logica(zona) & vista;
        todas |= una;
        suArea += area(una);
    }
    if (zonas.size() > muchas || area(todas) <= desperdicio * suArea) return todas;
    QRegion total;
    for (const Recuadro& zona : zonas)
        total |= logica(zona) & vista;
    return total;
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

LugarHoja HojaWidget::lugarDe(const QRect& pixeles) const {
    return {pixeles.topLeft(), densidad_ / unidadesPorPixel};
}

void HojaWidget::actualizarFondo() {
    const QRect vista = aLaVista();
    if (vista != vista_ || densidad_ != devicePixelRatioF()) {
        densidad_ = devicePixelRatioF();
        vista_ = vista;
        pendiente_ = vista;
        pixeles_ = enPixeles(vista, densidad_);
        fondo_ = QImage(pixeles_.size(), QImage::Format_RGB32);
    }
    if (pendiente_.isEmpty() || fondo_.isNull()) return;
    for (const QRect& zona : pendiente_& vista_)
        pintarQuieto(fondo_, lugarDe(pixeles_), bosquel_.sesion(), enPixeles(zona, densidad_));
    pendiente_ = QRegion();
}

/// The part of `fondo_` that shows these device pixels of the sheet, without a copy of its own.
QImage HojaWidget::enFondo(const QRect& pixeles) const {
    const QPoint primero = pixeles.topLeft() - pixeles_.topLeft();
    const uchar* fila = fondo_.constScanLine(primero.y());
    return {fila + static_cast<std::size_t>(primero.x()) * sizeof(QRgb), pixeles.width(), pixeles.height(),
            fondo_.bytesPerLine(), fondo_.format()};
}

/// What a part of the sheet looks like. Only who asks for a picture of the whole sheet gets more than what is
/// on view.
QImage HojaWidget::imagenDe(const QRect& pixeles) const {
    const Sesion& sesion = bosquel_.sesion();
    QImage imagen;
    if (pixeles_.contains(pixeles)) {
        imagen = enFondo(pixeles);
    } else {
        imagen = QImage(pixeles.size(), QImage::Format_RGB32);
        pintarQuieto(imagen, lugarDe(pixeles), sesion, pixeles);
    }
    if (hayEncima(sesion)) pintarEncima(imagen, lugarDe(pixeles), sesion);
    return imagen;
}

void HojaWidget::paintEvent(QPaintEvent* evento) {
    actualizarFondo();
    QPainter pintor(this);
    pintor.translate(-origen_);
    pintor.scale(1 / densidad_, 1 / densidad_);
    for (const QRect& zona : evento->region().translated(origen_)) {
        const QRect pixeles = enPixeles(zona, densidad_);
        pintor.drawImage(pixeles.topLeft(), imagenDe(pixeles));
    }
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
