#pragma once

#include <QRadioButton>
#include <array>

class QButtonGroup;
class QImage;

namespace bosquel {

class AberturaProp;

/// A round button on the sketch: full while it is chosen, pale while it cannot be.
class BotonCroquis final : public QRadioButton {
    Q_OBJECT

  public:
    using QRadioButton::QRadioButton;

  protected:
    bool hitButton(const QPoint& punto) const override;
    void paintEvent(QPaintEvent* suceso) override;
};

/// The sketch in the dialogs of windows and doors: the wall with its opening, the side buttons beside it and
/// the end buttons beyond its ends, all along the direction of the wall.
class CroquisAbertura final : public QWidget {
    Q_OBJECT

  public:
    /// The captions are read aloud: those of the side buttons, then of the end buttons.
    CroquisAbertura(AberturaProp& logica, const std::array<const char*, 4>& rotulos,
                    QWidget* padre = nullptr);

    /// Shows anew what can be chosen and what is.
    void mostrar();

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    QImage imagen() const;
    QRadioButton* ponerBoton(std::size_t indice, const char* rotulo, QButtonGroup* grupo);

    AberturaProp& logica_;
    std::array<QRadioButton*, 4> botones_{};  ///< in the order of the logic's
};

}  // namespace bosquel
