#pragma once

#include <QGroupBox>
#include <QStringList>

class QPushButton;

namespace bosquel {

class AnguloGiro;
class CampoNumero;
class Dial;

/// The frame "Angulo" of a dialog: text, dial and the two buttons of an angle.
class PanelAngulo final : public QGroupBox {
    Q_OBJECT

  public:
    explicit PanelAngulo(AnguloGiro& angulo, QWidget* padre = nullptr);

    /// Its controls in the order of the Tab key.
    static const QStringList& orden();

  signals:
    /// The angle has changed, by any of its controls.
    void cambiado();

  private:
    QPushButton* giro(int indice, const QString& rotulo, const QString& leido);
    void mostrar();

    AnguloGiro& angulo_;
    CampoNumero* TxtAngulo_;
    Dial* dial_;
};

}  // namespace bosquel
