#pragma once

#include <QDialog>

class QLabel;
class QTimer;

namespace bosquel {

class Entrada;

/// The splash: a sheet of paper with a small plan on it, on which the version types itself out. Closes by
/// itself, or at once when it is pressed.
class EntradaForma : public QDialog {
    Q_OBJECT

  public:
    explicit EntradaForma(Entrada& logica);

  protected:
    void hideEvent(QHideEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void paintEvent(QPaintEvent* suceso) override;
    void showEvent(QShowEvent* suceso) override;

  private:
    void tic();

    Entrada& logica_;
    QLabel* lblVersion_;
    QTimer* reloj_;
};

}  // namespace bosquel
