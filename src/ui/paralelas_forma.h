#pragma once

#include "ui/dialogo.h"

class QRadioButton;

namespace bosquel {

class Paralelas;

/// "Situar Paralela": a sketch of the wall with a button on each of its sides, and the distance.
class ParalelasForma : public Dialogo {
    Q_OBJECT

  public:
    explicit ParalelasForma(Paralelas& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;

  private:
    QWidget* boceto();
    QRadioButton* lado(int cual, QWidget* campo);
    QWidget* distancia();

    Paralelas& logica_;
};

}  // namespace bosquel
