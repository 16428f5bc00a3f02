#pragma once

#include "model/geometria.h"
#include "surface/superficie_salida.h"

#include <cstdint>

namespace bosquel {

// Strokes on any surface, in its units; angles in degrees, positive ones up the surface. The formulas stand
// in docs/figuras.md. A polar step is a whole number of degrees in 16 bits: an angle with a fraction is
// rounded half to even, and one that does not fit draws nothing.

/// An angle brought into 0 to 360. One of a whole turn or more is rounded to whole degrees first.
double NormalizarAngulo(double angulo);
/// The same in radians.
double AnguloRadianes(double angulo);

struct PuntoSalida {
    double x = 0, y = 0;
};

/// The point `distancia` away in a direction, its coordinates rounded to 32-bit floats.
PuntoSalida polar(PuntoSalida desde, double angulo, double distancia);

/// In the place of an angle: the stroke has two ends given, and no direction.
inline constexpr int sinAngulo = -10000;

/// A stroke from (x, y) to (x2, y2) if `angulo` is `sinAngulo`; otherwise of `longitud` in that direction.
void TrazarRecta(SuperficieSalida& superficie, Color color, PuntoSalida inicio, PuntoSalida fin,
                 double angulo, double longitud);

/// A rectangle from its near corner: the long sides run at `angulo`, the short ones across, towards minus
/// `ancho`. The far strokes overrun by 15 units, whatever the scale and the signs.
void TrazarRecuadro(SuperficieSalida& superficie, Color color, PuntoSalida esquina, double longitud,
                    double ancho, double angulo);

/// An oval of four arcs: the ends lie along `relativo` + `base`, the sides bulge across.
struct Ovalo {
    PuntoSalida centro;
    double longitud = 0, ancho = 0;
    double arcoLargo = 0, arcoCorto = 0;  ///< the spans of the side and of the end arcs
    double relativo = 0, base = 0;
};
void TrazarElipse(SuperficieSalida& superficie, Color color, const Ovalo& ovalo);

enum class TipoDeTrazo : std::uint8_t { continuo, rayas };

/// Draws a segment given in sheet units: both ends times `EscalaSalida`, as 32-bit floats; a dashed one as
/// four strokes of a seventh each. The dashes keep the length that they have on the sheet, whatever the
/// scale, and the last one reaches to the end. What does not fit a 32-bit float is left out.
void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color, double EscalaSalida,
                    TipoDeTrazo trazo = TipoDeTrazo::continuo);

}  // namespace bosquel
