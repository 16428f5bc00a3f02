#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace bosquel {

/// The image of a profile file in memory, in bytes of Windows-1252: parsed once, found through an index,
/// changed in place. At any time it is what a parse of its own bytes gives.
class ImagenPerfil {
  public:
    explicit ImagenPerfil(std::string_view bytes);

    /// The readable value, which may be empty; nothing if the section or the key is missing.
    std::optional<std::string_view> valor(std::string_view seccion, std::string_view clave) const;

    /// True if a byte changed.
    bool guardar(std::string_view seccion, std::string_view clave, std::string_view valor);

    std::string bytes() const;

  private:
    /// Where each folded name stands; of two like names the first counts.
    using Indice = std::unordered_map<std::string, std::size_t>;

    /// A head and what follows it. The blank lines at its end are kept apart, as new keys go before them.
    struct Seccion {
        std::string cabecera;
        std::vector<std::string> lineas;
        std::string cola;
        Indice claves;

        std::string& ultimaConTexto() { return lineas.empty() ? cabecera : lineas.back(); }
        std::string& ultima() { return cola.empty() ? ultimaConTexto() : cola; }
        void anadir(std::string_view linea);
        void anadirConTexto(std::string linea);
        bool guardar(std::string_view clave, std::string_view valor);
    };

    static std::optional<std::size_t> buscar(const Indice& indice, std::string_view nombre);
    void anadir(std::string_view linea);
    void abrir(std::string_view cabecera, std::string_view nombre);
    void crear(std::string_view nombre);

    std::string marca_;      ///< The UTF-8 mark, if the file begins with one.
    std::string preambulo_;  ///< The lines above the first head.
    std::vector<Seccion> secciones_;
    Indice indice_;
};

}  // namespace bosquel
