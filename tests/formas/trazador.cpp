#include "formas/trazador.h"

#include "output/escala.h"
#include "ui/color_qt.h"
#include "ui/letra.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace bosquel::apoyo {

namespace {

double redondeado(double twips) {
    return std::round(twips / twipsPorPixel);
}

int entero(double pixeles) {
    return static_cast<int>(std::lround(pixeles));
}

QRgb opaco(Color color) {
    return colorQt(color).rgb();
}

/// The pixels whose middle is near the point.
std::vector<Trazador::Pixel> cercanos(double x, double y) {
    std::vector<Trazador::Pixel> hallados;
    for (int fila = entero(y) - 1; fila <= entero(y) + 1; ++fila)
        for (int columna = entero(x) - 1; columna <= entero(x) + 1; ++columna)
            if (std::hypot(columna - x, fila - y) <= Trazador::cerca) hallados.emplace_back(columna, fila);
    return hallados;
}

std::string descrito(const Trazador::Pixel& pixel, QRgb color) {
    return std::to_string(pixel.first) + " " + std::to_string(pixel.second) + " " +
           QColor(color).name().toStdString();
}

}  // namespace

/// The stroke under way may colour the pixel.
void Trazador::tocar(const Pixel& pixel, QRgb color) {
    Celda& celda = celdas_[pixel];
    if (std::find(celda.posibles.begin(), celda.posibles.end(), color) == celda.posibles.end())
        celda.posibles.push_back(color);
    celda.ultimo = trazo_;
}

/// The stroke under way surely colours it.
void Trazador::cubrir(const Pixel& pixel, QRgb color) {
    celdas_[pixel] = {{color}, trazo_};
}

void Trazador::paso(Color color, std::vector<Pixel> pixeles) {
    for (const Pixel& pixel : pixeles)
        tocar(pixel, opaco(color));
    pasos_.push_back({trazo_, opaco(color), std::move(pixeles)});
}

void Trazador::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    ++trazo_;
    const double x = redondeado(x1);
    const double y = redondeado(y1);
    const double dx = redondeado(x2) - x;
    const double dy = redondeado(y2) - y;
    const double largo = std::max({std::abs(dx), std::abs(dy), 1.0});
    for (double i = 0; i <= largo; ++i) {
        const double enX = x + dx * i / largo;
        const double enY = y + dy * i / largo;
        paso(color, {Pixel(std::floor(enX), std::floor(enY)), Pixel(std::ceil(enX), std::ceil(enY))});
    }
}

void Trazador::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    ++trazo_;
    const auto [izquierda, derecha] = std::minmax({entero(redondeado(x1)), entero(redondeado(x2))});
    const auto [arriba, abajo] = std::minmax({entero(redondeado(y1)), entero(redondeado(y2))});
    for (int y = arriba; y <= abajo; ++y)
        for (int x = izquierda; x <= derecha; ++x) {
            const bool borde = x == izquierda || x == derecha || y == arriba || y == abajo;
            if (borde)
                cubrir({x, y}, opaco(color));
            else if (relleno_ == Relleno::solido)
                cubrir({x, y}, opaco(colorRelleno_));
        }
}

void Trazador::trazarCurva(const Curva& curva, Color color) {
    ++trazo_;
    if (!curva.arco && relleno_ == Relleno::solido) rellenarElipse(curva);
    constexpr double vuelta = 2 * std::numbers::pi;
    constexpr int porPixel = 4;
    const Arco arco = curva.arco.value_or(Arco{});
    double abertura = std::fmod(arco.fin - arco.inicio, vuelta);
    if (abertura <= 0) abertura += vuelta;
    const int pasos = 1 + static_cast<int>(abertura * curva.radio / twipsPorPixel * porPixel);
    for (int i = 0; i <= pasos; ++i) {
        const double angulo = arco.inicio + abertura * i / pasos;
        paso(color, cercanos((curva.x + curva.ejeX() * std::cos(angulo)) / twipsPorPixel,
                             (curva.y - curva.ejeY() * std::sin(angulo)) / twipsPorPixel));
    }
}

/// Near the outline, where the fill ends with it, the pixels may have kept what they had.
void Trazador::rellenarElipse(const Curva& curva) {
    const double x = curva.x / twipsPorPixel;
    const double y = curva.y / twipsPorPixel;
    const double ejeX = curva.ejeX() / twipsPorPixel;
    const double ejeY = curva.ejeY() / twipsPorPixel;
    const auto dentro = [&](const Pixel& pixel, double margen) {
        return ejeX + margen > 0 && ejeY + margen > 0 &&
               std::hypot((pixel.first - x) / (ejeX + margen), (pixel.second - y) / (ejeY + margen)) < 1;
    };
    for (int fila = entero(y - ejeY); fila <= entero(y + ejeY); ++fila)
        for (int columna = entero(x - ejeX); columna <= entero(x + ejeX); ++columna) {
            const Pixel pixel(columna, fila);
            if (dentro(pixel, -cerca))
                cubrir(pixel, opaco(colorRelleno_));
            else if (dentro(pixel, 0))
                tocar(pixel, opaco(colorRelleno_));
        }
}

void Trazador::Print(std::string_view texto) {
    ++trazo_;
    const QFontMetricsF letra(sinSuavizar(fuenteTexto(puntos_, 1 / twipsPorPixel)));
    const QString linea = QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
    const QRectF caja(QPointF(redondeado(texto_.x()), redondeado(texto_.y())),
                      QSizeF(letra.horizontalAdvance(linea), letra.height()));
    const QRect entera = caja.toAlignedRect();
    std::vector<Pixel> pixeles;
    for (int y = entera.top(); y <= entera.bottom(); ++y)
        for (int x = entera.left(); x <= entera.right(); ++x)
            pixeles.emplace_back(x, y);
    paso(colorTexto_, std::move(pixeles));
}

bool Trazador::seVe(const Paso& paso, const QImage& imagen) const {
    return std::any_of(paso.pixeles.begin(), paso.pixeles.end(), [&](const Pixel& pixel) {
        return !imagen.valid(pixel.first, pixel.second) ||
               imagen.pixel(pixel.first, pixel.second) == paso.color || celdas_.at(pixel).ultimo > paso.trazo;
    });
}

std::string Trazador::falta(const QImage& imagen) const {
    for (int y = 0; y < imagen.height(); ++y) {
        const auto* fila = reinterpret_cast<const QRgb*>(imagen.constScanLine(y));
        for (int x = 0; x < imagen.width(); ++x)
            if (fila[x] != blancoOpaco && !celdas_.contains({x, y}))
                return "sobra " + descrito({x, y}, fila[x]);
    }
    for (const auto& [pixel, celda] : celdas_) {
        if (!imagen.valid(pixel.first, pixel.second)) continue;
        const QRgb color = imagen.pixel(pixel.first, pixel.second);
        if (std::find(celda.posibles.begin(), celda.posibles.end(), color) == celda.posibles.end())
            return "no puede ser " + descrito(pixel, color);
    }
    for (const Paso& paso : pasos_)
        if (!seVe(paso, imagen)) return "falta " + descrito(paso.pixeles.front(), paso.color);
    return {};
}

}  // namespace bosquel::apoyo
