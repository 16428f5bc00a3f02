#pragma once

#include <QDialog>
#include <QImage>
#include <QPrinter>

class QHBoxLayout;
class QLabel;
class QPrintPreviewWidget;
class QToolButton;

namespace bosquel {

struct Papel;

/// The preview of a page: the page as it will be printed, nearer or further, and a button that prints it.
class VistaPrevia final : public QDialog {
  public:
    VistaPrevia(QImage imagen, const Papel& papel, QWidget* padre);

  protected:
    void changeEvent(QEvent* suceso) override;
    void resizeEvent(QResizeEvent* suceso) override;

  private:
    QHBoxLayout* barra();
    QToolButton* boton(const char* nombre, const char* imagen, const QString& rotulo,
                       const QKeySequence& atajo);
    void imprimir();
    void mostrarZoom();
    void pintarIconos();

    const QImage imagen_;
    const Papel& papel_;
    QPrinter impresora_;
    QPrintPreviewWidget* vista_;
    QLabel* zoom_;
    double densidad_ = 1;  ///< pixels of the screen to a pixel of the picture
    QList<QToolButton*> botones_;
};

}  // namespace bosquel
