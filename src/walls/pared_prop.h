#pragma once

#include "model/dibujo.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace bosquel {

/// What the wall dialog "Propiedades de Muros y Tabiques" shows and decides, for one wall. The texts are
/// those of its fields: lengths in metres, the angle in degrees.
class ParedProp {
  public:
    /// The spokes of the dial, by index - 1.
    static constexpr std::array<std::string_view, 13> EtiquetaAngulo{
        "90º", "75º", "60º", "45º", "30º", "15º", "0º", "-15º", "-30º", "-45º", "-60º", "-75º", "-90º"};

    /// A wall that does not exist, and the model, give an empty dialog that changes nothing.
    ParedProp(Dibujo& dibujo, int indice);

    std::string TxtInicialX, TxtInicialY;  ///< shown only
    std::string TxtAnchoMuro, TxtAnchoTabique, txtLongitud, TxtAngulo;
    bool ChkPredeterminar = false;

    bool esPilar() const { return pilar_; }  ///< neither the choice of kind nor the defaults are offered
    int tipo() const { return tipo_; }  ///< the radio that is set: 0 "Ancho Muro", 1 "Ancho Tabique", -1 none
    int radioEncendido() const { return radio_; }  ///< the red spoke, 1 to 13; 0 for none

    /// The box of a kind can be typed into only while its radio is set.
    bool muroHabilitado() const { return pilar_ || tipo_ == 0; }
    bool tabiqueHabilitado() const { return tipo_ == 1; }

    void elegirTipo(int tipo) { tipo_ = tipo; }
    /// A click on label `etiqueta`, 1 to 13.
    void elegirAngulo(int etiqueta);

    /// Writes the fields into the wall and draws it; into the model too if `ChkPredeterminar` is ticked. A
    /// text that is no number leaves its field as it was.
    void Aplicar();
    /// A wall that was never applied is removed.
    void Cancelar();

  private:
    Pared* pared() const;
    void escribir(Pared& pared) const;

    Dibujo& dibujo_;
    int indice_;
    bool pilar_ = false;
    int tipo_ = -1;
    int radio_ = 0;
};

}  // namespace bosquel
