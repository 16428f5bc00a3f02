#pragma once

#include "ui/abertura_prop_forma.h"

class QGroupBox;

namespace bosquel {

class PuertaProp;

/// "Propiedades de Puerta": the door dialog on the screen.
class PuertaPropForma : public AberturaPropForma {
    Q_OBJECT

  public:
    explicit PuertaPropForma(PuertaProp& logica, QWidget* padre = nullptr);

  protected:
    void mostrarAlineacion() override;

  private:
    QGroupBox* hojas();
    QGroupBox* extremos();

    PuertaProp& logica_;
    QGroupBox* fmeLado_;
};

}  // namespace bosquel
