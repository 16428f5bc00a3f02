#pragma once

#include "drawing/bosquel.h"

#include <QLineEdit>

namespace bosquel {

/// The line in which the free text that has the focus is written, right over its place on the sheet. The
/// pointer goes through it, so that the text is dragged as everything else is.
class EditorTexto final : public QLineEdit {
  public:
    EditorTexto(Bosquel& bosquel, QWidget* hoja);

    /// Shows over the text that has the focus, if one has; `origen` is the sheet's pixel in the corner of the
    /// widget.
    void seguirFoco(QPoint origen);

    /// The caret goes to where the pointer is, if it is over the text. Logical pixels of the sheet's widget.
    void ponerCaret(QPoint lugar);

  protected:
    void focusOutEvent(QFocusEvent* suceso) override;

  private:
    void mostrar(const TextoLibre& texto, QPoint origen);

    Bosquel& bosquel_;
};

}  // namespace bosquel
