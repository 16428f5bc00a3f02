#pragma once

#include "model/colores.h"

#include <QWidget>

class QFrame;

namespace bosquel {

/// A swatch and the button "…" that opens the colour dialog for it. The dialog opens on no colour of the
/// swatch's, and keeps no colours of its own from one time to the next.
class SelectorColor final : public QWidget {
    Q_OBJECT

  public:
    /// The object names of swatch and button; `leido` says what the colour is of, to those who do not see it.
    SelectorColor(const QString& muestra, const QString& boton, const QString& leido,
                  QWidget* padre = nullptr);

    Color color() const { return color_; }
    void ponerColor(Color color);

  signals:
    /// The colour dialog was closed: with a colour, which the swatch shows already, or without.
    void elegido(bool conColor);

  private:
    void elegir();

    QFrame* muestra_;
    Color color_ = negro;
};

}  // namespace bosquel
