#pragma once

#include "model/colores.h"
#include "ui/dialogo.h"

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLayout;
class QPushButton;
class QRadioButton;
class QTabWidget;

namespace bosquel {

class Colores;
class SelectorColor;
struct FilaColor;
struct MuestraColor;

/// "Colores por Tipos": the colour dialog on the screen.
class ColoresForma : public Dialogo {
  public:
    explicit ColoresForma(Colores& logica, QWidget* padre = nullptr);

  protected:
    void aplicar() override;

  private:
    QLayout* esquemas();
    QWidget* perfiles();
    QWidget* pagina(std::size_t solapa);
    void ponerFila(QGridLayout* rejilla, const FilaColor& fila);
    QCheckBox* casilla(const FilaColor& fila);
    SelectorColor* selector(const FilaColor& fila, const MuestraColor& muestra, const Color* color);

    /// What does something with the logic and shows what has come of it.
    std::function<void()> mostrandoTras(std::function<void()> paso);
    void llenarPerfiles();
    void mostrar();

    Colores& logica_;
    std::vector<QRadioButton*> opciones_;
    QComboBox* cboPerfil_;
    QPushButton* cmdGuardarPerfil_;
    QTabWidget* solapas_;
    std::vector<std::pair<QCheckBox*, bool*>> casillas_;
    std::vector<std::pair<SelectorColor*, const Color*>> selectores_;
    QStringList orden_;  ///< of the Tab key
};

}  // namespace bosquel
