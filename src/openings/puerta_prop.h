#pragma once

#include "openings/abertura_prop.h"

#include <optional>
#include <string>

namespace bosquel {

/// What the door dialog shows and decides, for one door. `Punto1` and `Punto2` choose the side that it opens
/// to, `Lado1` and `Lado2` the hinge of a single leaf, `optLado` the end of the wall that the distance counts
/// from.
class PuertaProp : public AberturaProp {
  public:
    PuertaProp(Dibujo& dibujo, int indice);

    /// The radio that is set: 0 one leaf, 1 two leaves, -1 none.
    int optHojas() const { return hojas_; }
    void elegirHojas(int radio);

    /// The radio that is set: 0 the left end of the wall, 1 the right one, -1 none.
    int optLado() const { return extremo_; }
    void elegirExtremo(int radio) { extremo_ = radio; }
    bool fmeLadoHabilitado() const { return alineacion() == 1; }

    bool elegido(Boton boton) const override;
    bool habilitado(Boton boton) const override;
    void elegir(Boton boton) override;

    /// Draws the sketch from the words chosen.
    void DibujaPuerta();
    void trazarCroquis(SuperficieSalida& superficie) const override;

    /// The door's side is turned back for negative angles; the model takes the side as the dialog has it.
    void Aplicar() override;

  private:
    void escribir(Puerta& puerta, const std::string& lado) const;

    Dibujo& dibujo_;
    int indice_;
    int hojas_ = -1, extremo_ = -1;
    Boton punto_ = Boton::Punto2;
    std::optional<Boton> bisagra_;
    std::string lado_;     ///< the side as the lines of the wall have it
    std::string lateral_;  ///< the hinge, or two leaves
    Puerta croquis_;
};

}  // namespace bosquel
