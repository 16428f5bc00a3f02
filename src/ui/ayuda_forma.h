#pragma once

#include "ui/ayuda_archivo.h"

#include <QWidget>

namespace bosquel {

class AyudaLateral;
class PaginaAyuda;

/// The manual in a window beside the others, which goes for good when it is closed: nothing is remembered
/// from one opening to the next.
class AyudaForma final : public QWidget {
  public:
    /// `archivo` has at least one page.
    explicit AyudaForma(const ArchivoAyuda& archivo);

    /// Shows the window before all others, with the keyboard.
    void traerAlFrente();

  protected:
    void changeEvent(QEvent* suceso) override;

  private:
    QWidget* franja();
    void ponerIconos();
    void ponerAtajos();
    void escapar();

    AyudaLateral* lateral_;
    PaginaAyuda* pagina_;
};

}  // namespace bosquel
