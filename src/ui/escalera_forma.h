#pragma once

#include "ui/dialogo.h"

#include <cstddef>
#include <string>

class QCheckBox;
class QFrame;
class QGridLayout;
class QLayout;

namespace bosquel {

class CampoNumero;
class EscaleraProp;
class MarcoPrevio;
class PanelAngulo;
class SelectorColor;

/// "Propiedades Escalera": the stair dialog on the screen.
class EscaleraForma : public Dialogo {
    Q_OBJECT

  public:
    explicit EscaleraForma(EscaleraProp& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;

  private:
    QWidget* definicion();
    QLayout* opcionesDeTramos();
    CampoNumero* campo(const QString& nombre, const QString& leido, std::string& texto,
                       const QString& unidad);
    QCheckBox* casilla(const QString& nombre, const QString& rotulo, bool& marca);
    void ponerTramos();
    void ponerTramo(QGridLayout* rejilla, std::size_t indice);
    void ordenarTodo();
    void refrescar();

    EscaleraProp& logica_;
    QFrame* frmTramo_;
    QWidget* tramos_ = nullptr;  ///< the rows, made anew with the number of flights
    SelectorColor* color_;
    PanelAngulo* angulo_;
    MarcoPrevio* marco_;
};

}  // namespace bosquel
