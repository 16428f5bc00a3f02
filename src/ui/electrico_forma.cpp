#include "ui/electrico_forma.h"

#include "stairs_symbols/electrico_prop.h"
#include "ui/marco_previo.h"
#include "ui/panel_angulo.h"
#include "ui/radios.h"
#include "ui/rotulos.h"
#include "ui/selector_color.h"
#include "ui/textos.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int separacion = 14, separacionOpciones = 6;  // px
constexpr int ladoMarco = 260;                          // px

}  // namespace

ElectricoForma::ElectricoForma(ElectricoProp& logica, QWidget* padre)
    : Dialogo("ElectricoProp", aQString(logica.Caption()), {"Command1", "Command2"}, padre),
      logica_(logica),
      color_(new SelectorColor("txtLineColor", "cmdLineColor", "color de línea")),
      marco_(new MarcoPrevio(ladoMarco)) {
    color_->ponerColor(logica.txtLineColor);
    connect(color_, &SelectorColor::elegido, this, [this] {
        logica_.txtLineColor = color_->color();
        refrescar();
    });
    auto* angulo = new PanelAngulo(logica.Angulo);
    connect(angulo, &PanelAngulo::cambiado, this, &ElectricoForma::refrescar);

    auto* colores = nuevaRejilla();
    colores->addWidget(rotular("Co&lor", color_), 0, 0);
    colores->addWidget(color_, 0, 1);
    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(separacion);
    izquierda->addWidget(marco_, 1);
    izquierda->addLayout(opciones());
    izquierda->addLayout(colores);
    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(separacion);
    columnas->addLayout(izquierda);
    columnas->addWidget(angulo);
    cuerpo()->addLayout(columnas);
    ordenar(orden_ + QStringList{"cmdLineColor"} + PanelAngulo::orden() +
            QStringList{"Command1", "Command2"});
    mostrar();
    findChild<QWidget*>("TxtAngulo")->setFocus();
}

QLayout* ElectricoForma::opciones() {
    QStringList rotulos;
    for (const auto simbolo : logica_.opt())
        rotulos += aQString(simbolo);
    const auto elegir = [this](int opcion) {
        logica_.elegir(opcion);
        mostrar();
    };
    auto* columna = new QVBoxLayout;
    columna->setSpacing(separacionOpciones);
    for (QRadioButton* opcion : nuevosRadios("opt", 0, rotulos, logica_.opcion(), elegir)) {
        columna->addWidget(opcion);
        orden_ += opcion->objectName();
    }
    return columna;
}

void ElectricoForma::mostrar() {
    marco_->mostrar(logica_.preview(), logica_.FactorZoomActual());
}

void ElectricoForma::refrescar() {
    logica_.refrescar();
    mostrar();
}

void ElectricoForma::aplicar() {
    logica_.Aplicar();
}

}  // namespace bosquel
