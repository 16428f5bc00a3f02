#pragma once

#include "ui/dialogo.h"

class QLayout;

namespace bosquel {

class ElectricoProp;
class MarcoPrevio;
class SelectorColor;

/// The dialog of the electrical symbols on the screen.
class ElectricoForma : public Dialogo {
    Q_OBJECT

  public:
    explicit ElectricoForma(ElectricoProp& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;

  private:
    QLayout* opciones();
    void mostrar();
    void refrescar();

    ElectricoProp& logica_;
    SelectorColor* color_;
    MarcoPrevio* marco_;
    QStringList orden_;  ///< the names of the options
};

}  // namespace bosquel
