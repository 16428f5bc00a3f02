#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace bosquel {

/// What was drawn on a surface, to be drawn again on others: a picture. Texts are left out.
struct Calco {
    struct Recta {
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        bool operator==(const Recta&) const = default;
    };
    struct Caja : Recta {};
    struct Trazo {
        std::variant<Recta, Caja, Curva> forma;
        Color color = negro;
        std::optional<Color> fondo;  ///< nothing while the fill state is transparent
        bool operator==(const Trazo&) const = default;
    };
    /// The colour that stands for another.
    using Tinta = std::function<Color(Color)>;

    std::vector<Trazo> trazos;

    void dibujar(SuperficieSalida& superficie, const Tinta& tinta) const;
    /// Nothing if there is no stroke.
    std::optional<Recuadro> extension() const;

    bool operator==(const Calco&) const = default;
};

/// The surface that a picture is taken from.
class Calcadora : public SuperficieSalida {
  public:
    void FillStyle(Relleno relleno) override { relleno_ = relleno; }
    void FillColor(Color color) override { colorRelleno_ = color; }

    const Calco& calco() const { return calco_; }

  protected:
    void trazarLinea(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCaja(double x1, double y1, double x2, double y2, Color color) override;
    void trazarCurva(const Curva& curva, Color color) override;

  private:
    template <class Forma>
    void anotar(const Forma& forma, Color color);

    Calco calco_;
    Relleno relleno_ = Relleno::transparente;
    Color colorRelleno_ = negro;
};

}  // namespace bosquel
