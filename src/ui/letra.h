#pragma once

#include <QFont>

namespace bosquel {

/// The type of free texts, `escala` pixels to a sheet unit.
QFont fuenteTexto(double puntos, double escala);

/// The same type on a picture that is not smoothed: nothing of its letters is left to the settings of the
/// screen.
QFont sinSuavizar(QFont letra);

}  // namespace bosquel
