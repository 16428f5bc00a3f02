#include "ui/abertura_prop_forma.h"

#include "model/standard.h"
#include "openings/abertura_prop.h"
#include "ui/campo_numero.h"
#include "ui/croquis_abertura.h"
#include "ui/rotulos.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>

namespace bosquel {

namespace {

constexpr int anchoCampo = 84;  // px

}  // namespace

AberturaPropForma::AberturaPropForma(const char* nombre, const QString& titulo, AberturaProp& logica,
                                     QWidget* padre)
    : Dialogo(nombre, titulo, {"Command1", "Command2"}, padre), logica_(logica) {}

CampoNumero* AberturaPropForma::campo(const char* nombre, std::string AberturaProp::*texto) {
    auto* campo = nombrar(new CampoNumero(FiltraDecimal), nombre);
    campo->setText(QString::fromStdString(logica_.*texto));
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(anchoCampo);
    connect(campo, &QLineEdit::textChanged, this,
            [this, texto](const QString& nuevo) { logica_.*texto = nuevo.toStdString(); });
    return campo;
}

QLayout* AberturaPropForma::longitud(const QString& rotulo) {
    auto* txtLongitud = campo("txtLongitud", &AberturaProp::txtLongitud);
    auto* rejilla = new QGridLayout;
    ponerFila(rejilla, 0, rotular(rotulo, txtLongitud, "metros"), txtLongitud, "metros");
    return rejilla;
}

QRadioButton* AberturaPropForma::radio(const QString& nombre, const QString& rotulo, bool elegido,
                                       const std::function<void()>& alElegir) {
    auto* boton = nombrar(new QRadioButton(rotulo), nombre.toUtf8().constData());
    boton->setChecked(elegido);
    connect(boton, &QRadioButton::toggled, this, [alElegir](bool puesto) {
        if (puesto) alElegir();
    });
    return boton;
}

QLayout* AberturaPropForma::alineacion(const QString& enElMedio) {
    const auto elegir = [this](int cual) {
        return [this, cual] {
            logica_.elegirAlineacion(cual);
            mostrarAlineacion();
        };
    };
    auto* medio = radio("optAlineacion_0", enElMedio, logica_.alineacion() == 0, elegir(0));
    auto* situada = radio("optAlineacion_1", "&Situada a ", logica_.alineacion() == 1, elegir(1));
    // The radios of the frames within the dialog are no part of this choice.
    auto* grupo = new QButtonGroup(this);
    grupo->addButton(medio);
    grupo->addButton(situada);
    txtDistancia_ = campo("TxtDistancia", &AberturaProp::TxtDistancia);
    txtDistancia_->setAccessibleName("Distancia");
    txtDistancia_->setAccessibleDescription("metros del extremo");
    auto* rejilla = new QGridLayout;
    rejilla->addWidget(medio, 0, 0, 1, 3);
    ponerFila(rejilla, 1, situada, txtDistancia_, "metros del extremo");
    return rejilla;
}

CroquisAbertura* AberturaPropForma::croquis(const std::array<const char*, 4>& rotulos) {
    croquis_ = new CroquisAbertura(logica_, rotulos);
    return croquis_;
}

QCheckBox* AberturaPropForma::casilla() {
    auto* casilla = nombrar(new QCheckBox("&Guardar como modelo"), "Check1");
    casilla->setChecked(logica_.Check1);
    connect(casilla, &QCheckBox::toggled, this, [this](bool puesta) { logica_.Check1 = puesta; });
    return casilla;
}

void AberturaPropForma::empezarPorLaLongitud() {
    ordenar({"Check1", "Command1", "Command2"});
    findChild<CampoNumero*>("txtLongitud")->setFocus();
}

void AberturaPropForma::mostrarAlineacion() {
    txtDistancia_->setEnabled(logica_.distanciaHabilitada());
    croquis_->mostrar();
}

void AberturaPropForma::aplicar() {
    logica_.Aplicar();
}

}  // namespace bosquel
