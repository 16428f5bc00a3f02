#pragma once

#include "ui/dialogo.h"

#include <array>
#include <functional>
#include <string>

class QCheckBox;
class QLayout;
class QRadioButton;

namespace bosquel {

class AberturaProp;
class CampoNumero;
class CroquisAbertura;

/// What the dialogs of windows and doors share on the screen.
class AberturaPropForma : public Dialogo {
    Q_OBJECT

  protected:
    AberturaPropForma(const char* nombre, const QString& titulo, AberturaProp& logica, QWidget* padre);

    CampoNumero* campo(const char* nombre, std::string AberturaProp::*texto);
    /// Caption, field and unit of `txtLongitud`.
    QLayout* longitud(const QString& rotulo);
    /// The two radios of `optAlineacion`, the second with its distance.
    QLayout* alineacion(const QString& enElMedio);
    CroquisAbertura* croquis(const std::array<const char*, 4>& rotulos);
    QCheckBox* casilla();
    /// Once all controls are there: the focus starts at the length, and the buttons come last.
    void empezarPorLaLongitud();
    /// A radio of an index group, set as `elegido` says; `alElegir` is told when the user sets it.
    QRadioButton* radio(const QString& nombre, const QString& rotulo, bool elegido,
                        const std::function<void()>& alElegir);

    /// What can be chosen has changed.
    virtual void mostrarAlineacion();
    void aplicar() final;

  private:
    AberturaProp& logica_;
    CampoNumero* txtDistancia_ = nullptr;
    CroquisAbertura* croquis_ = nullptr;
};

}  // namespace bosquel
