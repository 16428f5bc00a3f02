#pragma once

#include "ui/dialogo.h"

#include <functional>
#include <string>

class QCheckBox;
class QGroupBox;
class QRadioButton;

namespace bosquel {

class CampoNumero;
class DialogoMueble;

/// What the dialogs of all furnishing kinds share on the screen.
class DialogoMuebleForma : public Dialogo {
    Q_OBJECT

  protected:
    DialogoMuebleForma(const QString& nombre, const QString& titulo, DialogoMueble& logica, QWidget* padre);

    /// A caption with its mnemonic: a letter that no caption before it has taken, an initial if it
    /// can be.
    QString conLetra(const QString& rotulo);
    /// A field for metres that keeps `texto` up to date.
    CampoNumero* campo(const QString& nombre, std::string& texto);
    /// A radio of an index group; `alElegir` is told when the user sets it.
    QRadioButton* radio(const QString& nombre, const QString& rotulo, bool elegido,
                        const std::function<void()>& alElegir);
    /// What stands at the end of every one of these dialogs: colours and "Guardar como modelo". The focus
    /// goes to the first control.
    void ponerFinal();

    void aplicar() final;

  private:
    QGroupBox* colores();
    QCheckBox* casilla();

    DialogoMueble& logica_;
    QString letras_;  ///< the mnemonics taken, in lower case
};

}  // namespace bosquel
