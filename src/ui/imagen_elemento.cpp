#include "ui/imagen_elemento.h"

#include "ui/color_qt.h"
#include "ui/iconos.h"
#include "ui/superficie_qt.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

namespace bosquel {

namespace {

constexpr double bordePapel = 2;  // device pixels
constexpr double apagado = 0.4;   // opacity
constexpr double ladoMinimo = 1;  // surface units, of what has no width

bool delSistema(const Calco::Trazo& trazo) {
    return trazo.color == colorTextoVentana && (!trazo.fondo || rgb(*trazo.fondo) == blanco);
}

QSizeF tamano(const Recuadro& recuadro) {
    return {std::max(recuadro.Width, ladoMinimo), std::max(recuadro.Height, ladoMinimo)};
}

/// The scale and the place at which a picture stands in the middle of a button.
struct Encaje {
    double escala = 1;
    QPointF origen;

    Encaje(const Recuadro& extension, const QSizeF& marco, const QRectF& sitio) {
        const QSizeF entero = tamano(extension).expandedTo(marco);
        escala = std::min(sitio.width() / entero.width(), sitio.height() / entero.height());
        const QPointF centro(extension.Left + extension.Width / 2, extension.Top + extension.Height / 2);
        origen = sitio.center() - centro * escala;
    }
};

class MotorElemento final : public QIconEngine {
  public:
    MotorElemento(Calco calco, const Recuadro& extension, QPalette paleta, const QSizeF& marco)
        : calco_(std::move(calco)), extension_(extension), paleta_(std::move(paleta)), marco_(marco) {}

    void paint(QPainter* pintor, const QRect& rect, QIcon::Mode modo, QIcon::State) override {
        const double densidad = pintor->device()->devicePixelRatioF();
        const QRectF sitio(QPointF(rect.topLeft()) * densidad, QSizeF(rect.size()) * densidad - QSizeF(1, 1));
        pintor->save();
        pintor->scale(1 / densidad, 1 / densidad);
        // Smoothed curves; straight strokes run through the middle of their pixels and stay sharp.
        pintor->setRenderHint(QPainter::Antialiasing);
        pintor->translate(0.5, 0.5);
        pintar(*pintor, Encaje(extension_, marco_, sitio), modo == QIcon::Disabled);
        pintor->restore();
    }

    QPixmap pixmap(const QSize& pixeles, QIcon::Mode modo, QIcon::State estado) override {
        return scaledPixmap(pixeles, modo, estado, 1.0);
    }

    // The size comes already multiplied by the ratio, and QIcon itself sets the ratio of what it is given.
    QPixmap scaledPixmap(const QSize& pixeles, QIcon::Mode modo, QIcon::State estado, qreal) override {
        if (pixeles.isEmpty()) return {};
        QPixmap lienzo(pixeles);
        lienzo.fill(Qt::transparent);
        QPainter pintor(&lienzo);
        paint(&pintor, lienzo.rect(), modo, estado);
        return lienzo;
    }

    QIconEngine* clone() const override { return new MotorElemento(*this); }

  private:
    void pintar(QPainter& pintor, const Encaje& encaje, bool gris) const {
        SuperficieQt superficie(pintor, encaje.escala, encaje.origen);
        if (std::all_of(calco_.trazos.begin(), calco_.trazos.end(), delSistema))
            return calco_.dibujar(superficie, tintas(gris ? QPalette::Disabled : QPalette::Active));
        if (gris) pintor.setOpacity(apagado);
        ponerPapel(pintor, encaje);
        calco_.dibujar(superficie, [](Color color) { return color; });
    }

    Calco::Tinta tintas(QPalette::ColorGroup grupo) const {
        const Color texto = colorDe(opaco(paleta_, grupo, QPalette::WindowText));
        const Color fondo = colorDe(opaco(paleta_, grupo, QPalette::Base));
        return [=](Color color) { return color == colorTextoVentana ? texto : fondo; };
    }

    void ponerPapel(QPainter& pintor, const Encaje& encaje) const {
        const QPointF esquina = encaje.origen + QPointF(extension_.Left, extension_.Top) * encaje.escala;
        const QRectF papel(esquina, QSizeF(extension_.Width, extension_.Height) * encaje.escala);
        pintor.fillRect(papel.adjusted(-bordePapel, -bordePapel, bordePapel, bordePapel), colorQt(blanco));
    }

    Calco calco_;
    Recuadro extension_;
    QPalette paleta_;
    QSizeF marco_;
};

}  // namespace

QIcon imagenElemento(const Calco& calco, const QPalette& paleta, const QSizeF& marco) {
    const auto extension = calco.extension();
    return extension ? QIcon(new MotorElemento(calco, *extension, paleta, marco)) : QIcon();
}

QSizeF marcoDe(const std::vector<Calco>& calcos) {
    QSizeF marco(0, 0);
    for (const Calco& calco : calcos)
        if (const auto extension = calco.extension()) marco = marco.expandedTo(tamano(*extension));
    return marco;
}

}  // namespace bosquel
