#include "ui/escalera_forma.h"

#include "model/standard.h"
#include "stairs_symbols/escalera_prop.h"
#include "ui/campo_numero.h"
#include "ui/marco_previo.h"
#include "ui/panel_angulo.h"
#include "ui/radios.h"
#include "ui/rotulos.h"
#include "ui/selector_color.h"
#include "ui/textos.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

namespace bosquel {

namespace {

constexpr int ladoMarco = 340, anchoCampo = 64;      // px
constexpr int separacion = 14, separacionFilas = 8;  // px

/// The columns of a row of `frmTramo`.
enum Columna { columnaRotulo, columnaPeldanos, columnaAncho, columnaUnidad, columnaBarandilla };

QString conIndice(const char* nombre, std::size_t indice) {
    return QString::fromUtf8(nombre) + '_' + QString::number(indice);
}

/// Room for all the rows that there can be: nothing moves when they come and go.
int altoDeTramos() {
    const int fila = CampoNumero(FiltraDecimal).sizeHint().height() + separacionFilas;
    return QLabel("Ancho").sizeHint().height() + EscaleraProp::maximoTramos * fila;
}

void ponerCabecera(QGridLayout* rejilla) {
    rejilla->addWidget(new QLabel("Peldaños"), 0, columnaPeldanos);
    rejilla->addWidget(new QLabel("Ancho"), 0, columnaAncho);
    rejilla->setColumnStretch(columnaRotulo, 1);
}

}  // namespace

EscaleraForma::EscaleraForma(EscaleraProp& logica, QWidget* padre)
    : Dialogo("EscaleraProp", "Propiedades Escalera", {"Command1", "Command2"}, padre),
      logica_(logica),
      frmTramo_(new QFrame),
      color_(new SelectorColor("txtLineColor", "cmdLineColor", "color de línea")),
      angulo_(new PanelAngulo(logica.Angulo)),
      marco_(new MarcoPrevio(ladoMarco)) {
    color_->ponerColor(logica.txtLineColor);
    connect(color_, &SelectorColor::elegido, this, [this] {
        logica_.txtLineColor = color_->color();
        refrescar();
    });
    connect(angulo_, &PanelAngulo::cambiado, this, &EscaleraForma::refrescar);

    auto* columnas = new QHBoxLayout;
    columnas->setSpacing(separacion);
    columnas->addWidget(definicion());
    columnas->addWidget(angulo_);
    columnas->addWidget(marco_);
    cuerpo()->addLayout(columnas);
    cuerpo()->addWidget(casilla("Check1", "Guardar como &modelo", logica_.Check1));
    ponerTramos();
    refrescar();
    findChild<CampoNumero*>("txtHuella")->setFocus();
}

QWidget* EscaleraForma::definicion() {
    auto* huella = campo("txtHuella", "Peldaño", logica_.txtHuella, "m");
    auto* ojo = campo("txtAnchoOjo", "Ancho Ojo", logica_.txtAnchoOjo, "m");
    auto* rejilla = nuevaRejilla();
    ponerFila(rejilla, 0, rotular("&Peldaño", huella, "m"), huella, "m");
    ponerFila(rejilla, 1, rotular("Ancho &Ojo", ojo, "m"), ojo, "m");
    rejilla->addWidget(rotular("Co&lor", color_), 2, 0);
    rejilla->addWidget(color_, 2, 1, 1, 2);

    frmTramo_->setObjectName("frmTramo");
    frmTramo_->setFixedHeight(altoDeTramos());
    auto* tramos = new QVBoxLayout(frmTramo_);
    tramos->setContentsMargins(0, 0, 0, 0);
    tramos->setAlignment(Qt::AlignTop);
    auto* marco = new QGroupBox("Definición");
    auto* columna = new QVBoxLayout(marco);
    columna->setSpacing(separacion);
    columna->addLayout(rejilla);
    columna->addWidget(casilla("chkOrientacion", "&Invertir el sentido de giro", logica_.chkOrientacion));
    columna->addLayout(opcionesDeTramos());
    columna->addWidget(frmTramo_);
    columna->addStretch();
    return marco;
}

QLayout* EscaleraForma::opcionesDeTramos() {
    auto* fila = new QHBoxLayout;
    auto* rotulo = new QLabel("&Nº Tramos");
    fila->addWidget(rotulo);
    fila->addStretch();
    const auto elegir = [this](int cuantos) {
        logica_.elegirTramos(cuantos);
        ponerTramos();
        refrescar();
    };
    const auto opciones = nuevosRadios("optTramos", 1, {"1", "2", "3"}, logica_.optTramos(), elegir);
    for (QRadioButton* opcion : opciones) {
        opcion->setAccessibleName("Nº Tramos " + opcion->text());
        fila->addWidget(opcion);
    }
    rotulo->setBuddy(opciones[static_cast<std::size_t>(std::max(logica_.optTramos() - 1, 0))]);
    return fila;
}

CampoNumero* EscaleraForma::campo(const QString& nombre, const QString& leido, std::string& texto,
                                  const QString& unidad) {
    auto* campo = new CampoNumero(FiltraDecimal);
    campo->setObjectName(nombre);
    campo->setAccessibleName(leido);
    campo->setAccessibleDescription(unidad);
    campo->setText(aQString(texto));
    campo->setAlignment(Qt::AlignRight);
    campo->setFixedWidth(anchoCampo);
    connect(campo, &QLineEdit::textChanged, this, [this, &texto](const QString& nuevo) {
        texto = nuevo.toStdString();
        refrescar();
    });
    return campo;
}

QCheckBox* EscaleraForma::casilla(const QString& nombre, const QString& rotulo, bool& marca) {
    auto* casilla = nombrar(new QCheckBox(rotulo), nombre.toUtf8().constData());
    casilla->setChecked(marca);
    connect(casilla, &QCheckBox::toggled, this, [this, &marca](bool puesta) {
        marca = puesta;
        refrescar();
    });
    return casilla;
}

/// The logic has made its rows anew: those that showed the old ones go at once.
void EscaleraForma::ponerTramos() {
    delete tramos_;
    tramos_ = new QWidget;
    auto* rejilla = new QGridLayout(tramos_);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setVerticalSpacing(separacionFilas);
    ponerCabecera(rejilla);
    for (std::size_t i = 1; i <= logica_.tramos.size(); ++i)
        ponerTramo(rejilla, i);
    frmTramo_->layout()->addWidget(tramos_);
    ordenarTodo();
}

void EscaleraForma::ponerTramo(QGridLayout* rejilla, std::size_t indice) {
    EscaleraProp::Tramo& tramo = logica_.tramos[indice - 1];
    const int fila = static_cast<int>(indice);
    const QString rotulo = aQString(tramo.lblTramo);
    auto* lblTramo = new QLabel(rotulo);
    lblTramo->setObjectName(conIndice("lblTramo", indice));
    auto* barandilla = casilla(conIndice("chkBarandilla", indice), "Barandilla", tramo.chkBarandilla);
    barandilla->setAccessibleName(rotulo + ", Barandilla");
    rejilla->addWidget(lblTramo, fila, columnaRotulo);
    rejilla->addWidget(campo(conIndice("txtPeldaños", indice), rotulo + ", Peldaños", tramo.txtPeldaños, {}),
                       fila, columnaPeldanos);
    rejilla->addWidget(
        campo(conIndice("txtAnchoTramo", indice), rotulo + ", Ancho", tramo.txtAnchoTramo, "m"), fila,
        columnaAncho);
    rejilla->addWidget(new QLabel("m"), fila, columnaUnidad);
    rejilla->addWidget(barandilla, fila, columnaBarandilla);
}

void EscaleraForma::ordenarTodo() {
    QStringList nombres{"txtHuella", "txtAnchoOjo", "cmdLineColor", "chkOrientacion"};
    for (std::size_t n = 1; n <= EscaleraProp::maximoTramos; ++n)
        nombres += conIndice("optTramos", n);
    for (std::size_t i = 1; i <= logica_.tramos.size(); ++i)
        for (const char* nombre : {"txtPeldaños", "txtAnchoTramo", "chkBarandilla"})
            nombres += conIndice(nombre, i);
    ordenar(nombres + PanelAngulo::orden() + QStringList{"Check1", "Command1", "Command2"});
}

void EscaleraForma::refrescar() {
    logica_.PreviewChanges();
    marco_->mostrar(logica_.StairPreview(), logica_.FactorZoomActual());
}

void EscaleraForma::aplicar() {
    logica_.Aplicar();
}

}  // namespace bosquel
