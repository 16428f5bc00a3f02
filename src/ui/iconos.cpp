#include "ui/iconos.h"

#include <QByteArray>
#include <QColor>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <QtGlobal>
#include <utility>

// A resource linked in from a static library is not registered by itself. The macro declares a global
// function, so it cannot stand in a namespace; registering twice does nothing.
static void registrarImagenes() {
    Q_INIT_RESOURCE(imagenes);
}

namespace bosquel {

namespace {

QByteArray leer(const QString& nombre) {
    static const bool registrado = (registrarImagenes(), true);
    Q_UNUSED(registrado);
    QFile fichero(QStringLiteral(":/imagenes/%1.svg").arg(nombre));
    if (!fichero.open(QIODevice::ReadOnly)) return {};
    return fichero.readAll();
}

float canal(float a, float b, float peso) {
    return b + (a - b) * peso;
}

/// `peso` of the first colour over the rest of the second. Opaque, as an attribute of an SVG wants it.
QColor mezcla(const QColor& a, const QColor& b, float peso) {
    return QColor::fromRgbF(canal(a.redF(), b.redF(), peso), canal(a.greenF(), b.greenF(), peso),
                            canal(a.blueF(), b.blueF(), peso));
}

class MotorIcono final : public QIconEngine {
  public:
    MotorIcono(QByteArray dibujo, QPalette paleta) : dibujo_(std::move(dibujo)), paleta_(std::move(paleta)) {}

    void paint(QPainter* pintor, const QRect& rect, QIcon::Mode modo, QIcon::State) override {
        QSvgRenderer svg(coloreado(modo));
        svg.setAspectRatioMode(Qt::KeepAspectRatio);
        svg.render(pintor, rect);
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

    QIconEngine* clone() const override { return new MotorIcono(*this); }

  private:
    QByteArray coloreado(QIcon::Mode modo) const {
        const auto grupo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QColor trazo = opaco(paleta_, grupo, QPalette::WindowText);
        QColor acento = opaco(paleta_, grupo, QPalette::Highlight);
        // Many desktops keep the highlight vivid when disabled: most of the accent is taken off.
        if (modo == QIcon::Disabled) acento = mezcla(acento, trazo, 0.3F);
        // On a selected row the highlight is the ground, where an accent of that colour would not be seen.
        if (modo == QIcon::Selected) trazo = acento = opaco(paleta_, grupo, QPalette::HighlightedText);
        QByteArray svg = dibujo_;
        svg.replace("#2a6fdb", acento.name().toLatin1());
        svg.replace("#202020", trazo.name().toLatin1());
        return svg;
    }

    QByteArray dibujo_;
    QPalette paleta_;
};

}  // namespace

QColor opaco(const QPalette& paleta, QPalette::ColorGroup grupo, QPalette::ColorRole rol) {
    const QColor color = paleta.color(grupo, rol);
    return mezcla(color, paleta.color(grupo, QPalette::Window), color.alphaF());
}

QIcon icono(const QString& nombre, const QPalette& paleta) {
    const QByteArray dibujo = leer(nombre);
    return dibujo.isEmpty() ? QIcon() : QIcon(new MotorIcono(dibujo, paleta));
}

QCursor cursor(Cursor rol, qreal escala) {
    struct Dibujo {
        QString nombre;
        QPoint punta;
    };
    const auto dibujo = [rol]() -> Dibujo {
        switch (rol) {
            case Cursor::Cruz: return {QStringLiteral("cursor_cruz"), {16, 16}};
            case Cursor::Palma: return {QStringLiteral("cursor_palma"), {16, 16}};
            case Cursor::IcoSeleccion: return {QStringLiteral("cursor_seleccion"), {3, 3}};
            case Cursor::IcoPared: return {QStringLiteral("cursor_pared"), {12, 12}};
            case Cursor::Flecha: break;
        }
        return {};
    }();
    if (dibujo.nombre.isEmpty()) return {Qt::ArrowCursor};

    constexpr int lado = 32;
    const int pixeles = qRound(lado * escala);
    QPixmap lienzo(pixeles, pixeles);
    lienzo.fill(Qt::transparent);
    QPainter pintor(&lienzo);
    // The drawings aim at the middle of a pixel of ratio one. At a higher ratio the pixel under the hot spot
    // is smaller and its middle nearer.
    const qreal ajuste = (1.0 - escala) / 2.0;
    QSvgRenderer svg(leer(dibujo.nombre));
    svg.render(&pintor, QRectF(ajuste, ajuste, pixeles, pixeles));
    pintor.end();
    // X11 takes the hot spot as pixels of the image, whatever its ratio: there both are given in pixels.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return QCursor(lienzo, qRound(dibujo.punta.x() * escala), qRound(dibujo.punta.y() * escala));
    lienzo.setDevicePixelRatio(escala);
    return QCursor(lienzo, dibujo.punta.x(), dibujo.punta.y());
}

}  // namespace bosquel
