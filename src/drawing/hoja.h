#pragma once

#include "drawing/elementos.h"
#include "drawing/pinza_pared.h"
#include "drawing/sesion.h"

#include <optional>

namespace bosquel {

/// What stands under the pointer: a grip of a wall, a window or a door, or any other element by itself.
struct Diana {
    Clase clase = Clase::Pared;
    int indice = 0;
    PinzaDePared pinza = PinzaDePared::inicial;  ///< walls have more than one

    Referencia referencia() const { return {clase, static_cast<std::int16_t>(indice)}; }
};

/// The sheet's pointer pipeline. It finds what stands under the pointer, keeps it from press to release, and
/// hands it the event in its own coordinates; what falls on nothing is the sheet's own. All coordinates come
/// in sheet units of the sheet.
class Hoja {
  public:
    explicit Hoja(Sesion& sesion) : sesion_(sesion) {}

    void pulsar(float X, float Y);
    /// `alguno` tells whether any button is held, `boton1` whether the first one is.
    void mover(bool boton1, bool alguno, float X, float Y);
    void soltar(float X, float Y);
    /// The second press of a double click: its release follows as ever.
    void dobleClic(float X, float Y);

  private:
    enum class Agarre : std::uint8_t { nada, hoja, diana };

    std::optional<Diana> agarrar(float X, float Y);

    Sesion& sesion_;
    Agarre agarre_ = Agarre::nada;
    Diana agarrada_;
};

/// The topmost thing at a point of the sheet.
std::optional<Diana> dianaBajo(Sesion& sesion, float X, float Y);

// The sheet's own events, where nothing stands under the pointer.

void pulsarHoja(Sesion& sesion, float X, float Y);
void moverHoja(Sesion& sesion, bool boton1, float X, float Y);
void soltarHoja(Sesion& sesion, float X, float Y);
void dobleClicHoja(Sesion& sesion);

/// No main button has its border raised any more.
void QuitarBordeElevado(Sesion& sesion);

}  // namespace bosquel
