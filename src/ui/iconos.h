#pragma once

#include "model/modos.h"

#include <QCursor>
#include <QIcon>
#include <QPalette>
#include <QString>

namespace bosquel {

/// The drawing ":/imagenes/<nombre>.svg" in the colours of the palette, sharp at any size and device pixel
/// ratio; a null icon if there is none. The colours are those of this palette: ask again when it changes.
QIcon icono(const QString& nombre, const QPalette& paleta);

/// The colour of a role as it comes out over the ground of a window, whole.
QColor opaco(const QPalette& paleta, QPalette::ColorGroup grupo, QPalette::ColorRole rol);

/// The cursor of a role, of 32x32 logical pixels, drawn for the device pixel ratio given.
QCursor cursor(Cursor rol, qreal escala);

}  // namespace bosquel
