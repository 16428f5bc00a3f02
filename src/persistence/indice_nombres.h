#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace bosquel {

/// Where names stand in a text, found without regard to case; of two like names the first counts. It keeps
/// places alone and reads the names in the text, so that a file full of names costs little more than itself.
class IndiceNombres {
  public:
    /// Gives the name that stands at a place of a text.
    using NombreEn = std::string_view (*)(std::string_view texto, std::size_t lugar);

    explicit IndiceNombres(NombreEn nombreEn) : nombreEn_(nombreEn), casillas_(alPrincipio, libre) {}

    std::optional<std::size_t> buscar(std::string_view texto, std::string_view nombre) const;
    void anadir(std::string_view texto, std::size_t lugar);
    /// All names from `desde` on stand `pasos` further on in the text.
    void desplazar(std::size_t desde, std::size_t pasos);
    void vaciar();
    bool vacio() const { return ocupadas_ == 0; }

  private:
    static constexpr std::size_t alPrincipio = 64;  ///< a power of two, as every number of squares
    static constexpr std::size_t libre = static_cast<std::size_t>(-1);

    std::size_t casillaDe(std::string_view texto, std::string_view nombre) const;
    void crecer(std::string_view texto);

    NombreEn nombreEn_;
    std::vector<std::size_t> casillas_;  ///< never more than half full
    std::size_t ocupadas_ = 0;
};

}  // namespace bosquel
