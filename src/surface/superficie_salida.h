#pragma once

#include "model/colores.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace bosquel {

/// What fills boxes, circles and ellipses.
enum class Relleno : std::uint8_t { solido = 0, transparente = 1 };

/// From `inicio` to `fin` counter-clockwise, in radians: 0 points right, pi/2 up on the surface. When `fin`
/// is less than `inicio` the arc passes through 0; equal ends are the whole turn.
struct Arco {
    double inicio = 0, fin = 0;

    bool operator==(const Arco&) const = default;
};

/// A circle, an ellipse, or an arc of one. `aspecto` is height to width, and `radio` the larger half-axis.
/// The angles of an elliptic arc are those of the circle that it is flattened from.
struct Curva {
    double x = 0, y = 0, radio = 0;
    std::optional<Arco> arco = {};
    double aspecto = 1;

    double ejeX() const { return aspecto > 1 ? radio / aspecto : radio; }
    double ejeY() const { return aspecto < 1 ? radio * aspecto : radio; }

    bool operator==(const Curva&) const = default;
};

/// An abstract surface to draw on: x to the right, y downwards, in units of its own. The sheet, the output,
/// the pictures in documents and the recorder of the tests are surfaces. A new one fills nothing. A stroke
/// with a coordinate that is no finite number is left out, so that no surface has to look for them.
class SuperficieSalida {
  public:
    SuperficieSalida() = default;
    SuperficieSalida(const SuperficieSalida&) = delete;
    SuperficieSalida& operator=(const SuperficieSalida&) = delete;
    virtual ~SuperficieSalida() = default;

    /// A straight stroke from (x1, y1) to (x2, y2).
    void Line(double x1, double y1, double x2, double y2, Color color);
    /// A rectangle with these opposite corners: outlined in `color`, filled as the fill state says.
    void Caja(double x1, double y1, double x2, double y2, Color color);
    /// Whole circles and ellipses are filled as the fill state says; arcs never are.
    void Circle(const Curva& curva, Color color);

    virtual void FillStyle(Relleno relleno) = 0;
    virtual void FillColor(Color color) = 0;

    // A surface without letters of its own leaves texts out.
    virtual void CurrentX(double /*x*/) {}
    virtual void CurrentY(double /*y*/) {}
    virtual void ForeColor(Color /*color*/) {}
    /// Points: a twentieth of the font's height in surface units.
    virtual void FontSize(float /*puntos*/) {}
    /// A text whose top left corner is (`CurrentX`, `CurrentY`), in `ForeColor` and `FontSize`.
    virtual void Print(std::string_view /*texto*/) {}

    /// True where nothing counts but the extent of what is drawn.
    virtual bool bastanLosExtremos() const { return false; }

  protected:
    virtual void trazarLinea(double x1, double y1, double x2, double y2, Color color) = 0;
    virtual void trazarCaja(double x1, double y1, double x2, double y2, Color color) = 0;
    virtual void trazarCurva(const Curva& curva, Color color) = 0;
};

/// Surface units to a point of type.
inline constexpr double unidadesPorPunto = 20;

}  // namespace bosquel
