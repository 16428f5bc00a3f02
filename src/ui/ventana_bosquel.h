#pragma once

#include "drawing/bosquel.h"

#include <QLabel>
#include <QScrollBar>
#include <QTimer>
#include <QWidget>
#include <array>

namespace bosquel {

class Boton;
class Columna;
class HojaWidget;
class ReglaWidget;

/// The main window: the strip of main buttons on top, the column of tools at the left, and the viewport with
/// the sheet, its ruler and its scroll bars in the rest. It shows what the session holds and hands every
/// event on; it decides nothing.
class VentanaBosquel final : public QWidget {
  public:
    explicit VentanaBosquel(Bosquel& bosquel);

    /// Shows the session's view anew: sheet, bars, ruler, borders, palette.
    void mostrarVista();

    /// Something on the sheet or a model has changed.
    void mostrarCambios(const ZonaSucia& zona, const ZonaSucia& paso);

    HojaWidget& hoja() { return *hoja_; }
    QTimer& tmrAutoSave() { return *tmrAutoSave_; }
    QTimer& timer2() { return *timer2_; }

  protected:
    void resizeEvent(QResizeEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void ponerFranja();
    void ponerColumna();
    void ponerVisor();
    void ponerPie();
    void ponerRelojes();
    void colocarBotones();

    Bosquel& bosquel_;
    QWidget* franja_ = nullptr;
    std::array<Boton*, BttPrincipal.size()> principales_{};
    Columna* columna_ = nullptr;
    QWidget* visor_ = nullptr;
    HojaWidget* hoja_ = nullptr;
    ReglaWidget* regla_ = nullptr;
    QScrollBar* hScroll_ = nullptr;
    QScrollBar* vScroll_ = nullptr;
    QLabel* estado_ = nullptr;
    QLabel* escala_ = nullptr;
    QTimer* tmrAutoSave_ = nullptr;
    QTimer* timer2_ = nullptr;
};

}  // namespace bosquel
