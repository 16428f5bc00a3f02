#pragma once

#include <QPointF>
#include <QWidget>

class QImage;

namespace bosquel {

class ImageCrop;

/// `HojaSalida` under the hand: the picture of the drawing, a picture pixel to a logical one, with the rubber
/// frame on it.
class HojaSalidaWidget final : public QWidget {
  public:
    HojaSalidaWidget(ImageCrop& logica, const QImage& imagen, QWidget* padre);

    /// Sheet and frame where the window has them.
    void situar();

    /// Tells where the pointer is, as if it had moved there, once the event under way is over or waits. No
    /// event comes from a pointer that rests, while the sheet moves under it.
    void repetirPuntero();

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    void anotar(const QMouseEvent& evento);

    ImageCrop& logica_;
    const QImage& imagen_;
    QWidget* recuadro_;
    QPointF puntero_;  ///< where it was seen last, on the screen
    Qt::MouseButtons botones_;
};

}  // namespace bosquel
