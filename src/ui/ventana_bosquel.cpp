#include "ui/ventana_bosquel.h"

#include "drawing/estado.h"
#include "drawing/vista.h"
#include "ui/boton.h"
#include "ui/columna.h"
#include "ui/hoja_widget.h"
#include "ui/regla_widget.h"
#include "ui/textos.h"
#include "ui/unidades.h"
#include "ui/visor.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <cmath>

namespace bosquel {

namespace {

// Sheet units. The column stands left of what the session takes for the window; with the vertical scroll bar
// it makes up the width that the viewport leaves.
constexpr double altoFranja = 840;
constexpr double anchoColumna = 1605;
constexpr double anchoBarra = margenAncho - anchoColumna;
constexpr double altoBarra = 255;
constexpr double salirDesdeLaDerecha = 1000;

constexpr QSize tamanoMinimo{780, 560};
constexpr QSize tamanoMaximo{1280, 860};

constexpr QSize tamanoBoton{62, 52};
constexpr int margen = 2;  // pixels
constexpr int hueco = 10;  // pixels between groups

struct Puesto {
    Principal boton;
    const char* imagen;
    bool abreGrupo;
};

/// The strip from left to right; "Salir" stands alone at the right end.
constexpr std::array<Puesto, BttPrincipal.size()> franja{{{Principal::Nuevo, "nuevo", false},
                                                          {Principal::Abrir, "abrir", false},
                                                          {Principal::Guardar, "guardar", false},
                                                          {Principal::Imprimir, "imprimir", false},
                                                          {Principal::Definir, "definir", true},
                                                          {Principal::Eliminar, "eliminar", false},
                                                          {Principal::Zoom, "zoom", true},
                                                          {Principal::Colores, "colores", false},
                                                          {Principal::Opciones, "opciones", false},
                                                          {Principal::Ayuda, "ayuda", true},
                                                          {Principal::Salir, "salir", true}}};

std::size_t indice(Principal boton) {
    return static_cast<std::size_t>(boton);
}

QScrollBar* crearBarra(const QString& nombre, const QString& accesible, Qt::Orientation orientacion,
                       QWidget* padre) {
    auto* barra = new QScrollBar(orientacion, padre);
    barra->setObjectName(nombre);
    barra->setAccessibleName(accesible);
    barra->setRange(0, Barra::maximo);
    barra->setSingleStep(Barra::cambioChico);
    barra->setPageStep(Barra::cambioGrande);
    return barra;
}

/// The bar follows the session without telling it so.
void mostrarBarra(QScrollBar& barra, const Barra& estado) {
    const QSignalBlocker callada(barra);
    barra.setEnabled(estado.activa);
    barra.setValue(estado.valor);
}

}  // namespace

VentanaBosquel::VentanaBosquel(Bosquel& bosquel) : bosquel_(bosquel) {
    setObjectName("Bosquel");
    setMouseTracking(true);
    setMinimumSize(tamanoMinimo);
    // The Tab key goes the way in which things are made.
    ponerFranja();
    ponerColumna();
    ponerVisor();
    ponerPie();
    ponerRelojes();
    qApp->installEventFilter(this);
    const QSize pantalla = QGuiApplication::primaryScreen()->availableSize();
    resize((pantalla * 0.92).boundedTo(tamanoMaximo).expandedTo(tamanoMinimo));
}

void VentanaBosquel::ponerColumna() {
    columna_ = new Columna(bosquel_, this);
}

void VentanaBosquel::ponerPie() {
    estado_ = new QLabel(this);
    estado_->setObjectName("lblEstado");
    escala_ = new QLabel(this);
    escala_->setObjectName("lblEscala");
    escala_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void VentanaBosquel::ponerRelojes() {
    tmrAutoSave_ = new QTimer(this);
    tmrAutoSave_->setObjectName("tmrAutoSave");
    tmrAutoSave_->setInterval(60000);
    connect(tmrAutoSave_, &QTimer::timeout, this, [this] { bosquel_.minutoDeAutoSave(); });
    timer2_ = new QTimer(this);
    timer2_->setObjectName("Timer2");
    timer2_->setInterval(1);
    timer2_->setSingleShot(true);
    connect(timer2_, &QTimer::timeout, this, [this] { bosquel_.pasarTimer2(); });
}

void VentanaBosquel::ponerFranja() {
    franja_ = new QWidget(this);
    franja_->setObjectName("SSPanel1");
    franja_->setMouseTracking(true);
    franja_->installEventFilter(this);
    for (const Puesto& puesto : franja) {
        const std::size_t i = indice(puesto.boton);
        auto* boton =
            new Boton(QString("BttPrincipal_%1").arg(i), aQString(BttPrincipal[i]), puesto.imagen, franja_);
        connect(boton, &Boton::clicked, this, [this, puesto] { bosquel_.pulsarPrincipal(puesto.boton); });
        connect(boton, &Boton::cruzado, this, [this, puesto] { bosquel_.cruzarPrincipal(puesto.boton); });
        principales_[i] = boton;
    }
}

void VentanaBosquel::ponerVisor() {
    auto* visor = new Visor(this);
    visor_ = visor;
    hoja_ = new HojaWidget(bosquel_, visor_);
    regla_ = new ReglaWidget(bosquel_, visor_);
    hScroll_ = crearBarra("HScroll1", "Desplazamiento horizontal", Qt::Horizontal, this);
    vScroll_ = crearBarra("VScroll1", "Desplazamiento vertical", Qt::Vertical, this);
    visor->ponerHoja(hoja_);
    visor->ponerBarras(hScroll_, vScroll_);
    connect(hScroll_, &QScrollBar::valueChanged, this,
            [this](int valor) { bosquel_.cambiarHScroll1(valor); });
    connect(vScroll_, &QScrollBar::valueChanged, this,
            [this](int valor) { bosquel_.cambiarVScroll1(valor); });
}

void VentanaBosquel::colocarBotones() {
    int x = margen;
    for (const Puesto& puesto : franja) {
        if (puesto.abreGrupo) x += hueco;
        principales_[indice(puesto.boton)]->setGeometry(QRect(QPoint(x, margen), tamanoBoton));
        x += tamanoBoton.width();
    }
    principales_[indice(Principal::Salir)]->move(width() - aPixeles(salirDesdeLaDerecha), margen);
}

void VentanaBosquel::resizeEvent(QResizeEvent*) {
    if (isMinimized()) return;
    bosquel_.redimensionar(width() * unidadesPorPixel, height() * unidadesPorPixel);
    const int arriba = aPixeles(altoFranja);
    const int izquierda = aPixeles(anchoColumna);
    const int derecha = width() - aPixeles(anchoBarra);
    const int abajo = aPixeles(altoFranja + bosquel_.sesion().visorAlto);
    franja_->setGeometry(0, 0, width(), arriba);
    columna_->setGeometry(0, arriba, izquierda, height() - arriba);
    visor_->setGeometry(QRect(QPoint(izquierda, arriba), QPoint(derecha - 1, abajo - 1)));
    vScroll_->setGeometry(derecha, arriba, aPixeles(anchoBarra), visor_->height());
    hScroll_->setGeometry(izquierda, abajo, visor_->width(), aPixeles(altoBarra));
    const int pie = abajo + aPixeles(altoBarra);
    estado_->setGeometry(izquierda + 4 * margen, pie, visor_->width() * 3 / 4, height() - pie);
    escala_->setGeometry(derecha - visor_->width() / 4, pie, visor_->width() / 4, height() - pie);
    colocarBotones();
    mostrarVista();
}

void VentanaBosquel::mostrarVista() {
    const Sesion& sesion = bosquel_.sesion();
    const QRect antes = hoja_->geometry();
    hoja_->situar();
    if (hoja_->geometry() != antes) visor_->update();
    regla_->situar();
    mostrarBarra(*hScroll_, sesion.HScroll1);
    mostrarBarra(*vScroll_, sesion.VScroll1);
    for (std::size_t i = 0; i < principales_.size(); ++i)
        principales_[i]->ponerBordeElevado(static_cast<int>(i) == sesion.bordeElevado);
    columna_->mostrarPaleta();
    estado_->setText(aQString(indicacion(sesion.dibujo.ModoActual)));
    escala_->setText(QString::fromStdString(textoEscala(sesion.dibujo.FactorZoomActual)));
}

void VentanaBosquel::mostrarCambios(const ZonaSucia& zona, const ZonaSucia& paso) {
    hoja_->ensuciar(zona, paso);
    // Whatever changes a model changes something at rest as well: a drag does not.
    if (!zona.limpia()) columna_->mostrarMuestras();
}

void VentanaBosquel::mouseMoveEvent(QMouseEvent*) {
    bosquel_.cruzarVentana();
}

void VentanaBosquel::closeEvent(QCloseEvent* evento) {
    evento->accept();
    bosquel_.cerrar();
}

bool VentanaBosquel::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == franja_ && evento->type() == QEvent::MouseMove) bosquel_.cruzarVentana();
    // The window sees the Delete key before any of its controls does.
    if (evento->type() != QEvent::KeyPress) return false;
    const auto* control = qobject_cast<QWidget*>(objeto);
    if (!control || control->window() != this) return false;
    const auto* tecla = dynamic_cast<QKeyEvent*>(evento);
    if (!tecla || tecla->key() != Qt::Key_Delete) return false;
    bosquel_.suprimir();
    return true;
}

}  // namespace bosquel
