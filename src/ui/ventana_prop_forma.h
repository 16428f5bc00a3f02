#pragma once

#include "ui/abertura_prop_forma.h"

namespace bosquel {

class VentanaProp;

/// "Propiedades de Ventana": the window dialog on the screen.
class VentanaPropForma : public AberturaPropForma {
    Q_OBJECT

  public:
    explicit VentanaPropForma(VentanaProp& logica, QWidget* padre = nullptr);
};

}  // namespace bosquel
