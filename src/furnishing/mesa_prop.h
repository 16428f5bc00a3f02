#pragma once

#include "furnishing/dialogo_mueble.h"
#include "surface/calco.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace bosquel {

/// What the table's dialog shows and decides. The placements of the chairs stand in seven groups by their
/// number, of which one is on view.
class MesaProp : public DialogoMueble {
  public:
    MesaProp(Dibujo& dibujo, int indice);

    std::string TxtMesaX, TxtMesaY, TxtSillaX, TxtSillaY;  ///< m

    /// A placement button. In the groups of one and two chairs the button that shows a code on opening is not
    /// the one that sets it.
    struct Colocacion {
        std::string_view pone, alAbrir;  ///< the code that it sets, the code that it shows on opening
        std::string_view leido;          ///< what it sets, as it is read aloud
    };
    static constexpr int grupos = 7;
    /// The buttons of `Dist0` to `Dist6` by their index.
    static std::span<const Colocacion> Dist(int grupo);

    /// The number of chairs whose group is on view, -1 for none. It is looked at, not written.
    int sillas() const { return sillas_; }
    void elegirSillas(int cuantas);

    struct Boton {
        int grupo = 0, indice = 0;
        bool operator==(const Boton&) const = default;
    };
    /// The one button of all groups that shows pressed, if any.
    std::optional<Boton> pulsado() const { return pulsado_; }
    /// Writes the four sizes and the placement.
    void pulsarDist(Boton boton);
    /// The table as a button would lay it out.
    Calco calco(Boton boton) const;

    /// The model takes the sizes as they were before the fields are read.
    void Aplicar() override;

  private:
    class Actualizando;

    MblMesa* mesa() const;
    void CambiarMedidas(MblMesa& mesa) const;

    int sillas_ = -1;
    std::optional<Boton> pulsado_;
};

}  // namespace bosquel
