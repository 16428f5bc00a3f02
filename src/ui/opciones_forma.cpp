#include "ui/opciones_forma.h"

#include "drawing/opciones.h"
#include "model/standard.h"
#include "ui/campo_numero.h"
#include "ui/rotulos.h"
#include "ui/textos.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int anchoCampo = 84;  // px

/// The fields of all three frames stand in one column, whatever their units.
QGridLayout* rejillaConUnidades(QWidget* marco) {
    auto* rejilla = nuevaRejilla(marco);
    rejilla->setColumnMinimumWidth(2, QLabel("minutos").sizeHint().width());
    return rejilla;
}

}  // namespace

OpcionesForma::OpcionesForma(Opciones& logica, QWidget* padre)
    : Dialogo("Opciones", "Configuración", {"BttAplicar", "BttCancelar"}, padre), logica_(logica) {
    cuerpo()->addWidget(dimensiones());
    cuerpo()->addWidget(cuadricula());
    cuerpo()->addWidget(salvadoAutomatico());
    connect(anadirBoton("BttPredeterminar", "&Predeterminar"), &QPushButton::clicked, this,
            [this] { logica_.Predeterminar(); });
    connect(anadirBoton("BttOriginales", "&Restablecer"), &QPushButton::clicked, this, [this] {
        logica_.Restablecer();
        mostrar();
    });
    ordenar({"TxtAnchoHoja", "TxtAltoHoja", "ChkIman", "ChkVisible", "TxtCuadricula", "chkSalvadoAutomatico",
             "txtSalvarCadaXmin", "BttAplicar", "BttCancelar", "BttPredeterminar", "BttOriginales"});
    findChild<CampoNumero*>("TxtAnchoHoja")->setFocus();
    mostrar();
}

CampoNumero* OpcionesForma::texto(const char* nombre, CampoNumero* campo, std::string Opciones::*valor) {
    nombrar(campo, nombre)->setFixedWidth(anchoCampo);
    campo->setAlignment(Qt::AlignRight);
    connect(campo, &QLineEdit::textChanged, this,
            [this, valor](const QString& nuevo) { logica_.*valor = nuevo.toStdString(); });
    textos_.push_back({campo, valor});
    return campo;
}

QCheckBox* OpcionesForma::casilla(const char* nombre, const QString& rotulo, bool Opciones::*valor) {
    auto* casilla = nombrar(new QCheckBox(rotulo), nombre);
    connect(casilla, &QCheckBox::toggled, this, [this, valor](bool puesta) { logica_.*valor = puesta; });
    casillas_.push_back({casilla, valor});
    return casilla;
}

QWidget* OpcionesForma::dimensiones() {
    auto* marco = new QGroupBox("Dimensiones");
    auto* rejilla = rejillaConUnidades(marco);
    auto* ancho = texto("TxtAnchoHoja", new CampoNumero(FiltraEntero), &Opciones::TxtAnchoHoja);
    auto* alto = texto("TxtAltoHoja", new CampoNumero(FiltraEntero), &Opciones::TxtAltoHoja);
    ponerFila(rejilla, 0, rotular("Ancho &de la hoja:", ancho, "mm"), ancho, "mm");
    ponerFila(rejilla, 1, rotular("Al&to de la hoja:", alto, "mm"), alto, "mm");
    return marco;
}

QWidget* OpcionesForma::cuadricula() {
    auto* marco = new QGroupBox("Cuadrícula");
    auto* rejilla = rejillaConUnidades(marco);
    auto* espaciado = texto("TxtCuadricula", new CampoNumero(FiltraDecimal), &Opciones::TxtCuadricula);
    rejilla->addWidget(casilla("ChkIman", "Activar c&uadrícula", &Opciones::ChkIman), 0, 0, 1, 3);
    rejilla->addWidget(casilla("ChkVisible", "&Mostrar cuadrícula", &Opciones::ChkVisible), 1, 0, 1, 3);
    ponerFila(rejilla, 2, rotular("&Espaciado", espaciado, "metros"), espaciado, "m.");
    return marco;
}

QWidget* OpcionesForma::salvadoAutomatico() {
    auto* marco = new QGroupBox("Salvado Automático");
    auto* rejilla = rejillaConUnidades(marco);
    auto* activar =
        casilla("chkSalvadoAutomatico", "Activar &Salvado Automático", &Opciones::chkSalvadoAutomatico);
    auto* minutos =
        texto("txtSalvarCadaXmin", new CampoNumero(FiltraEntero, CampoNumero::AlEnfocar::dejarCursor),
              &Opciones::txtSalvarCadaXmin);
    rejilla->addWidget(activar, 0, 0, 1, 3);
    ponerFila(rejilla, 1, rotular("&Guardar cada", minutos, "minutos"), minutos, "minutos");
    minutos->setEnabled(false);
    connect(activar, &QCheckBox::toggled, minutos, &QWidget::setEnabled);
    return marco;
}

void OpcionesForma::mostrar() {
    // The values of the logic: a copy, since each control writes back as it is filled.
    const Opciones valores = logica_;
    for (const auto& [campo, valor] : textos_)
        campo->setText(aQString(valores.*valor));
    for (const auto& [campo, valor] : casillas_)
        campo->setChecked(valores.*valor);
}

void OpcionesForma::aplicar() {
    logica_.AplicarValores();
}

}  // namespace bosquel
