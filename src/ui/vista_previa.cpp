#include "ui/vista_previa.h"

#include "output/escala.h"
#include "output/papel.h"
#include "ui/iconos.h"
#include "ui/pagina.h"
#include "ui/rotulos.h"
#include "ui/textos.h"

#include <QEvent>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int margen = 8, separacion = 6;  // px
constexpr int ladoIcono = 24;
constexpr double pasoZoom = 1.25;
constexpr const char* propiedadImagen = "imagen";

}  // namespace

VistaPrevia::VistaPrevia(QImage imagen, const Papel& papel, QWidget* padre)
    : QDialog(padre),
      imagen_(std::move(imagen)),
      papel_(papel),
      impresora_(QPrinter::HighResolution),
      vista_(new QPrintPreviewWidget(&impresora_, this)),
      zoom_(nombrar(new QLabel(this), "lblZoom")) {
    setObjectName(aQString(papel.nombre));
    setWindowTitle(aQString(papel.titulo));
    setAccessibleName(windowTitle());
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setModal(true);

    impresora_.setDocName("Bosquel Rapiz");
    prepararPagina(impresora_, papel_);
    vista_->setObjectName("Image1");
    auto* pagina = vista_->findChild<QGraphicsView*>();
    for (QWidget* parte : {static_cast<QWidget*>(pagina), pagina->viewport()})
        parte->setAccessibleName("Página");
    connect(vista_, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* impresora) { pintarPagina(*impresora, papel_, imagen_, densidad_); });
    connect(vista_, &QPrintPreviewWidget::previewChanged, this, &VistaPrevia::mostrarZoom);

    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(margen, margen, margen, margen);
    todo->setSpacing(separacion);
    todo->addLayout(barra());
    todo->addWidget(vista_, 1);
    pintarIconos();
    resize(screen()->availableSize() * 0.8);
}

QToolButton* VistaPrevia::boton(const char* nombre, const char* imagen, const QString& rotulo,
                                const QKeySequence& atajo) {
    auto* boton = new QToolButton(this);
    boton->setText(rotulo);
    nombrar(boton, nombre);
    boton->setProperty(propiedadImagen, imagen);
    boton->setIconSize({ladoIcono, ladoIcono});
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::StrongFocus);
    boton->setShortcut(atajo);
    boton->setToolTip(leido(rotulo));
    botones_ += boton;
    return boton;
}

QHBoxLayout* VistaPrevia::barra() {
    auto* bttImprimir = boton("BttImprimir", "imprimir", "Imprimir…", QKeySequence::Print);
    bttImprimir->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(bttImprimir, &QToolButton::clicked, this, &VistaPrevia::imprimir);
    auto* bttAlejar = boton("BttAlejar", "alejar", "Alejar", QKeySequence::ZoomOut);
    connect(bttAlejar, &QToolButton::clicked, vista_, [this] { vista_->zoomOut(pasoZoom); });
    auto* bttAcercar = boton("BttAcercar", "zoom", "Acercar", QKeySequence::ZoomIn);
    connect(bttAcercar, &QToolButton::clicked, vista_, [this] { vista_->zoomIn(pasoZoom); });
    auto* bttPagina = boton("BttPagina", "pagina_entera", "Página entera", {});
    connect(bttPagina, &QToolButton::clicked, vista_, &QPrintPreviewWidget::fitInView);
    auto* bttAncho = boton("BttAncho", "pagina_ancho", "Ancho de página", {});
    connect(bttAncho, &QToolButton::clicked, vista_, &QPrintPreviewWidget::fitToWidth);
    for (QToolButton* cambia : {bttAlejar, bttAcercar, bttPagina, bttAncho})
        connect(cambia, &QToolButton::clicked, this, &VistaPrevia::mostrarZoom);
    auto* bttCerrar = nombrar(new QPushButton("&Cerrar", this), "BttCerrar");
    bttCerrar->setAutoDefault(false);
    connect(bttCerrar, &QPushButton::clicked, this, &QDialog::reject);

    zoom_->setAlignment(Qt::AlignCenter);
    zoom_->setMinimumWidth(fontMetrics().horizontalAdvance("1000 %"));

    auto* fila = new QHBoxLayout;
    fila->setSpacing(separacion);
    fila->addWidget(bttImprimir);
    fila->addSpacing(2 * separacion);
    for (QWidget* control :
         std::initializer_list<QWidget*>{bttAlejar, zoom_, bttAcercar, bttPagina, bttAncho})
        fila->addWidget(control);
    fila->addStretch();
    fila->addWidget(bttCerrar);
    return fila;
}

/// Whatever the dialog makes of the paper, the page keeps its own.
void VistaPrevia::imprimir() {
    QPrintDialog dialogo(&impresora_, this);
    if (dialogo.exec() != QDialog::Accepted) return;
    prepararPagina(impresora_, papel_);
    pintarPagina(impresora_, papel_, imagen_);
}

/// Nearer or further, the picture is painted anew for the screen's pixels.
void VistaPrevia::mostrarZoom() {
    const double zoom = vista_->zoomFactor();
    zoom_->setText(QString("%1 %").arg(qRound(zoom * 100)));
    const double densidad = zoom * logicalDpiX() * devicePixelRatioF() * twipsPorPixel / twipsPorPulgada;
    if (densidad == densidad_) return;
    densidad_ = densidad;
    vista_->updatePreview();
}

void VistaPrevia::pintarIconos() {
    for (QToolButton* boton : qAsConst(botones_))
        boton->setIcon(icono(boton->property(propiedadImagen).toString(), palette()));
}

void VistaPrevia::resizeEvent(QResizeEvent* suceso) {
    QDialog::resizeEvent(suceso);
    mostrarZoom();
}

void VistaPrevia::changeEvent(QEvent* suceso) {
    if (suceso->type() == QEvent::PaletteChange) pintarIconos();
    QDialog::changeEvent(suceso);
}

}  // namespace bosquel
