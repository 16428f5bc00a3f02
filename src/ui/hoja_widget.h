#pragma once

#include "drawing/bosquel.h"
#include "ui/pintura_hoja.h"

#include <QImage>
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
    /// Of a picture that shows these device pixels of the sheet.
    LugarHoja lugarDe(const QRect& pixeles) const;
    void actualizarFondo();
    QImage enFondo(const QRect& pixeles) const;
    QImage imagenDe(const QRect& pixeles) const;
    /// The pointer in sheet units.
    QPointF enHoja(const QMouseEvent& evento) const;
    QRegion region(const std::vector<Recuadro>& zonas) const;

    Bosquel& bosquel_;
    QPoint origen_;  ///< the widget's corner on the sheet: not 0 only for sheets larger than any widget
    QImage fondo_;   ///< what stands still
    QRect vista_;    ///< the part of the sheet that `fondo_` shows
    QRect pixeles_;  ///< and its device pixels
    double densidad_ = 1;
    QRegion pendiente_;  ///< what of it is no longer true
    EditorTexto* editor_;
    Cursor cursor_ = Cursor::Flecha;
};

}  // namespace bosquel
