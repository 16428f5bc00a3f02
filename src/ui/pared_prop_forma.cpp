#include "ui/pared_prop_forma.h"

#include "model/standard.h"
#include "ui/campo_numero.h"
#include "ui/dial.h"
#include "ui/rotulos.h"
#include "ui/unidades.h"
#include "walls/pared_prop.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr double largoRadios = 112;     // px
constexpr int gradosPorRadio = 15;      // from 90 downwards
constexpr int anchoCampo = 84;          // px
constexpr double bajadaPilar = 200;     // sheet units
constexpr int separacionColumnas = 22;  // px

/// The rows of the sizes. In a pilar the width stands alone, in the place of the two radios, and a row of its
/// own pushes the length down.
enum Fila { filaMuro, filaTabique, filaBajada, filaLongitud };

Dial::Traza trazaDial() {
    Dial::Traza traza{"EtiquetaAngulo_", "LineaAngulo_", {}, largoRadios};
    int angulo = 90;
    for (const auto rotulo : ParedProp::EtiquetaAngulo) {
        traza.radios.push_back(
            {QString::fromUtf8(rotulo.data(), static_cast<qsizetype>(rotulo.size())), angulo});
        angulo -= gradosPorRadio;
    }
    return traza;
}

/// Out of sight, its place kept.
void esconder(QWidget* control) {
    QSizePolicy medidas = control->sizePolicy();
    medidas.setRetainSizeWhenHidden(true);
    control->setSizePolicy(medidas);
    control->hide();
}

/// Caption, field and unit of the width over the rows of both radios, the length pushed down.
void acomodarPilar(QGridLayout* rejilla, const std::array<QWidget*, 3>& anchura) {
    const int alto = anchura[1]->sizeHint().height();
    anchura[0]->setFixedHeight(alto);
    rejilla->setRowMinimumHeight(filaMuro, alto);
    rejilla->setRowMinimumHeight(filaBajada, aPixeles(bajadaPilar));
    for (int columna = 0; columna < 3; ++columna) {
        QWidget* control = anchura[static_cast<std::size_t>(columna)];
        rejilla->removeWidget(control);
        rejilla->addWidget(control, filaMuro, columna, 2, 1,
                           columna == 1 ? Qt::Alignment() : Qt::AlignVCenter);
    }
}

}  // namespace

ParedPropForma::ParedPropForma(ParedProp& logica, QWidget* padre)
    : Dialogo("ParedProp", "Propiedades de Muros y Tabiques", {"Botones_1", "Botones_0"}, padre),
      logica_(logica) {
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(marcoCoordenadas());
    izquierda->addLayout(medidas());
    izquierda->addStretch();
    izquierda->addWidget(casilla());

    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(separacionColumnas);
    columnas->addLayout(izquierda);
    columnas->addLayout(direccion());
    cuerpo()->addLayout(columnas);
    mostrarTipo();
    txtLongitud_->setFocus();
}

CampoNumero* ParedPropForma::campo(const char* nombre, std::string ParedProp::*texto) {
    auto* campo = nombrar(new CampoNumero(FiltraDecimal), nombre);
    campo->setText(QString::fromStdString(logica_.*texto));
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(anchoCampo);
    connect(campo, &QLineEdit::textChanged, this,
            [this, texto](const QString& nuevo) { logica_.*texto = nuevo.toStdString(); });
    return campo;
}

QWidget* ParedPropForma::marcoCoordenadas() {
    auto* marco = new QGroupBox("Coordenadas punto inicial");
    auto* rejilla = new QGridLayout(marco);
    auto* x = campo("TxtInicialX", &ParedProp::TxtInicialX);
    auto* y = campo("TxtInicialY", &ParedProp::TxtInicialY);
    x->setReadOnly(true);
    y->setReadOnly(true);
    ponerFila(rejilla, 0, rotular("&X", x, "m"), x, "m");
    ponerFila(rejilla, 1, rotular("&Y", y, "m"), y, "m");
    return marco;
}

QRadioButton* ParedPropForma::radio(int tipo, const QString& rotulo, QWidget* ancho) {
    auto* boton = nombrar(new QRadioButton(rotulo, this), tipo == 0 ? "Tipo_0" : "Tipo_1");
    ancho->setAccessibleName(leido(rotulo));
    ancho->setAccessibleDescription("m");
    boton->setChecked(logica_.tipo() == tipo);
    connect(boton, &QRadioButton::toggled, this, [this, tipo](bool elegido) {
        if (!elegido) return;
        logica_.elegirTipo(tipo);
        mostrarTipo();
    });
    return boton;
}

QLayout* ParedPropForma::medidas() {
    txtAnchoMuro_ = campo("TxtAnchoMuro", &ParedProp::TxtAnchoMuro);
    txtAnchoTabique_ = campo("TxtAnchoTabique", &ParedProp::TxtAnchoTabique);
    txtLongitud_ = campo("txtLongitud", &ParedProp::txtLongitud);
    tipo_ = {radio(0, "Ancho &Muro", txtAnchoMuro_), radio(1, "Ancho &Tabique", txtAnchoTabique_)};
    auto* anchura = nombrar(new QLabel("Anch&ura", this), "Label4_1");
    anchura->setVisible(logica_.esPilar());
    auto* longitud = nombrar(rotular("&Longitud", txtLongitud_, "m"), "Label4_0");

    auto* rejilla = new QGridLayout;
    QWidget* metrosMuro = ponerFila(rejilla, filaMuro, tipo_[0], txtAnchoMuro_, "m");
    QWidget* metrosTabique = ponerFila(rejilla, filaTabique, tipo_[1], txtAnchoTabique_, "m");
    ponerFila(rejilla, filaLongitud, longitud, txtLongitud_, "m");
    if (!logica_.esPilar()) return rejilla;

    for (QWidget* control : {static_cast<QWidget*>(tipo_[0]), static_cast<QWidget*>(tipo_[1]),
                             static_cast<QWidget*>(txtAnchoTabique_), metrosTabique})
        esconder(control);
    acomodarPilar(rejilla, {anchura, txtAnchoMuro_, metrosMuro});
    anchura->setBuddy(txtAnchoMuro_);
    txtAnchoMuro_->setAccessibleName(leido(anchura->text()));
    return rejilla;
}

QLayout* ParedPropForma::direccion() {
    txtAngulo_ = campo("TxtAngulo", &ParedProp::TxtAngulo);
    dial_ = new Dial(trazaDial());
    dial_->setObjectName("Dial");
    dial_->setAccessibleName("Dial del ángulo");
    dial_->encender(logica_.radioEncendido());
    connect(dial_, &Dial::pulsado, this, &ParedPropForma::elegirAngulo);
    connect(dial_, &Dial::doblePulsado, this, [this](int etiqueta) {
        elegirAngulo(etiqueta);
        accept();
    });

    auto* rejilla = new QGridLayout;
    ponerFila(rejilla, 0, rotular("Án&gulo", txtAngulo_, "grados"), txtAngulo_, "º");
    auto* columna = new QVBoxLayout;
    columna->addLayout(rejilla);
    columna->addWidget(dial_);
    return columna;
}

QWidget* ParedPropForma::casilla() {
    auto* casilla = nombrar(new QCheckBox("Salvar  como &predeterminados", this), "ChkPredeterminar");
    casilla->setChecked(logica_.ChkPredeterminar);
    connect(casilla, &QCheckBox::toggled, this, [this](bool puesta) { logica_.ChkPredeterminar = puesta; });
    casilla->setVisible(!logica_.esPilar());
    return casilla;
}

void ParedPropForma::elegirAngulo(int etiqueta) {
    logica_.elegirAngulo(etiqueta);
    txtAngulo_->setText(QString::fromStdString(logica_.TxtAngulo));
    dial_->encender(logica_.radioEncendido());
}

void ParedPropForma::mostrarTipo() {
    txtAnchoMuro_->setEnabled(logica_.muroHabilitado());
    txtAnchoTabique_->setEnabled(logica_.tabiqueHabilitado());
}

void ParedPropForma::aplicar() {
    logica_.Aplicar();
}

void ParedPropForma::cancelar() {
    logica_.Cancelar();
}

}  // namespace bosquel
