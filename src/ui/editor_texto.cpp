#include "ui/editor_texto.h"

#include "ui/color_qt.h"
#include "ui/letra.h"
#include "ui/textos.h"
#include "ui/unidades.h"

#include <QFocusEvent>

namespace bosquel {

namespace {

/// What a line edit keeps free at the ends of its text, px.
constexpr int margenPropio = 2;

/// Room above and below the line, px: accents of small capitals rise out of it.
constexpr int aire = 3;

const TextoLibre* textoConFoco(const Sesion& sesion) {
    if (!sesion.foco || sesion.foco->clase != Clase::TextoLibre) return nullptr;
    return sesion.dibujo.TextoLibre.en(sesion.foco->indice);
}

/// On paper, whatever the desktop's colours.
QPalette tintaSobrePapel(const QPalette& paleta, Color tinta) {
    QPalette papel = paleta;
    papel.setColor(QPalette::Base, Qt::transparent);
    papel.setColor(QPalette::Text, colorQt(tinta));
    return papel;
}

}  // namespace

EditorTexto::EditorTexto(Bosquel& bosquel, QWidget* hoja) : QLineEdit(hoja), bosquel_(bosquel) {
    setAccessibleName("Texto libre");
    setFrame(false);
    setTextMargins(-margenPropio, 0, -margenPropio, 0);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& escrito) { bosquel_.escribirTexto(escrito.toStdString()); });
}

void EditorTexto::mostrar(const TextoLibre& texto, QPoint origen) {
    const QString escrito = aQString(texto.Text);
    if (text() != escrito) setText(escrito);
    setObjectName(QString("TextoLibre_%1").arg(bosquel_.sesion().foco->indice));
    setFont(fuenteTexto(texto.FontSize, 1 / unidadesPorPixel));
    setPalette(tintaSobrePapel(palette(), texto.ForeColor));
    const QPoint esquina = QPoint(aPixeles(texto.Left), aPixeles(texto.Top)) - origen;
    setGeometry(esquina.x(), esquina.y() - aire, aPixeles(texto.Width), fontMetrics().height() + 2 * aire);
    show();
    setFocus();
}

void EditorTexto::seguirFoco(QPoint origen) {
    if (const TextoLibre* texto = textoConFoco(bosquel_.sesion())) return mostrar(*texto, origen);
    if (hasFocus()) parentWidget()->setFocus();
    hide();
}

void EditorTexto::ponerCaret(QPoint lugar) {
    if (isVisible() && geometry().contains(lugar)) setCursorPosition(cursorPositionAt(lugar - pos()));
}

void EditorTexto::focusOutEvent(QFocusEvent* suceso) {
    QLineEdit::focusOutEvent(suceso);
    const Qt::FocusReason motivo = suceso->reason();
    if (motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason) bosquel_.perderFoco();
}

}  // namespace bosquel
