#pragma once

#include "surface/calco.h"

#include <QIcon>
#include <QPalette>
#include <QSizeF>
#include <vector>

namespace bosquel {

/// An element on a button: as large as fits, its strokes one device pixel wide at any density. In the colours
/// that every element starts with it takes the text colour and the ground of the palette; in others it stands
/// on paper, as on the sheet. `marco` is what has to fit besides, in surface units: pictures that stand
/// together and share it are of one scale. The palette is this one: ask again when it changes.
QIcon imagenElemento(const Calco& calco, const QPalette& paleta, const QSizeF& marco = {});

/// What holds any of the pictures.
QSizeF marcoDe(const std::vector<Calco>& calcos);

}  // namespace bosquel
