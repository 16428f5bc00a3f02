#pragma once

#include <QLabel>
#include <QLineF>
#include <vector>

namespace bosquel {

/// The caption at the end of a spoke.
class EtiquetaDial : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

  signals:
    void pulsada();
    void doblePulsada();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;

  private:
    bool apretada_ = false;
};

/// A spoke: one line, through which the pointer reaches whatever lies beneath.
class LineaDial : public QWidget {
    Q_OBJECT

  public:
    /// `trazo` lies in the parent's coordinates; the widget takes its place.
    LineaDial(const QLineF& trazo, QWidget* padre);

  protected:
    void paintEvent(QPaintEvent* suceso) override;

  private:
    QLineF trazo_;  ///< in its own coordinates
};

/// Spokes around a centre on a white ground, each with a caption to click on. One of them is lit at most.
/// The arrow keys walk over them.
class Dial : public QWidget {
    Q_OBJECT

  public:
    struct Radio {
        QString rotulo;
        int angulo;  ///< degrees, 0 at the right, positive upwards
    };
    /// Object names are the prefixes followed by the spoke's number, from 1 on. `largo` is the distance from
    /// the centre to the end of the spokes, px.
    struct Traza {
        QString etiqueta, linea;
        std::vector<Radio> radios;
        double largo;
    };

    explicit Dial(const Traza& traza, QWidget* padre = nullptr);

    /// Lights the spoke of this number, and no other; 0 for none.
    void encender(int radio);

    QSize sizeHint() const override { return minimumSize(); }

  signals:
    void pulsado(int radio);
    void doblePulsado(int radio);

  protected:
    void keyPressEvent(QKeyEvent* suceso) override;
    void paintEvent(QPaintEvent* suceso) override;

  private:
    void ponerRadio(const Traza& traza, const Radio& radio);
    void encuadrar();

    std::vector<EtiquetaDial*> etiquetas_;
    std::vector<LineaDial*> lineas_;
    int encendido_ = 0;
};

}  // namespace bosquel
