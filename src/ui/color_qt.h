#pragma once

#include "model/colores.h"

#include <QColor>

namespace bosquel {

/// The colour as the toolkit has it, and back: a plain one.
QColor colorQt(Color color);
Color colorDe(const QColor& color);

}  // namespace bosquel
