#pragma once

#include <QStringList>
#include <functional>
#include <vector>

class QRadioButton;
class QWidget;

namespace bosquel {

/// The radios of an index group: their names are `nombre` with their index, from `primero` on. `elegido` is
/// the index of the one that is set; none is if there is no such one. `alElegir` hears of the one that the
/// user sets.
std::vector<QRadioButton*> nuevosRadios(const QString& nombre, int primero, const QStringList& rotulos,
                                        int elegido, const std::function<void(int)>& alElegir);

/// Of the radios that exclude each other the Tab key visits the one that is set; the arrow keys visit them
/// all. Once one of them has had the focus, the toolkit itself sees to it: this is for a window that opens.
void enfocarElegidos(QWidget& ventana);

}  // namespace bosquel
