#pragma once

#include "ui/lienzo_qt.h"

#include <QDialog>

class QLabel;
class QLayout;
class QPushButton;
class QScrollBar;
class QTimer;

namespace bosquel {

class HojaSalidaWidget;
class ImageCrop;
class Visor;

/// "Selección de Area a Exportar o Imprimir": the window of the output on the screen.
class ImageCropForma final : public QDialog {
  public:
    ImageCropForma(ImageCrop& logica, QWidget* padre);

  protected:
    void resizeEvent(QResizeEvent* suceso) override;

  private:
    void ponerVisor();
    void ponerPanel();
    QLayout* tamanos();
    QLayout* sentidosDelPapel();
    QPushButton* boton(std::size_t i);
    void mostrar();

    ImageCrop& logica_;
    LienzoQt lienzo_;
    Visor* visor_ = nullptr;
    HojaSalidaWidget* hoja_ = nullptr;
    QScrollBar* hScroll_ = nullptr;
    QScrollBar* vScroll_ = nullptr;
    QWidget* panel_ = nullptr;
    QLabel* indicacion_ = nullptr;
    QTimer* reloj_;
};

}  // namespace bosquel
