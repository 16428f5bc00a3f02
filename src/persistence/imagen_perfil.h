#pragma once

#include "persistence/indice_nombres.h"
#include "persistence/lineas_perfil.h"
#include "persistence/perfiles.h"

#include <cstddef>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace bosquel {

/// The image of a profile file in memory, in bytes of Windows-1252: an index of its sections, and one of the
/// keys of the section that was asked for last, as far as it had to be gone through. At any time it is what a
/// parse of its own bytes gives. It takes little more room than the file: of a hundred megabytes of anything,
/// too.
class ImagenPerfil {
  public:
    explicit ImagenPerfil(std::string bytes);

    /// Takes a section in hand, in the place of the one without a name. If there is none it comes into being
    /// with its first key.
    void abrir(std::string_view seccion);
    bool haySeccion() const { return abierta_.cabeza != ninguna; }

    /// The readable value of a key of the section in hand, which may be empty; nothing if either is missing.
    std::optional<std::string_view> valor(std::string_view clave);

    /// The same for several keys, for which `sonLlanas` is true, in one pass through the section.
    void valores(std::span<const std::string_view> claves,
                 std::span<std::optional<std::string_view>> valores) const;

    /// Writes a value into the section in hand. True if a byte changed. It takes time in proportion to the
    /// section, and none for a file that is being written from its beginning to its end.
    bool guardar(std::string_view clave, std::string_view valor);

    /// Adds the section in hand, which is not there, with some values, of which no one is to be looked for:
    /// for their keys `sonLlanas` is true, and they hold no line break. False, and nothing done, if its name
    /// does.
    bool crear(std::span<const ValorPerfil> valores);

    /// The file as it is now, put together in `sitio` where it is not there in one piece; good until it is
    /// changed.
    std::string_view bytes(std::string& sitio) const;

  private:
    static constexpr std::size_t ninguna = static_cast<std::size_t>(-1);

    /// The section in hand. Its keys are looked for from where the last one was found, as they stand in their
    /// order most often. Places count from its head.
    struct Abierta {
        std::string nombre = {};       ///< as it was asked for
        std::size_t cabeza = ninguna;  ///< where its head stands in `texto_`; `ninguna` if nowhere
        std::size_t recorrido = 0;     ///< up to here its keys are in the index
        bool entera = false;           ///< that is up to the next head
        std::size_t finConTexto = 0;   ///< where the last line with a text ends, up to there
        IndiceNombres claves;
    };

    /// A section that was changed while others follow it.
    struct Apartada {
        std::size_t largo = 0;  ///< what it took in `texto_`
        std::string texto;
    };

    std::string_view textoAbierta() const;
    std::optional<Linea> avanzar();
    std::optional<Linea> encontrar(const NombreBuscado& clave);
    void ponerCabeza();
    void anadir(const NombreBuscado& clave, std::string_view linea);
    bool sustituir(const Linea& antes, std::string_view valor);
    void cambiar(std::size_t lugar, std::size_t largo, std::string_view texto);
    std::size_t finAbierta() const;
    std::string_view componer(std::string_view clave, std::string_view valor);
    std::string unir() const;
    void rehacer();

    std::string texto_;                          ///< the file, its last section as it is now
    std::size_t comienzo_ = 0;                   ///< past the UTF-8 mark, if the file begins with one
    std::map<std::size_t, Apartada> apartadas_;  ///< by their heads in `texto_`
    IndiceNombres secciones_;
    Abierta abierta_;
    std::string linea_;  ///< room for the line that is being written
};

}  // namespace bosquel
