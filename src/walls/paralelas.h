#pragma once

#include "model/dibujo.h"

#include <array>
#include <cstdint>
#include <string>

namespace bosquel {

/// What the dialog "Situar Paralela" shows and decides: a copy of a wall at a clear distance, on one of its
/// two sides. Places are in the dialog's own units, sheet units from its corner.
class Paralelas {
  public:
    enum class Punto : std::uint8_t { Punto1, Punto2 };

    struct Lugar {
        float Left = 0, Top = 0;
    };

    /// A wall that does not exist gives a dialog that changes nothing.
    Paralelas(Dibujo& dibujo, int indice);

    std::string TxtDistancia;  ///< the clear distance in metres
    Punto elegido = Punto::Punto1;

    /// The sketch of the wall, centred on (1100, 1000).
    const Segmento& Line1() const { return Line1_; }
    /// The corner of a side's button.
    Lugar lugar(Punto punto) const { return lugares_[static_cast<std::size_t>(punto)]; }

    /// Draws the copy, a plain rectangle in no group, and selects it. A text that is no number stands for the
    /// last distance.
    void Aplicar();

  private:
    Dibujo& dibujo_;
    int indice_;
    Segmento Line1_;
    std::array<Lugar, 2> lugares_;
};

}  // namespace bosquel
