#include "ui/panel_angulo.h"

#include "model/standard.h"
#include "stairs_symbols/angulo_giro.h"
#include "ui/campo_numero.h"
#include "ui/dial.h"
#include "ui/rotulos.h"
#include "ui/textos.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr double largoRadios = 112;          // px
constexpr int anchoCampo = 64;               // px
constexpr int separacion = 8, holgura = 16;  // px

Dial::Traza trazaDial() {
    Dial::Traza traza{"EtiquetaAngulo_", "LineaAngulo_", {}, largoRadios};
    for (int radio = 1; radio <= AnguloGiro::radios; ++radio)
        traza.radios.push_back({aQString(AnguloGiro::EtiquetaAngulo(radio)), AnguloGiro::direccion(radio)});
    return traza;
}

}  // namespace

PanelAngulo::PanelAngulo(AnguloGiro& angulo, QWidget* padre)
    : QGroupBox("An&gulo", padre),
      angulo_(angulo),
      TxtAngulo_(nombrar(new CampoNumero(FiltraDecimal), "TxtAngulo")),
      dial_(new Dial(trazaDial())) {
    TxtAngulo_->setAccessibleName("Angulo");
    TxtAngulo_->setAccessibleDescription("grados");
    TxtAngulo_->setAlignment(Qt::AlignRight);
    TxtAngulo_->setFixedWidth(anchoCampo);
    connect(TxtAngulo_, &QLineEdit::textChanged, this, [this](const QString& texto) {
        angulo_.escribir(texto.toStdString());
        mostrar();
    });
    dial_->setObjectName("Dial");
    dial_->setAccessibleName("Dial del ángulo");
    connect(dial_, &Dial::pulsado, this, [this](int radio) {
        angulo_.elegirRadio(radio);
        mostrar();
    });

    auto* fila = new QHBoxLayout;
    fila->addWidget(giro(0, "-90º", "Restar 90 grados"));
    fila->addStretch();
    fila->addWidget(TxtAngulo_);
    fila->addWidget(new QLabel("º"));
    fila->addStretch();
    fila->addWidget(giro(1, "+90º", "Sumar 90 grados"));
    auto* columna = new QVBoxLayout(this);
    columna->setSpacing(separacion);
    columna->addLayout(fila);
    columna->addWidget(dial_, 0, Qt::AlignCenter);
    mostrar();
}

const QStringList& PanelAngulo::orden() {
    static const QStringList nombres{"TxtAngulo", "cmd90Plus_0", "cmd90Plus_1", "Dial"};
    return nombres;
}

QPushButton* PanelAngulo::giro(int indice, const QString& rotulo, const QString& leido) {
    auto* boton = nombrar(new QPushButton(rotulo), indice == 0 ? "cmd90Plus_0" : "cmd90Plus_1");
    boton->setAccessibleName(leido);
    boton->setAutoDefault(false);  // Enter applies, wherever the focus is
    boton->setFixedWidth(boton->fontMetrics().horizontalAdvance(rotulo) + 2 * holgura);
    connect(boton, &QPushButton::clicked, this, [this, indice] {
        angulo_.cmd90Plus(indice);
        mostrar();
    });
    return boton;
}

/// The text may be another than the one that was typed.
void PanelAngulo::mostrar() {
    const QSignalBlocker callado(TxtAngulo_);
    const QString texto = aQString(angulo_.TxtAngulo());
    if (TxtAngulo_->text() != texto) TxtAngulo_->setText(texto);
    dial_->encender(angulo_.radioEncendido());
    emit cambiado();
}

}  // namespace bosquel
