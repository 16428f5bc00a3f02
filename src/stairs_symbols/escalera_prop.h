#pragma once

#include "model/dibujo.h"
#include "stairs_symbols/angulo_giro.h"

#include <string>
#include <vector>

namespace bosquel {

/// What the stair dialog shows and decides. It works on a preview; a stair is made or changed by "Aplicar"
/// alone. Texts of lengths are metres.
class EscaleraProp {
  public:
    static constexpr int maximoTramos = 3;

    /// `IndiceEscalera` 0 stands for a new stair, which starts as the model does. It takes the direction of a
    /// wall if `AnguloEscalera` is not 0, and is placed at `Left`, `Top`, sheet units. A stair that does not
    /// exist gives an empty dialog that changes nothing.
    EscaleraProp(Dibujo& dibujo, int IndiceEscalera, int AnguloEscalera, float Left, float Top);

    std::string txtHuella, txtAnchoOjo;
    bool chkOrientacion = false;
    Color txtLineColor = negro;
    AnguloGiro Angulo;
    bool Check1 = false;  ///< "Guardar como modelo"

    /// What the row of a flight shows.
    struct Tramo {
        std::string lblTramo, txtPeldaños, txtAnchoTramo;
        bool chkBarandilla = false;
    };
    std::vector<Tramo> tramos;  ///< as many as the stair has flights

    /// The option that is set, 1 to 3; 0 for none.
    int optTramos() const { return optTramos_; }
    /// Makes the rows anew, from the preview: a flight that was given up comes back as it was.
    void elegirTramos(int cuantos);

    /// To be called after every change: the preview becomes what the controls say. A text that is no number
    /// leaves its field as it was, but an angle becomes 0.
    void PreviewChanges();

    /// The preview stands with the middle of its square at (0, 0), which is the middle of `Marco`.
    const Escalera& StairPreview() const { return StairPreview_; }
    double FactorZoomActual() const { return dibujo_.FactorZoomActual; }

    /// Makes the stair what the preview is, a new one first of all; before that the model, if `Check1` is
    /// ticked.
    void Aplicar();

  private:
    bool crear();
    void centrar();

    Dibujo& dibujo_;
    int IndiceEscalera_;
    float Left_, Top_;
    int optTramos_ = 0;
    Escalera StairPreview_;
};

}  // namespace bosquel
