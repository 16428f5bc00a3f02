#pragma once

#include <optional>
#include <string>

namespace bosquel {

/// The angle of what can be turned right round, as its dialog shows it: a text to type into, a dial of
/// `radios` spokes, and two buttons that turn it by a right angle. Degrees, counter-clockwise.
class AnguloGiro {
  public:
    static constexpr int radios = 24;
    /// The direction of a spoke, 1 to `radios`: from 0 on, 15 degrees from each to the next.
    static int direccion(int radio);
    /// What stands at its end.
    static std::string EtiquetaAngulo(int radio);

    const std::string& TxtAngulo() const { return texto_; }
    /// A number above 360 becomes "360".
    void escribir(std::string texto);

    /// A click on the label of a spoke; there is none but 1 to `radios`.
    void elegirRadio(int radio);
    /// The red spoke: the one that shows what the text says, 0 if none does.
    int radioEncendido() const;

    /// Button 0 turns back and 1 turns on, within the circle. A text that is no number stays.
    void cmd90Plus(int indice);

    /// What the text says: 0 if it is empty, nothing if it is no number.
    std::optional<double> grados() const;

  private:
    std::string texto_;
};

}  // namespace bosquel
