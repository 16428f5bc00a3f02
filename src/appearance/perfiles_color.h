#pragma once

#include "appearance/tablas_color.h"

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bosquel {

inline constexpr const char* ficheroPerfiles = "PerfilesColor.ini";  ///< in the program's folder

/// What stands for a line that a profile does not have.
inline constexpr std::string_view sinLinea = "***";

/// The colours of a list as the profile file holds them: decimal, joined by "#".
std::string unirColores(std::span<const Color> colores);

/// The colours that every scheme starts from, as such a list.
std::string constanteDe(ListaColor lista);

/// The items of such a list, whatever they say.
std::vector<std::string_view> partirColores(std::string_view lista);

/// The colour profiles that are kept on disk, see docs/colores.md. The file is read afresh at every call; one
/// that is not there holds no profile.
class PerfilesColor {
  public:
    explicit PerfilesColor(const std::filesystem::path& carpeta) : fichero_(carpeta / ficheroPerfiles) {}

    /// In the order of their creation. One whose name has been lost is empty.
    std::vector<std::string> nombres() const;
    /// A list of a profile, or `sinLinea`. Names match without regard to case.
    std::string leer(const std::string& nombre, ListaColor lista) const;
    bool existe(const std::string& nombre) const { return leer(nombre, ListaColor::Varios) != sinLinea; }
    /// Keeps a profile, by the values of `ListaColor`; one that is new is added to the names.
    void guardar(const std::string& nombre, const std::array<std::string, listasColor.size()>& listas) const;

  private:
    std::filesystem::path fichero_;
};

}  // namespace bosquel
