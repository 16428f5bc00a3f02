#include "ui/hoja_salida_widget.h"

#include "output/image_crop.h"
#include "ui/unidades.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace bosquel {

namespace {

/// The rubber frame: an outline and a veil, through which the pointer reaches the sheet.
class Marco final : public QWidget {
  public:
    explicit Marco(QWidget* hoja) : QWidget(hoja) {
        setObjectName("Shape1");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int velo = 36;
        QColor color = palette().color(QPalette::Active, QPalette::Highlight);
        QPainter pintor(this);
        pintor.setPen(color);
        color.setAlpha(velo);
        pintor.setBrush(color);
        pintor.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

QPoint enPixeles(double x, double y) {
    return {aPixeles(x), aPixeles(y)};
}

}  // namespace

HojaSalidaWidget::HojaSalidaWidget(ImageCrop& logica, const QImage& imagen, QWidget* padre)
    : QWidget(padre), logica_(logica), imagen_(imagen), recuadro_(new Marco(this)) {
    setObjectName("Picture1");
    setAccessibleName("Dibujo");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    resize(imagen.size());
}

void HojaSalidaWidget::situar() {
    const Recuadro& hoja = logica_.HojaSalida();
    const Recuadro& forma = logica_.recuadro().forma();
    const QPoint lugar = enPixeles(hoja.Left, hoja.Top);
    const bool movida = lugar != pos();
    move(lugar);
    recuadro_->setGeometry(QRect(enPixeles(forma.Left, forma.Top),
                                 enPixeles(forma.Left + forma.Width, forma.Top + forma.Height)));
    recuadro_->setVisible(logica_.recuadro().Visible());
    if (movida) repetirPuntero();
}

void HojaSalidaWidget::repetirPuntero() {
    // A box that came in front has swallowed the release.
    const QWidget* delante = QApplication::activeModalWidget();
    if (delante && delante != window()) botones_ = Qt::NoButton;
    if (botones_ == Qt::NoButton || !isVisible()) return;
    QCoreApplication::postEvent(this, new QMouseEvent(QEvent::MouseMove, mapFromGlobal(puntero_), puntero_,
                                                      Qt::NoButton, botones_, Qt::NoModifier));
}

void HojaSalidaWidget::anotar(const QMouseEvent& evento) {
    puntero_ = evento.globalPosition();
    botones_ = evento.buttons();
}

void HojaSalidaWidget::paintEvent(QPaintEvent* evento) {
    QPainter(this).drawImage(evento->rect(), imagen_, evento->rect());
}

void HojaSalidaWidget::mousePressEvent(QMouseEvent* evento) {
    anotar(*evento);
    const QPointF punto = evento->position() * unidadesPorPixel;
    logica_.pulsar(punto.x(), punto.y());
}

void HojaSalidaWidget::mouseMoveEvent(QMouseEvent* evento) {
    anotar(*evento);
    const QPointF punto = evento->position() * unidadesPorPixel;
    const bool encima = logica_.recuadro().Visible() && logica_.recuadro().contiene(punto.x(), punto.y());
    if (botones_ == Qt::NoButton) setCursor(encima ? Qt::SizeAllCursor : Qt::CrossCursor);
    // The toolkit numbers the buttons as the window does.
    logica_.mover(static_cast<unsigned>(evento->buttons().toInt()), punto.x(), punto.y());
}

void HojaSalidaWidget::mouseReleaseEvent(QMouseEvent* evento) {
    anotar(*evento);
    logica_.soltar();
}

}  // namespace bosquel
