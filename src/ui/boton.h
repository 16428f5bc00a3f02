#pragma once

#include <QAbstractButton>
#include <functional>

namespace bosquel {

/// A picture button: the drawn icon above its caption, flat until its border is raised. It takes the focus by
/// the Tab key alone, so that a click on a tool leaves the focus where it was. One that stays pressed is
/// framed in the colour of the highlight.
class Boton final : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(bool BordeElevado READ bordeElevado WRITE ponerBordeElevado)

  public:
    /// `imagen` is the name of a drawing of the program; empty for a caption alone.
    Boton(const QString& nombre, const QString& rotulo, const QString& imagen, QWidget* padre);

    /// How the picture comes out in the colours of a palette: asked again whenever they change.
    using Imagen = std::function<QIcon(const QPalette&)>;
    void ponerImagen(Imagen imagen);

    bool bordeElevado() const { return bordeElevado_; }
    void ponerBordeElevado(bool elevado);

    QSize sizeHint() const override;

  signals:
    /// The pointer moves over the button.
    void cruzado();

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void changeEvent(QEvent* evento) override;

  private:
    int altoRotulo() const;
    void pintarFondo(QPainter& pintor) const;

    Imagen imagen_;
    bool bordeElevado_ = false;
};

}  // namespace bosquel
