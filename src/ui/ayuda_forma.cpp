#include "ui/ayuda_forma.h"

#include "ui/ayuda_lateral.h"
#include "ui/ayuda_pagina.h"
#include "ui/iconos.h"
#include "ui/rotulos.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr QSize tamanoVentana{1080, 700}, tamanoMinimo{560, 360};
constexpr int anchoLateral = 280, margen = 8, separacion = 6;  // px
constexpr int ladoIcono = 20;                                  // px
constexpr auto papelImagen = "imagen";

/// A button of the strip. One with a picture alone says its name to those who do not see it.
struct Mando {
    const char* nombre;
    const char* rotulo;
    const char* imagen;
    bool conRotulo;
};

QToolButton* poner(QHBoxLayout& fila, const Mando& mando) {
    auto* boton = new QToolButton;
    boton->setObjectName(mando.nombre);
    boton->setAutoRaise(true);
    boton->setFocusPolicy(Qt::TabFocus);
    boton->setIconSize({ladoIcono, ladoIcono});
    boton->setProperty(papelImagen, mando.imagen);
    boton->setAccessibleName(leido(mando.rotulo));
    if (mando.conRotulo) {
        boton->setText(mando.rotulo);
        boton->setToolButtonStyle(mando.imagen ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextOnly);
    } else {
        boton->setToolTip(mando.rotulo);
    }
    fila.addWidget(boton);
    return boton;
}

}  // namespace

AyudaForma::AyudaForma(const ArchivoAyuda& archivo)
    : lateral_(new AyudaLateral(archivo)), pagina_(nombrar(new PaginaAyuda(archivo), "Pagina")) {
    setObjectName("Ayuda");
    setWindowTitle("Ayuda de Bosquel Rapiz");
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(tamanoMinimo);
    resize(tamanoVentana.boundedTo(screen()->availableSize() * 0.92).expandedTo(tamanoMinimo));
    pagina_->setAccessibleName("Página de la ayuda");

    auto* partes = new QSplitter;
    partes->setChildrenCollapsible(false);
    partes->addWidget(lateral_);
    partes->addWidget(pagina_);
    partes->setStretchFactor(1, 1);
    partes->setSizes({anchoLateral, width() - anchoLateral});
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(margen, margen, margen, margen);
    todo->setSpacing(separacion);
    todo->addWidget(franja());
    todo->addWidget(partes, 1);

    connect(pagina_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& url) { lateral_->senalar(PaginaAyuda::destino(url)); });
    connect(lateral_, &AyudaLateral::elegida, this,
            [this](const QString& destino, const QStringList& palabras) {
                pagina_->mostrar(destino);
                pagina_->resaltar(palabras);
            });
    connect(lateral_, &AyudaLateral::dejada, this, [this] { pagina_->resaltar({}); });
    ponerIconos();
    ponerAtajos();
    pagina_->mostrar(paginasAyuda(archivo).value(0));
    pagina_->setFocus();
}

QWidget* AyudaForma::franja() {
    auto* franja = new QWidget;
    auto* fila = new QHBoxLayout(franja);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(separacion);

    auto* atras = poner(*fila, {"BttAtras", "&Atrás", "atras", true});
    auto* adelante = poner(*fila, {"BttAdelante", "A&delante", "adelante", true});
    auto* inicio = poner(*fila, {"BttInicio", "&Inicio", "inicio", true});
    fila->addStretch();
    auto* reducir = poner(*fila, {"BttReducir", "Letra más pequeña", "reducir", false});
    auto* tamano = poner(*fila, {"BttTamano", "100 %", nullptr, true});
    auto* aumentar = poner(*fila, {"BttAumentar", "Letra más grande", "aumentar", false});
    tamano->setAccessibleDescription("Letra de tamaño normal");

    atras->setEnabled(false);
    adelante->setEnabled(false);
    connect(pagina_, &QTextBrowser::backwardAvailable, atras, &QWidget::setEnabled);
    connect(pagina_, &QTextBrowser::forwardAvailable, adelante, &QWidget::setEnabled);
    connect(pagina_, &PaginaAyuda::escalada, tamano,
            [tamano](int porcentaje) { tamano->setText(QString("%1 %").arg(porcentaje)); });
    connect(atras, &QToolButton::clicked, pagina_, &QTextBrowser::backward);
    connect(adelante, &QToolButton::clicked, pagina_, &QTextBrowser::forward);
    connect(inicio, &QToolButton::clicked, pagina_, &QTextBrowser::home);
    connect(reducir, &QToolButton::clicked, pagina_, [this] { pagina_->ampliar(-1); });
    connect(tamano, &QToolButton::clicked, pagina_, [this] { pagina_->escalarNormal(); });
    connect(aumentar, &QToolButton::clicked, pagina_, [this] { pagina_->ampliar(1); });
    return franja;
}

void AyudaForma::ponerIconos() {
    for (auto* boton : findChildren<QToolButton*>())
        if (const QString imagen = boton->property(papelImagen).toString(); !imagen.isEmpty())
            boton->setIcon(icono(imagen, palette()));
}

void AyudaForma::ponerAtajos() {
    const auto atajo = [this](const QList<QKeySequence>& teclas, auto hacer) {
        for (const QKeySequence& tecla : teclas)
            connect(new QShortcut(tecla, this), &QShortcut::activated, this, hacer);
    };
    atajo({QKeySequence("Alt+Left")}, [this] { pagina_->backward(); });
    atajo({QKeySequence("Alt+Right")}, [this] { pagina_->forward(); });
    atajo({QKeySequence("Alt+Home")}, [this] { pagina_->home(); });
    atajo({QKeySequence("Ctrl++"), QKeySequence("Ctrl+=")}, [this] { pagina_->ampliar(1); });
    atajo({QKeySequence("Ctrl+-")}, [this] { pagina_->ampliar(-1); });
    atajo({QKeySequence("Ctrl+0")}, [this] { pagina_->escalarNormal(); });
    atajo({QKeySequence("Ctrl+F")}, [this] { lateral_->enfocarBusqueda(); });
    atajo({QKeySequence("Esc")}, [this] { escapar(); });
}

/// First the search ends, then the window.
void AyudaForma::escapar() {
    if (!lateral_->dejarBusqueda()) close();
}

void AyudaForma::traerAlFrente() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void AyudaForma::changeEvent(QEvent* suceso) {
    if (suceso->type() == QEvent::PaletteChange) ponerIconos();
    QWidget::changeEvent(suceso);
}

}  // namespace bosquel
