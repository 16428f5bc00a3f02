#pragma once

#include "model/dibujo.h"
#include "stairs_symbols/angulo_giro.h"

#include <span>
#include <string_view>

namespace bosquel {

/// What the dialog of the electrical symbols shows and decides, for one of them. It works on a preview, which
/// "Aplicar" copies to the symbol.
class ElectricoProp {
  public:
    /// A symbol that does not exist, and the model, give an empty dialog that changes nothing.
    ElectricoProp(Dibujo& dibujo, int indice);

    AnguloGiro Angulo;
    Color txtLineColor = negro;

    /// The title of the dialog.
    std::string_view Caption() const;

    /// The symbols that this one can be turned into, itself among them; none for most.
    std::span<const std::string_view> opt() const;
    /// The option that is set, by its place among them; -1 for none.
    int opcion() const;
    void elegir(int opcion);

    /// To be called after every change of angle or colour. A text that is no number leaves the angle as it
    /// was.
    void refrescar();

    /// The preview stands with the middle of its frame at (0, 0), which is the middle of `Marco`.
    const Electrico& preview() const { return preview_; }
    double FactorZoomActual() const { return dibujo_.FactorZoomActual; }

    void Aplicar();

  private:
    Electrico* electrico() const;
    void centrar();

    Dibujo& dibujo_;
    int indice_;
    Electrico preview_;
};

}  // namespace bosquel
