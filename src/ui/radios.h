#pragma once

#include <QStringList>
#include <functional>
#include <vector>

class QRadioButton;

namespace bosquel {

/// The radios of an index group: their names are `nombre` with their index, from `primero` on. `elegido` is
/// the index of the one that is set; none is if there is no such one. `alElegir` hears of the one that the
/// user sets. The Tab key visits the one that is set, the arrow keys them all.
std::vector<QRadioButton*> nuevosRadios(const QString& nombre, int primero, const QStringList& rotulos,
                                        int elegido, const std::function<void(int)>& alElegir);

}  // namespace bosquel
