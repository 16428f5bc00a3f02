#pragma once

#include <QDialog>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace bosquel {

/// What all dialogs share: modal, of a fixed size, at the right edge of their owner, with "Aplicar" and
/// "Cancelar" at the bottom right. Enter applies; Escape and the close box do what "Cancelar" does.
class Dialogo : public QDialog {
    Q_OBJECT

  public:
    void accept() final;
    void reject() final;

  protected:
    /// The object names of the two buttons, which differ from dialog to dialog.
    struct Botones {
        const char* aplicar;
        const char* cancelar;
    };

    Dialogo(const char* nombre, const QString& titulo, const Botones& botones, QWidget* padre);

    /// Where the form lays its widgets.
    QVBoxLayout* cuerpo() const { return cuerpo_; }
    /// One more button, at the left of the bottom row; it leaves the dialog open.
    QPushButton* anadirBoton(const char* nombre, const QString& rotulo);

    /// The way of the Tab key through the controls, by object name.
    void ordenar(const QStringList& nombres);

    void showEvent(QShowEvent* suceso) override;

    virtual void aplicar() = 0;
    virtual void cancelar() {}

  private:
    void colocar();

    QVBoxLayout* cuerpo_;
    QHBoxLayout* pie_;
    int sueltos_ = 0;  ///< buttons at the left
};

}  // namespace bosquel
