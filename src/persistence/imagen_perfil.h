#pragma once

#include "persistence/indice_nombres.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace bosquel {

/// The image of a profile file in memory, in bytes of Windows-1252: an index of its sections, and one of the
/// keys of the section that was asked for last. At any time it is what a parse of its own bytes gives. It
/// takes little more room than the file: of a hundred megabytes of anything, too.
class ImagenPerfil {
  public:
    explicit ImagenPerfil(std::string bytes);

    bool haySeccion(std::string_view seccion) const;

    /// The readable value, which may be empty; nothing if the section or the key is missing.
    std::optional<std::string_view> valor(std::string_view seccion, std::string_view clave) const;

    /// True if a byte changed. It takes time in proportion to the section, and none for a file that is being
    /// written from its beginning to its end.
    bool guardar(std::string_view seccion, std::string_view clave, std::string_view valor);

    std::string bytes() const;

  private:
    static constexpr std::size_t ninguna = static_cast<std::size_t>(-1);

    /// The section in hand. Places count from its head; the blank lines at its end are kept where they are,
    /// as new keys go before them.
    struct Abierta {
        std::size_t cabeza = ninguna;  ///< where its head stands in `texto_`
        std::size_t largo = 0;         ///< in `texto_`, up to the next head
        std::size_t finConTexto = 0;   ///< where its last line with a text ends
        IndiceNombres claves;
    };

    /// A section that was changed while others follow it.
    struct Apartada {
        std::size_t largo = 0;  ///< what it took in `texto_`
        std::string texto;
    };

    bool abrir(std::string_view seccion) const;
    std::string_view textoAbierta() const;
    void crear(std::string_view seccion, std::string_view linea);
    void anadir(const std::string& linea);
    bool sustituir(std::size_t lugar, std::string_view valor);
    void cambiar(std::size_t lugar, std::size_t largo, std::string_view texto);

    std::string texto_;                          ///< the file, its last section as it is now
    std::size_t comienzo_ = 0;                   ///< past the UTF-8 mark, if the file begins with one
    std::map<std::size_t, Apartada> apartadas_;  ///< by their heads in `texto_`
    IndiceNombres secciones_;
    mutable Abierta abierta_;
};

}  // namespace bosquel
