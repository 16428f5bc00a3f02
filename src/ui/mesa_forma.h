#pragma once

#include "ui/dialogo_mueble_forma.h"

#include <vector>

namespace bosquel {

class BotonesDist;
class MesaProp;

/// "Propiedades de mesa": the table's dialog on the screen.
class MesaForma final : public DialogoMuebleForma {
    Q_OBJECT

  public:
    explicit MesaForma(MesaProp& logica, QWidget* padre = nullptr);

  private:
    QWidget* medidas();
    QWidget* numeroDeSillas();
    QWidget* colocaciones();
    BotonesDist* grupo(int cual);

    /// The group that is on view.
    void mostrarGrupo();
    /// The pictures and the pressed button follow the table.
    void mostrarDist();

    MesaProp& logica_;
    std::vector<BotonesDist*> frmDist_;
};

}  // namespace bosquel
