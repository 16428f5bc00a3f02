#pragma once

#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace bosquel {

/// A caption as it is read aloud: without mnemonic, colon and doubled blanks.
QString leido(const QString& rotulo);

/// Gives a widget its object name and, from the caption that it carries, its accessible name.
template <class Control>
Control* nombrar(Control* control, const char* nombre) {
    control->setObjectName(nombre);
    if constexpr (requires { control->text(); }) control->setAccessibleName(leido(control->text()));
    return control;
}

/// A caption that leads to its field by its mnemonic and names it for those who do not see it. `unidad` is
/// read with it.
QLabel* rotular(const QString& rotulo, QWidget* campo, const QString& unidad = {});

/// The rows of a form, all with the same distances; `marco` may be none.
QGridLayout* nuevaRejilla(QWidget* marco = nullptr);

/// A row of a form: caption, field, unit. The caption is a label or the radio or check that stands for one.
/// Answers the unit.
QLabel* ponerFila(QGridLayout* rejilla, int fila, QWidget* rotulo, QWidget* campo, const QString& unidad);

}  // namespace bosquel
