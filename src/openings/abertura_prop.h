#pragma once

#include "model/dibujo.h"
#include "surface/superficie_salida.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace bosquel {

/// What the dialogs of windows and doors share: the texts of their fields, the place in the wall, and a live
/// sketch of the opening in its wall. The sketch has units of its own and fixed sizes: it shows kind, side
/// and direction, never the real proportions.
class AberturaProp {
  public:
    AberturaProp(const AberturaProp&) = delete;
    AberturaProp& operator=(const AberturaProp&) = delete;
    virtual ~AberturaProp() = default;

    std::string txtLongitud, TxtDistancia;  ///< m
    bool Check1 = false;                    ///< "Guardar como modelo"
    std::function<void()> alDibujar;        ///< called whenever the sketch is drawn anew

    /// The radio that is set: 0 in the middle of the wall, 1 at a distance from an end, -1 none.
    int alineacion() const { return alineacion_; }
    void elegirAlineacion(int radio) { alineacion_ = radio; }
    bool distanciaHabilitada() const { return alineacion_ == 1; }

    /// The buttons around the sketch: `Punto` beside the wall, `Lado` beyond its ends.
    enum class Boton : std::uint8_t { Punto1, Punto2, Lado1, Lado2 };
    static constexpr std::array botones{Boton::Punto1, Boton::Punto2, Boton::Lado1, Boton::Lado2};
    /// Where a button stands on the sketch.
    Recuadro sitio(Boton boton) const;

    virtual bool elegido(Boton boton) const = 0;
    virtual bool habilitado(Boton boton) const = 0;
    virtual void elegir(Boton boton) = 0;

    /// The middle of the wall's line 1 on the sketch.
    static constexpr double centroX = 1900, centroY = 1350;
    /// No stroke and no button lies farther than this from the middle, to either side.
    static constexpr double alcance = 1080;
    virtual void trazarCroquis(SuperficieSalida& superficie) const = 0;

    /// Writes the fields into the opening and draws it; into the model too if `Check1` is ticked. A text that
    /// is no number leaves its field as it was.
    virtual void Aplicar() = 0;

  protected:
    /// An opening that does not exist gives an empty dialog.
    AberturaProp(const Dibujo& dibujo, const Abertura* abertura);

    const Pared& muro() const { return muro_; }
    /// Draws the wall of the sketch, this long.
    void trazarMuro(double largo);
    /// Runs `trazar` and tells of it, unless that is already under way.
    void dibujar(const std::function<void()>& trazar);

    void leerMedidas(Abertura& abertura) const;

  private:
    int alineacion_ = -1;
    Pared muro_;  ///< of the sketch
    int angulo_ = 0;
    std::int16_t anguloPared_ = 0;
    bool dibujando_ = false;
};

inline constexpr double largoCroquis = 1200;  ///< of the wall, and of a window in it
inline constexpr double anchoMuroCroquis = 200, anchoTabiqueCroquis = 100;

}  // namespace bosquel
