#include "ui/pared_prop_forma.h"

#include "model/standard.h"
#include "ui/campo_numero.h"
#include "ui/dial.h"
#include "ui/rotulos.h"
#include "ui/textos.h"
#include "ui/unidades.h"
#include "walls/pared_prop.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr double largoRadios = 112;                            // px
constexpr int gradosPorRadio = 15;                             // from 90 downwards
constexpr int anchoCampo = 84;                                 // px
constexpr double bajadaPilar = 200;                            // sheet units
constexpr int separacionColumnas = 22, separacionMarcos = 12;  // px

/// The rows of the sizes. In a pilar the width stands alone, in the place of the two radios, and the length
/// lower in its row.
enum Fila { filaMuro, filaTabique, filaLongitud };

Dial::Traza trazaDial() {
    Dial::Traza traza{"EtiquetaAngulo_", "LineaAngulo_", {}, largoRadios};
    int angulo = 90;
    for (const auto rotulo : ParedProp::EtiquetaAngulo) {
        traza.radios.push_back({aQString(rotulo), angulo});
        angulo -= gradosPorRadio;
    }
    return traza;
}

using FilaPared = std::array<QWidget*, 3>;  // caption, field and unit

void mover(QGridLayout* rejilla, const FilaPared& controles, int fila, Qt::Alignment alineacion) {
    for (int columna = 0; QWidget * control : controles) {
        rejilla->removeWidget(control);
        rejilla->addWidget(control, fila, columna++, alineacion);
    }
}

/// The width takes the height of both radios' rows.
void acomodarPilar(QGridLayout* rejilla, const FilaPared& anchura, const FilaPared& longitud) {
    const int alto = longitud[1]->sizeHint().height();
    for (QWidget* texto : {anchura[0], anchura[2], longitud[0], longitud[2]})
        texto->setFixedHeight(alto);
    rejilla->setRowMinimumHeight(filaMuro, 2 * alto + rejilla->verticalSpacing());
    rejilla->setRowMinimumHeight(filaLongitud, alto + aPixeles(bajadaPilar));
    mover(rejilla, anchura, filaMuro, Qt::AlignVCenter);
    mover(rejilla, longitud, filaLongitud, Qt::AlignBottom);
}

}  // namespace

ParedPropForma::ParedPropForma(ParedProp& logica, QWidget* padre)
    : Dialogo("ParedProp", "Propiedades de Muros y Tabiques", {"Botones_1", "Botones_0"}, padre),
      logica_(logica) {
    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(separacionMarcos);
    izquierda->addWidget(marcoCoordenadas());
    izquierda->addWidget(medidas());
    izquierda->addStretch();
    izquierda->addWidget(casilla());

    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(separacionColumnas);
    columnas->addLayout(izquierda);
    columnas->addLayout(direccion());
    cuerpo()->addLayout(columnas);
    mostrarTipo();
    ordenar({"TxtInicialX", "TxtInicialY", "Tipo_0", "TxtAnchoMuro", "Tipo_1", "TxtAnchoTabique",
             "txtLongitud", "ChkPredeterminar", "TxtAngulo", "Dial", "Botones_1", "Botones_0"});
    txtLongitud_->setFocus();
}

CampoNumero* ParedPropForma::campo(const char* nombre, std::string ParedProp::*texto) {
    auto* campo = nombrar(new CampoNumero(FiltraDecimal), nombre);
    campo->setText(aQString(logica_.*texto));
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(anchoCampo);
    connect(campo, &QLineEdit::textChanged, this,
            [this, texto](const QString& nuevo) { logica_.*texto = nuevo.toStdString(); });
    return campo;
}

QWidget* ParedPropForma::marcoCoordenadas() {
    auto* marco = new QGroupBox("Coordenadas punto inicial");
    auto* rejilla = nuevaRejilla(marco);
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

QWidget* ParedPropForma::medidas() {
    txtAnchoMuro_ = campo("TxtAnchoMuro", &ParedProp::TxtAnchoMuro);
    txtAnchoTabique_ = campo("TxtAnchoTabique", &ParedProp::TxtAnchoTabique);
    txtLongitud_ = campo("txtLongitud", &ParedProp::txtLongitud);
    tipo_ = {radio(0, "Ancho &Muro", txtAnchoMuro_), radio(1, "Ancho &Tabique", txtAnchoTabique_)};
    auto* anchura = nombrar(new QLabel("Anch&ura", this), "Label4_1");
    anchura->setVisible(logica_.esPilar());
    auto* longitud = nombrar(rotular("&Longitud", txtLongitud_, "m"), "Label4_0");

    auto* marco = new QGroupBox("Medidas");
    auto* rejilla = nuevaRejilla(marco);
    auto* metrosMuro = ponerFila(rejilla, filaMuro, tipo_[0], txtAnchoMuro_, "m");
    auto* metrosTabique = ponerFila(rejilla, filaTabique, tipo_[1], txtAnchoTabique_, "m");
    auto* metrosLongitud = ponerFila(rejilla, filaLongitud, longitud, txtLongitud_, "m");
    if (logica_.esPilar()) {
        for (QWidget* control :
             std::initializer_list<QWidget*>{tipo_[0], tipo_[1], txtAnchoTabique_, metrosTabique})
            control->hide();
        acomodarPilar(rejilla, {anchura, txtAnchoMuro_, metrosMuro},
                      {longitud, txtLongitud_, metrosLongitud});
        anchura->setBuddy(txtAnchoMuro_);
        txtAnchoMuro_->setAccessibleName(leido(anchura->text()));
    }
    return marco;
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

    auto* rejilla = nuevaRejilla();
    ponerFila(rejilla, 0, rotular("Án&gulo", txtAngulo_, "grados"), txtAngulo_, "º");
    auto* columna = new QVBoxLayout;
    columna->setSpacing(separacionMarcos);
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
    txtAngulo_->setText(aQString(logica_.TxtAngulo));
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
