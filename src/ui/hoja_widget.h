#pragma once

#include "drawing/bosquel.h"

#include <QPixmap>
#include <QRegion>
#include <QWidget>

namespace bosquel {

class EditorTexto;

/// The sheet. What stands still on it is kept as a picture of the part on view, so that an event of a drag
/// costs the same whatever else is on the sheet: only the places where the dragged thing was and is are put
/// together anew.
class HojaWidget final : public QWidget {
  public:
    HojaWidget(Bosquel& bosquel, QWidget* padre);

    /// Puts the sheet where the drawing says.
    void situar();

    /// These parts are to be painted again.
    void ensuciar(const ZonaSucia& zona, const ZonaSucia& paso);

    void ponerCursor(Cursor rol);

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;

  private:
    /// The part of the sheet in the viewport, in logical pixels of the sheet.
    QRect aLaVista() const;
    void actualizarFondo();
    void pintarFondo(const QRect& zona);
    /// The pointer in sheet units.
    QPointF enHoja(const QMouseEvent& evento) const;
    QRegion region(const std::vector<Recuadro>& zonas) const;

    Bosquel& bosquel_;
    QPoint origen_;      ///< the widget's corner on the sheet: not 0 only for sheets larger than any widget
    QPixmap fondo_;      ///< what stands still
    QRect vista_;        ///< the part of the sheet that `fondo_` shows
    QRegion pendiente_;  ///< what of it is no longer true
    EditorTexto* editor_;
    Cursor cursor_ = Cursor::Flecha;
};

}  // namespace bosquel
