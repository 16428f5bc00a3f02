#include "ui/marco_previo.h"

#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "ui/superficie_imagen.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace bosquel {

namespace {

constexpr int aire = 12;  // px

double masLejano(const Recuadro& extension) {
    const double x = std::max(std::abs(extension.Left), std::abs(extension.Left + extension.Width));
    const double y = std::max(std::abs(extension.Top), std::abs(extension.Top + extension.Height));
    return std::hypot(x, y);
}

}  // namespace

MarcoPrevio::MarcoPrevio(int lado, QWidget* padre) : QWidget(padre) {
    setObjectName("Marco");
    setAccessibleName("Vista previa");
    setMinimumSize(lado, lado);
}

/// Measured without its turn, so that it keeps its size while it is turned.
template <class T>
void MarcoPrevio::poner(T& propio, const T& elemento) {
    propio = elemento;
    propio.Angle = 0;
    const auto extension = extensionDe(dibujo_, clase_, 1);
    alcance_ = extension ? masLejano(*extension) : 0;
    propio.Angle = elemento.Angle;
    update();
}

void MarcoPrevio::mostrar(const Escalera& escalera, double FactorZoomActual) {
    clase_ = Clase::Escalera;
    dibujo_.FactorZoomActual = FactorZoomActual;
    poner(dibujo_.Escalera.crear(1), escalera);
}

void MarcoPrevio::mostrar(const Electrico& electrico, double FactorZoomActual) {
    clase_ = Clase::Electrico;
    dibujo_.FactorZoomActual = FactorZoomActual;
    poner(dibujo_.Electrico.crear(1), electrico);
}

QImage MarcoPrevio::imagen() const {
    const double densidad = devicePixelRatioF();
    QImage imagen = papelDe(*this);
    if (alcance_ > 0) {
        const double escala = (std::min(width(), height()) / 2.0 - aire) / alcance_ * densidad;
        SuperficieImagen superficie(imagen, escala, SuperficieImagen::Letras::sinSuavizar,
                                    QRectF(rect()).center() * densidad);
        DibujarElemento(salidaDe(dibujo_, superficie, 1), dibujo_, clase_, 1);
    }
    return imagen;
}

void MarcoPrevio::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    ponerPapel(pintor, imagen());
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace bosquel
