#pragma once

#include "openings/abertura_prop.h"

namespace bosquel {

/// What the window dialog "Propiedades de Ventana" shows and decides, for one window. `Punto1` and `Punto2`
/// choose the side, in a thick wall; `Lado1` and `Lado2` the end of the wall that the distance counts from.
class VentanaProp : public AberturaProp {
  public:
    VentanaProp(Dibujo& dibujo, int indice);

    bool elegido(Boton boton) const override;
    bool habilitado(Boton boton) const override;
    void elegir(Boton boton) override;

    /// Draws the sketch from what is chosen.
    void DibujaVentana();
    void trazarCroquis(SuperficieSalida& superficie) const override;

    /// The side is written as chosen; it is turned for negative angles where the window is drawn.
    void Aplicar() override;

  private:
    void escribir(Ventana& ventana) const;

    Dibujo& dibujo_;
    int indice_;
    Boton punto_ = Boton::Punto1, lado_ = Boton::Lado1;
    Ventana croquis_;
};

}  // namespace bosquel
