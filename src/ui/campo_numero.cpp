#include "ui/campo_numero.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <utility>

namespace bosquel {

namespace {

/// The keys of navigation, of editing and of shortcuts carry no text, a control character, or Ctrl.
bool escribeTexto(const QKeyEvent& tecla) {
    const auto modificadores = tecla.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString texto = tecla.text();
    return !texto.isEmpty() && texto.front().category() != QChar::Other_Control &&
           modificadores != Qt::ControlModifier;
}

/// The focus did not leave the window: it comes back to the same field.
bool pasajero(Qt::FocusReason motivo) {
    return motivo == Qt::ActiveWindowFocusReason || motivo == Qt::PopupFocusReason;
}

}  // namespace

CampoNumero::CampoNumero(Filtro filtro, AlEnfocar alEnfocar, QWidget* padre)
    : QLineEdit(padre), filtro_(filtro), alEnfocar_(alEnfocar) {
    setAcceptDrops(false);
    setInputMethodHints(Qt::ImhPreferNumbers);
    connect(this, &CampoNumero::rechazada, &QApplication::beep);
}

QString CampoNumero::admitir(const QString& texto) {
    QString admitido;
    bool rehusado = false;
    for (const char32_t caracter : texto.toUcs4()) {
        const auto pasa = filtro_(caracter);
        if (pasa) admitido += QString::fromUcs4(&*pasa, 1);
        rehusado |= !pasa;
    }
    if (rehusado) emit rechazada();
    return admitido;
}

void CampoNumero::escribir(const QString& texto) {
    if (const QString admitido = admitir(texto); !admitido.isEmpty()) insert(admitido);
}

void CampoNumero::pegar() {
    escribir(QApplication::clipboard()->text());
}

void CampoNumero::ponerFondo() {
    QPalette colores;
    if (!isEnabled() || isReadOnly())
        colores.setColor(QPalette::Base,
                         QApplication::palette(this).color(QPalette::Active, QPalette::Button));
    setPalette(colores);
}

void CampoNumero::changeEvent(QEvent* suceso) {
    if (suceso->type() == QEvent::EnabledChange || suceso->type() == QEvent::ReadOnlyChange) ponerFondo();
    QLineEdit::changeEvent(suceso);
}

/// The line edit's own menu would paste past the filter, and in the language of the desktop.
void CampoNumero::contextMenuEvent(QContextMenuEvent* suceso) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool escribible = !isReadOnly();
    const bool elegido = hasSelectedText();
    const auto orden = [&](const char* rotulo, auto hacer, bool posible) {
        menu->addAction(rotulo, this, hacer)->setEnabled(posible);
    };
    orden("&Deshacer", &QLineEdit::undo, escribible && isUndoAvailable());
    orden("&Rehacer", &QLineEdit::redo, escribible && isRedoAvailable());
    menu->addSeparator();
    orden("Cor&tar", &QLineEdit::cut, escribible && elegido);
    orden("&Copiar", &QLineEdit::copy, elegido);
    orden("&Pegar", &CampoNumero::pegar, escribible && !QApplication::clipboard()->text().isEmpty());
    menu->addSeparator();
    orden("&Seleccionar todo", &QLineEdit::selectAll, !text().isEmpty());
    menu->popup(suceso->globalPos());
}

void CampoNumero::focusInEvent(QFocusEvent* suceso) {
    const bool llega = !std::exchange(enfocado_, true);
    const int cursor = cursorPosition();
    QLineEdit::focusInEvent(suceso);
    if (!llega) return;
    if (alEnfocar_ == AlEnfocar::dejarCursor) return setCursorPosition(cursor);
    selectAll();
    porPulsacion_ = suceso->reason() == Qt::MouseFocusReason;
}

void CampoNumero::focusOutEvent(QFocusEvent* suceso) {
    enfocado_ = pasajero(suceso->reason());
    porPulsacion_ = false;
    QLineEdit::focusOutEvent(suceso);
}

void CampoNumero::inputMethodEvent(QInputMethodEvent* suceso) {
    QInputMethodEvent admitido(suceso->preeditString(), suceso->attributes());
    admitido.setCommitString(admitir(suceso->commitString()), suceso->replacementStart(),
                             suceso->replacementLength());
    QLineEdit::inputMethodEvent(&admitido);
}

void CampoNumero::keyPressEvent(QKeyEvent* suceso) {
    if (isReadOnly()) return QLineEdit::keyPressEvent(suceso);
    if (suceso->matches(QKeySequence::Paste)) return pegar();
    if (!escribeTexto(*suceso)) return QLineEdit::keyPressEvent(suceso);
    escribir(suceso->text());
}

// The press that brings the focus would take the selection away again: that one press, with the pointer's
// drift until its release, is kept from the line edit. The other buttons have work of their own.

void CampoNumero::mousePressEvent(QMouseEvent* suceso) {
    porPulsacion_ = porPulsacion_ && suceso->button() == Qt::LeftButton;
    if (!porPulsacion_) QLineEdit::mousePressEvent(suceso);
}

void CampoNumero::mouseMoveEvent(QMouseEvent* suceso) {
    if (!porPulsacion_) QLineEdit::mouseMoveEvent(suceso);
}

void CampoNumero::mouseReleaseEvent(QMouseEvent* suceso) {
    if (std::exchange(porPulsacion_, false)) return;
    if (suceso->button() != Qt::MiddleButton) return QLineEdit::mouseReleaseEvent(suceso);
    if (!isReadOnly() && QApplication::clipboard()->supportsSelection())
        escribir(QApplication::clipboard()->text(QClipboard::Selection));
}

}  // namespace bosquel
