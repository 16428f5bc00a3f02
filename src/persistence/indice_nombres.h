#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace bosquel {

/// A name that is looked for, with its print: the same for all its spellings in capitals and small letters.
/// Each run of the program has prints of its own, so that no file can hold names that are made to collide.
struct NombreBuscado {
    explicit NombreBuscado(std::string_view nombre);

    std::string_view texto;
    std::uint32_t huella;
};

/// The lines in which names stand, of sections or of keys, found without regard to case; of two like names
/// the first counts. It keeps places alone and reads the names in the text, so that a file full of names
/// costs little more than itself.
class IndiceNombres {
  public:
    std::optional<std::size_t> buscar(std::string_view texto, const NombreBuscado& nombre) const;
    /// The name stands in the line at the place, where it begins at `comienzo`, unless it is known to stand
    /// in another.
    void anadir(std::string_view texto, const NombreBuscado& nombre, std::size_t lugar, std::size_t comienzo);
    /// The line at the place begins with its name now, and all lines behind it stand `pasos` further on.
    void mover(std::size_t lugar, std::size_t pasos);
    void vaciar();
    bool vacio() const { return ocupadas_ == 0; }

  private:
    static constexpr std::size_t alPrincipio = 64;  ///< a power of two, as every number of squares
    static constexpr auto libre = static_cast<std::uint32_t>(-1);

    /// A line and the name in it, in 32 bits since no profile that is read or written comes near 4 GB, and
    /// the print of the name: it tells most other names apart, and finds the name its square in a larger
    /// table, without a look at the text. The line itself is never read again: it may be as long as the file.
    struct Casilla {
        std::uint32_t lugar = libre;
        std::uint32_t comienzo = 0, largo = 0;
        std::uint32_t huella = 0;
    };

    template <class Vale>
    std::size_t casillaDe(std::uint32_t huella, Vale vale) const;
    std::size_t casillaDe(std::string_view texto, const NombreBuscado& nombre) const;
    void crecer();

    std::vector<Casilla> casillas_ =
        std::vector<Casilla>(alPrincipio);  ///< never more than three quarters full
    std::size_t ocupadas_ = 0;
};

}  // namespace bosquel
