#include "surface/escritor_svg.h"

#include "surface/textos_superficie.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace bosquel {

namespace {

/// From the top of a line of text to the foot of its letters, as a share of the font's height.
constexpr double pieDeLetra = 0.93;

using Atributos = std::initializer_list<std::pair<std::string_view, double>>;

/// Hundredths of a unit are finer than any screen.
std::string numero(double valor) {
    return textoCorto(std::round(valor * 100) / 100);
}

std::string elemento(std::string_view nombre, Atributos atributos) {
    std::string texto = "<" + std::string(nombre);
    for (const auto& [clave, valor] : atributos)
        texto.append(" ").append(clave).append("=\"").append(numero(valor)).append("\"");
    return texto;
}

std::string protegido(std::string_view texto) {
    std::string limpio;
    for (const char letra : texto) {
        switch (letra) {
            case '<': limpio += "&lt;"; break;
            case '&': limpio += "&amp;"; break;
            default: limpio += letra;
        }
    }
    return limpio;
}

/// Both ends of the arc on the picture, and whether it is more than half a turn.
std::string camino(const Curva& curva, const Arco& arco) {
    constexpr double vuelta = 2 * std::numbers::pi;
    const double abertura = std::fmod(arco.fin - arco.inicio + 2 * vuelta, vuelta);
    const auto punto = [&](double angulo) {
        return numero(curva.x + curva.ejeX() * std::cos(angulo)) + " " +
               numero(curva.y - curva.ejeY() * std::sin(angulo));
    };
    return "<path d=\"M " + punto(arco.inicio) + " A " + numero(curva.ejeX()) + " " + numero(curva.ejeY()) +
           " 0 " + (abertura > vuelta / 2 ? "1" : "0") + " 0 " + punto(arco.fin) + "\"";
}

}  // namespace

EscritorSvg::EscritorSvg(const Recuadro& zona, double trazo, double ancho)
    : cabecera_(elemento("svg xmlns=\"http://www.w3.org/2000/svg\"",
                         {{"width", ancho}, {"height", ancho * zona.Height / zona.Width}}) +
                " viewBox=\"" + numero(zona.Left) + " " + numero(zona.Top) + " " + numero(zona.Width) + " " +
                numero(zona.Height) + "\" stroke-width=\"" + numero(trazo) +
                "\" stroke-linecap=\"round\" font-family=\"sans-serif\">\n") {}

void EscritorSvg::cerrar(std::string trazo, Color color, bool relleno) {
    cuerpo_ += std::move(trazo) + " stroke=\"#" + textoColor(color) + "\" fill=\"" +
               (relleno ? "#" + textoColor(colorRelleno_) : "none") + "\"/>\n";
}

void EscritorSvg::trazarLinea(double x1, double y1, double x2, double y2, Color color) {
    cerrar(elemento("line", {{"x1", x1}, {"y1", y1}, {"x2", x2}, {"y2", y2}}), color, false);
}

void EscritorSvg::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    const Atributos lugar{{"x", std::min(x1, x2)},
                          {"y", std::min(y1, y2)},
                          {"width", std::abs(x2 - x1)},
                          {"height", std::abs(y2 - y1)}};
    cerrar(elemento("rect", lugar), color, relleno_ == Relleno::solido);
}

void EscritorSvg::trazarCurva(const Curva& curva, Color color) {
    if (curva.arco && curva.arco->inicio != curva.arco->fin) {
        cerrar(camino(curva, *curva.arco), color, false);
        return;
    }
    const Atributos lugar{{"cx", curva.x}, {"cy", curva.y}, {"rx", curva.ejeX()}, {"ry", curva.ejeY()}};
    cerrar(elemento("ellipse", lugar), color, !curva.arco && relleno_ == Relleno::solido);
}

void EscritorSvg::Print(std::string_view texto) {
    const double alto = puntos_ * unidadesPorPunto;
    cuerpo_ += elemento("text", {{"x", x_}, {"y", y_ + alto * pieDeLetra}, {"font-size", alto}}) +
               " fill=\"#" + textoColor(colorTexto_) + "\">" + protegido(texto) + "</text>\n";
}

std::string EscritorSvg::documento() const {
    return cabecera_ + cuerpo_ + "</svg>\n";
}

}  // namespace bosquel
