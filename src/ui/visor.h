#pragma once

#include <QScrollBar>
#include <QWidget>

namespace bosquel {

/// The viewport in which the sheet lies: a quiet ground, a hairline around the paper, and a wheel that turns
/// the scroll bars.
class Visor final : public QWidget {
  public:
    explicit Visor(QWidget* padre);

    void ponerHoja(QWidget* hoja) { hoja_ = hoja; }
    void ponerBarras(QScrollBar* horizontal, QScrollBar* vertical);

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

  private:
    QWidget* hoja_ = nullptr;
    QScrollBar* horizontal_ = nullptr;
    QScrollBar* vertical_ = nullptr;
};

}  // namespace bosquel
