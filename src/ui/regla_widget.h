#pragma once

#include "drawing/bosquel.h"

#include <QWidget>

namespace bosquel {

/// The ruler: a translucent strip with marks that follow the zoom and numbers in metres from its own end.
class ReglaWidget final : public QWidget {
  public:
    ReglaWidget(Bosquel& bosquel, QWidget* padre);

    /// Puts the ruler where the session says, or hides it.
    void situar();

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

  private:
    void pintarMarca(QPainter& pintor, int decimetros, double lugar) const;

    Bosquel& bosquel_;
    double factorPintado_ = 0;
};

}  // namespace bosquel
