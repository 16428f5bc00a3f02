#pragma once

#include "drawing/bosquel.h"
#include "surface/calco.h"

#include <QLabel>
#include <QWidget>
#include <vector>

namespace bosquel {

class Boton;
struct GrupoDeBotones;

/// The column at the window's left: the relations between walls, the palette selector, and one palette of
/// element buttons at a time under its title. All buttons are of one size and nothing jumps when the palette
/// changes.
class Columna final : public QWidget {
  public:
    Columna(Bosquel& bosquel, QWidget* padre);

    /// Shows the palette that the session says.
    void mostrarPaleta();
    /// The pictures of the palette on view follow the models.
    void mostrarMuestras();

  private:
    std::vector<Boton*> poner(const GrupoDeBotones& grupo, QWidget* padre, int y);
    void ponerPaletas(int y);

    Bosquel& bosquel_;
    QLabel* letrero_ = nullptr;
    /// A button of a palette and the element that it shows, if it shows one.
    struct Puesto {
        Boton* boton = nullptr;
        Calco muestra;
    };

    std::vector<QWidget*> paneles_;  ///< by the values of `Paleta`
    std::vector<std::vector<Puesto>> puestos_;
};

}  // namespace bosquel
