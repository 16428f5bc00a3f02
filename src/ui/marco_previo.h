#pragma once

#include "model/dibujo.h"

#include <QWidget>

class QImage;

namespace bosquel {

/// The frame `Marco` of a dialog: the preview of a stair or a symbol on white paper, with the middle of the
/// element in the middle of the frame. It is whole at any angle, and of one size at all of them.
class MarcoPrevio final : public QWidget {
  public:
    /// No smaller than this to either side, px.
    explicit MarcoPrevio(int lado, QWidget* padre = nullptr);

    /// Shows the element, whose middle stands at (0, 0), as it looks in a drawing of this zoom.
    void mostrar(const Escalera& escalera, double FactorZoomActual);
    void mostrar(const Electrico& electrico, double FactorZoomActual);

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    QImage imagen() const;
    template <class T>
    void poner(T& propio, const T& elemento);

    Dibujo dibujo_;  ///< of that element alone
    Clase clase_ = Clase::Escalera;
    double alcance_ = 0;  ///< from the middle to the farthest stroke, sheet units
};

}  // namespace bosquel
