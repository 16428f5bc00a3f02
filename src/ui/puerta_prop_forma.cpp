#include "ui/puerta_prop_forma.h"

#include "openings/puerta_prop.h"
#include "ui/croquis_abertura.h"
#include "ui/rotulos.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr std::array rotulos{"Arriba", "Abajo", "Bisagra izquierda", "Bisagra derecha"};

}  // namespace

PuertaPropForma::PuertaPropForma(PuertaProp& logica, QWidget* padre)
    : AberturaPropForma("PuertaProp", "Propiedades de Puerta", logica, padre),
      logica_(logica),
      fmeLado_(extremos()) {
    cuerpo()->addLayout(longitud("&Longitud Hoja:"));
    cuerpo()->addWidget(hojas());
    cuerpo()->addLayout(alineacion("Cen&trada en Pared"));
    cuerpo()->addWidget(fmeLado_);
    cuerpo()->addWidget(casilla());
    PuertaPropForma::mostrarAlineacion();
    empezarPorLaLongitud();
}

QGroupBox* PuertaPropForma::hojas() {
    auto* marco = new QGroupBox("Orientación de hoja(s)");
    auto* fila = new QHBoxLayout;
    fila->addWidget(
        radio("optHojas_0", "&Una hoja", logica_.optHojas() == 0, [this] { logica_.elegirHojas(0); }));
    fila->addWidget(
        radio("optHojas_1", "&Dos Hojas", logica_.optHojas() == 1, [this] { logica_.elegirHojas(1); }));
    auto* columna = new QVBoxLayout(marco);
    columna->addLayout(fila);
    columna->addWidget(croquis(rotulos), 0, Qt::AlignHCenter);
    return marco;
}

QGroupBox* PuertaPropForma::extremos() {
    auto* marco = nombrar(new QGroupBox("Orientación pared"), "fmeLado");
    auto* fila = new QHBoxLayout(marco);
    fila->addWidget(
        radio("optLado_0", "&Izquierda", logica_.optLado() == 0, [this] { logica_.elegirExtremo(0); }));
    fila->addWidget(
        radio("optLado_1", "D&erecha", logica_.optLado() == 1, [this] { logica_.elegirExtremo(1); }));
    return marco;
}

void PuertaPropForma::mostrarAlineacion() {
    AberturaPropForma::mostrarAlineacion();
    fmeLado_->setEnabled(logica_.fmeLadoHabilitado());
}

}  // namespace bosquel
