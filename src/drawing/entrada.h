#pragma once

#include <string_view>

namespace bosquel {

/// The splash: its version types itself out, one character a tick, stands for a while, and then the window
/// closes.
class Entrada {
  public:
    static constexpr std::string_view version = "Versión 2.5.0.5";
    static constexpr int intervaloInicial = 100;  ///< ms between characters
    static constexpr int intervaloFinal = 3500;   ///< ms that the whole text stands

    /// One tick of `Timer1`.
    void tic();

    std::string_view lblVersion() const { return texto_; }
    int intervalo() const { return intervalo_; }
    bool cerrada() const { return cerrada_; }

  private:
    std::string_view texto_;
    int intervalo_ = intervaloInicial;
    bool terminada_ = false;
    bool cerrada_ = false;
};

}  // namespace bosquel
