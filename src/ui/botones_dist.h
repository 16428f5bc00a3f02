#pragma once

#include <QWidget>
#include <vector>

class QButtonGroup;

namespace bosquel {

class Boton;
struct Calco;

/// A group of picture buttons of which at most one is pressed: the layouts of an element.
class BotonesDist final : public QWidget {
    Q_OBJECT

  public:
    struct Rotulo {
        QString visible, leido;
    };
    /// The buttons are named `nombre` with "_" and their index.
    BotonesDist(const QString& nombre, const std::vector<Rotulo>& rotulos, QWidget* padre = nullptr);

    /// Shows a button pressed, none for -1.
    void marcar(int cual);
    /// What the buttons show, at the scale of the frame that holds them all.
    void mostrar(const std::vector<Calco>& calcos, const QSizeF& marco);

  signals:
    /// The user has pressed a button, whether it was pressed already or not.
    void pulsado(int cual);

  private:
    std::vector<Boton*> botones_;
    QButtonGroup* grupo_;
};

}  // namespace bosquel
