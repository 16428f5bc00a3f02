#include "ui/ventana_prop_forma.h"

#include "openings/ventana_prop.h"
#include "ui/croquis_abertura.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr std::array rotulos{"Arriba", "Abajo", "Extremo izquierdo", "Extremo derecho"};

}  // namespace

VentanaPropForma::VentanaPropForma(VentanaProp& logica, QWidget* padre)
    : AberturaPropForma("VentanaProp", "Propiedades de Ventana", logica, padre) {
    auto* marco = new QGroupBox("Orientación y Alineación en la pared");
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(croquis(rotulos), 0, Qt::AlignHCenter);
    columna->addLayout(alineacion("Cen&trada en la pared"));
    cuerpo()->addLayout(longitud("&Longitud de la ventana:"));
    cuerpo()->addWidget(marco);
    cuerpo()->addWidget(casilla());
    mostrarAlineacion();
    empezarPorLaLongitud();
}

}  // namespace bosquel
