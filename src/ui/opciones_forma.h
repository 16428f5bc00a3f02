#pragma once

#include "ui/dialogo.h"

#include <string>
#include <vector>

class QCheckBox;

namespace bosquel {

class CampoNumero;
class Opciones;

/// "Configuración": the settings dialog on the screen.
class OpcionesForma : public Dialogo {
    Q_OBJECT

  public:
    explicit OpcionesForma(Opciones& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;

  private:
    /// A control and the member that it shows.
    struct Texto {
        CampoNumero* campo;
        std::string Opciones::*valor;
    };
    struct Casilla {
        QCheckBox* campo;
        bool Opciones::*valor;
    };

    CampoNumero* texto(const char* nombre, CampoNumero* campo, std::string Opciones::*valor);
    QCheckBox* casilla(const char* nombre, const QString& rotulo, bool Opciones::*valor);
    QWidget* dimensiones();
    QWidget* cuadricula();
    QWidget* salvadoAutomatico();
    void mostrar();

    Opciones& logica_;
    std::vector<Texto> textos_;
    std::vector<Casilla> casillas_;
};

}  // namespace bosquel
