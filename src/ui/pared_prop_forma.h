#pragma once

#include "ui/dialogo.h"

#include <array>
#include <string>

class QLayout;
class QRadioButton;

namespace bosquel {

class CampoNumero;
class Dial;
class ParedProp;

/// "Propiedades de Muros y Tabiques": the wall dialog on the screen.
class ParedPropForma : public Dialogo {
    Q_OBJECT

  public:
    explicit ParedPropForma(ParedProp& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;
    void cancelar() override;

  private:
    CampoNumero* campo(const char* nombre, std::string ParedProp::*texto);
    QWidget* marcoCoordenadas();
    QWidget* medidas();
    QLayout* direccion();
    QWidget* casilla();
    QRadioButton* radio(int tipo, const QString& rotulo, QWidget* ancho);

    void elegirAngulo(int etiqueta);
    void mostrarTipo();

    ParedProp& logica_;
    std::array<QRadioButton*, 2> tipo_{};
    CampoNumero* txtAnchoMuro_ = nullptr;
    CampoNumero* txtAnchoTabique_ = nullptr;
    CampoNumero* txtLongitud_ = nullptr;
    CampoNumero* txtAngulo_ = nullptr;
    Dial* dial_ = nullptr;
};

}  // namespace bosquel
