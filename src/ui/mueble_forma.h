#pragma once

#include "ui/dialogo_mueble_forma.h"

namespace bosquel {

class BotonesDist;
class MuebleProp;

/// The dialog of a piece of furniture on the screen, from `SillaProp` to `VertederoProp`: what it shows is
/// the row of its kind.
class MuebleForma final : public DialogoMuebleForma {
    Q_OBJECT

  public:
    explicit MuebleForma(MuebleProp& logica, QWidget* padre = nullptr);

  private:
    QWidget* medidas();
    QWidget* opciones();
    QWidget* escurridor();
    QWidget* dist();
    /// The pictures and the pressed button follow the element.
    void mostrarDist();

    MuebleProp& logica_;
    BotonesDist* dist_ = nullptr;
};

}  // namespace bosquel
