#include "ui/superficie_imagen.h"

#include "ui/color_qt.h"
#include "ui/letra.h"

#include <QFontMetricsF>
#include <QWidget>

namespace bosquel {

namespace {

ZonaPixeles zonaDe(const QRect& rect) {
    return {rect.left(), rect.top(), rect.right(), rect.bottom()};
}

Trama tramaDe(QImage& imagen, const QRect& zona) {
    const QRect suya = imagen.rect() & zona;
    // A picture that shares its pixels takes its own here, in rows of a length of its own.
    auto* pixeles = static_cast<Trama::Pixel*>(static_cast<void*>(imagen.bits()));
    const auto salto = imagen.bytesPerLine() / static_cast<qsizetype>(sizeof(Trama::Pixel));
    return {pixeles + suya.y() * salto + suya.x(), salto, zonaDe(suya)};
}

}  // namespace

SuperficieImagen::SuperficieImagen(QImage& imagen, double escala, Letras letras, QPointF origen,
                                   const QRect& zona)
    : SuperficiePixeles(tramaDe(imagen, zona), escala, {origen.x(), origen.y()}),
      imagen_(imagen),
      letras_(letras) {}

/// Texts are rare, and a painter takes long to begin.
QPainter& SuperficieImagen::pintor() {
    if (pintor_) return *pintor_;
    pintor_.emplace(&imagen_);
    const ZonaPixeles& zona = trama().zona();
    pintor_->setClipRect(QRect(QPoint(zona.x1, zona.y1), QPoint(zona.x2, zona.y2)));
    return *pintor_;
}

void SuperficieImagen::ponerLetra() {
    if (puntosLetra_ == puntos_) return;
    puntosLetra_ = puntos_;
    QFont letra = fuenteTexto(puntos_, escala());
    if (letras_ == Letras::sinSuavizar) letra = sinSuavizar(letra);
    pintor().setFont(letra);
    ascenso_ = QFontMetricsF(letra).ascent();
}

void SuperficieImagen::Print(std::string_view texto) {
    const LugarPixeles esquina = enPixeles(texto_.x, texto_.y);
    if (!alAlcance(esquina)) return;
    ponerLetra();
    pintor().setPen(colorQt(colorTexto_));
    pintor().drawText(QPoint(pixelEntero(esquina.x), pixelEntero(esquina.y + ascenso_)),
                      QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size())));
}

QImage papelDe(const QWidget& widget) {
    const QSizeF tamano = QSizeF(widget.size()) * widget.devicePixelRatioF();
    QImage papel(tamano.toSize(), QImage::Format_RGB32);
    papel.fill(Qt::white);
    return papel;
}

void ponerPapel(QPainter& pintor, const QImage& papel) {
    const double densidad = pintor.device()->devicePixelRatioF();
    pintor.save();
    pintor.scale(1 / densidad, 1 / densidad);
    pintor.drawImage(QPoint(), papel);
    pintor.restore();
}

}  // namespace bosquel
