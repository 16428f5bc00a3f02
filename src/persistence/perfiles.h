#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace bosquel {

/// A key and what it is to hold.
struct ValorPerfil {
    std::string_view clave;
    std::string valor;
};

/// One profile file: lines of text in sections, the classic INI layout, in Windows-1252 on disk and in UTF-8
/// to the caller. The rules of the format stand in docs/perfiles.md. The image of the file is read and parsed
/// once, on construction, and changed in memory; `volcar` brings it to disk.
class ArchivoPerfil {
  public:
    /// A file that does not exist or cannot be read is an empty one.
    explicit ArchivoPerfil(std::filesystem::path ruta);
    ~ArchivoPerfil();
    ArchivoPerfil(const ArchivoPerfil&) = delete;
    ArchivoPerfil& operator=(const ArchivoPerfil&) = delete;
    ArchivoPerfil(ArchivoPerfil&&) noexcept;
    ArchivoPerfil& operator=(ArchivoPerfil&&) noexcept;

    bool haySeccion(std::string_view seccion) const;

    /// The value of the key, or nothing where the section or the key is missing or the value is empty: the
    /// caller's default then stands. A value is cut at 254 characters. It is good until the next call.
    std::optional<std::string_view> buscar(std::string_view seccion, std::string_view clave) const;

    /// The same for several keys, in one pass through the section. They are plain and differ from each other
    /// (`sonLlanas`).
    void buscar(std::string_view seccion, std::span<const std::string_view> claves,
                std::span<std::optional<std::string_view>> valores) const;

    /// The value of the key, or the default whole, as it stands.
    std::string leer(std::string_view seccion, std::string_view clave,
                     std::string_view predeterminado = {}) const;

    /// Replaces the value in its place, or adds the line at the end of its section, or the section at the
    /// end of the file.
    void guardar(std::string_view seccion, std::string_view clave, std::string_view valor);

    /// The same for several keys, one after the other, which are plain and differ from each other.
    void guardar(std::string_view seccion, std::span<const ValorPerfil> valores);

    /// Writes the whole file to a temporary name beside it, flushes it and renames it, so that a file written
    /// by halves never exists. Does nothing if nothing was changed. A failure says nothing and leaves what
    /// was there; no folder is made.
    void volcar();

  private:
    struct Imagen;
    std::filesystem::path ruta_;
    std::unique_ptr<Imagen> imagen_;
};

/// One value, the file read afresh. Never fails: what is not there takes the default.
std::string LeerIni(const std::filesystem::path& Fichero, std::string_view Seccion, std::string_view Clave,
                    std::string_view Predeterminado = {});

/// One value, on disk when the call returns. A write that fails goes unnoticed.
void GuardarIni(const std::filesystem::path& Fichero, std::string_view Seccion, std::string_view Clave,
                std::string_view Valor);

}  // namespace bosquel
