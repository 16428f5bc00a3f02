#pragma once

#include "appearance/perfiles_color.h"
#include "model/dibujo.h"
#include "platform/plataforma.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace bosquel {

/// What the colour dialog "Colores por Tipos" shows and decides. Its swatches start from a scheme or a stored
/// profile, never from the drawing, and nothing in the drawing changes before `AplicarColores`.
class Colores {
  public:
    /// Opens with what the drawing keeps as `Esquema` and `Perfil`; a scheme that there is not counts as the
    /// first. The profiles lie in `carpeta`, the program's folder.
    Colores(Dibujo& dibujo, Plataforma& plataforma, const std::filesystem::path& carpeta);

    /// The boxes, by the rows of `tiposColor` and `categoriasColor`.
    std::array<bool, tiposColor.size()> chkColores{};
    std::array<bool, categoriasColor.size()> chkCatColor{};

    const auto& txtLineColor() const { return lineas_; }
    const auto& txtBackColor() const { return fondos_; }
    const auto& txtLineCatColor() const { return lineasCategoria_; }
    const auto& txtBackCatColor() const { return fondosCategoria_; }

    std::size_t optSchemaColor() const { return esquema_; }
    const std::vector<std::string>& perfiles() const { return perfiles_; }  ///< the list of `cboPerfil`
    const std::string& cboPerfil() const { return perfil_; }                ///< what it says
    bool perfilHabilitado() const { return esquemasColor[esquema_].conPerfiles; }
    bool solapasHabilitadas() const { return esquemasColor[esquema_].conSolapas; }

    /// A choice of `optSchemaColor`, 0 to 2: all swatches start anew.
    void elegirEsquema(std::size_t indice);
    /// A click on `cboPerfil`, or a change of its text.
    void escribirPerfil(const std::string& texto);

    /// Fills the list of `cboPerfil`; nothing is selected in it afterwards.
    void CargarComboPerfiles();
    /// Shows a stored profile. A list that it does not have leaves its swatches and boxes as they are.
    void AbrirPerfil(const std::string& Nombre);
    /// Selects a profile of exactly this name, which shows it; an empty name selects nothing. A name that is
    /// not in the list changes nothing.
    void SeleccionarPerfil(const std::string& Nombre);
    /// Brings a list of colours to its swatches, and `Marcar` to their boxes. An item that is missing or no
    /// number leaves its swatch as it is; stairs and symbols, if they are missing, keep their boxes too.
    void RepresentarPerfil(ListaColor Tipo, std::string_view Lista, bool Marcar);

    /// The colour dialog of a swatch was closed, with a colour or without: without one no colour changes, but
    /// the boxes are ticked all the same. Either way the profile is left.
    void cmdLineColor(std::size_t tipo, std::optional<Color> elegido);
    void cmdBackColor(std::size_t tipo, std::optional<Color> elegido);
    void cmdLineCatColor(std::size_t categoria, std::optional<Color> elegido);
    void cmdBackCatColor(std::size_t categoria, std::optional<Color> elegido);

    /// The mouse was released on a box of `chkColores` with the Control key held: all take its value.
    void soltarConControl(std::size_t tipo);

    /// "Guardar": asks for a name and keeps the swatches under it.
    void cmdGuardarPerfil();

    /// "Aplicar": the ticked colours go into all elements and models; the scheme and the profile are kept.
    void AplicarColores();

  private:
    /// The swatches and boxes of a list.
    struct Destino {
        std::span<Color> colores;
        std::span<bool> casillas;  ///< empty for a list that ticks none
        std::size_t fijos;         ///< the rest may be missing
    };
    Destino destino(ListaColor lista);

    void elegirTipo(std::size_t tipo, std::optional<Color> elegido, std::span<Color> muestras);
    void elegirCategoria(std::size_t categoria, std::optional<Color> elegido, std::span<Color> muestras,
                         std::span<Color> deTipos);
    bool guardarPerfil(const std::string& nombre);

    Dibujo& dibujo_;
    Plataforma& plataforma_;
    PerfilesColor almacen_;

    std::size_t esquema_ = 0;
    std::vector<std::string> perfiles_;
    std::string perfil_;
    std::array<Color, tiposColor.size()> lineas_{};
    std::array<Color, tiposConFondo> fondos_{};
    std::array<Color, categoriasColor.size()> lineasCategoria_{};
    std::array<Color, categoriasConFondo> fondosCategoria_{};
};

}  // namespace bosquel
