#pragma once

#include <QLineEdit>
#include <optional>

namespace bosquel {

/// A field for a number. Whatever comes from outside, by key, paste or input method, goes through its filter
/// character by character; what the program sets does not. Grey while nothing can be typed into it.
class CampoNumero : public QLineEdit {
    Q_OBJECT

  public:
    using Filtro = std::optional<char32_t> (*)(char32_t);
    enum class AlEnfocar { seleccionarTodo, dejarCursor };

    explicit CampoNumero(Filtro filtro, AlEnfocar alEnfocar = AlEnfocar::seleccionarTodo,
                         QWidget* padre = nullptr);

  signals:
    /// Something that was typed or pasted was refused, wholly or in part: it beeps.
    void rechazada();

  protected:
    void changeEvent(QEvent* suceso) override;
    void contextMenuEvent(QContextMenuEvent* suceso) override;
    void focusInEvent(QFocusEvent* suceso) override;
    void focusOutEvent(QFocusEvent* suceso) override;
    void inputMethodEvent(QInputMethodEvent* suceso) override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void mouseMoveEvent(QMouseEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;

  private:
    QString admitir(const QString& texto);
    void escribir(const QString& texto);
    void pegar();
    void ponerFondo();

    Filtro filtro_;
    AlEnfocar alEnfocar_;
    bool enfocado_ = false;      ///< keeps true while only the window is inactive
    bool porPulsacion_ = false;  ///< the press that is under way brought the focus
};

}  // namespace bosquel
