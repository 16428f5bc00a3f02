#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace bosquel {

class SuperficieSalida;
struct Papel;

/// A rectangle of whole pixels of `HojaSalida`, past whose edges it may reach.
struct AreaSalida {
    int left = 0, top = 0, ancho = 0, alto = 0;

    bool operator==(const AreaSalida&) const = default;
};

/// Whole pixels.
struct TamanoSalida {
    int ancho = 0, alto = 0;

    bool operator==(const TamanoSalida&) const = default;
};

enum class Profundidad : std::uint8_t { color, dosTonos };

/// The pictures of the output, whose pixels are the outside's, and the ends that they go to: `HojaSalida`, on
/// which the drawing is painted once; `RecorteSalida`, the area selected last; and `Image1`, what is printed.
/// A picture may be empty, and an empty one goes to its end as any other. Nothing reports a failure.
class LienzoSalida {
  public:
    LienzoSalida() = default;
    LienzoSalida(const LienzoSalida&) = delete;
    LienzoSalida& operator=(const LienzoSalida&) = delete;
    virtual ~LienzoSalida() = default;

    /// `HojaSalida` becomes a white picture of this size, on which `dibujar` draws in twips. Where memory is
    /// short it is smaller; gives the size that it has.
    virtual TamanoSalida pintarHoja(TamanoSalida tamano,
                                    const std::function<void(SuperficieSalida&)>& dibujar) = 0;

    /// `RecorteSalida` becomes the area of `HojaSalida`, white where that ends, and less of it where memory
    /// is short. An area of no width or no height gives an empty picture.
    virtual void recortar(const AreaSalida& area) = 0;

    virtual void vaciarPortapapeles() = 0;
    /// Puts `RecorteSalida` on the clipboard.
    virtual void ponerEnPortapapeles() = 0;
    /// `Image1` becomes the picture on the clipboard.
    virtual void tomarDelPortapapeles() = 0;

    /// Shows the page with `Image1` on it, from where it can be printed, until it is closed.
    virtual void vistaPrevia(const Papel& papel) = 0;

    /// Writes `RecorteSalida` as a bitmap file in the place of what may stand there.
    virtual void guardar(const std::filesystem::path& ruta, Profundidad profundidad) = 0;
};

}  // namespace bosquel
