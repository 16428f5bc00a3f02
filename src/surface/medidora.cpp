#include "surface/medidora.h"

#include <array>
#include <cmath>
#include <numbers>

namespace bosquel {

namespace {

constexpr double vuelta = 2 * std::numbers::pi;

/// The ends of arcs come from a pi of 15 digits.
constexpr double holgura = 1e-9;

double enVuelta(double angulo) {
    const double resto = std::fmod(angulo, vuelta);
    return resto < 0 ? resto + vuelta : resto;
}

bool pasaPor(const Arco& arco, double angulo) {
    const double abertura = enVuelta(arco.fin - arco.inicio);
    return arco.inicio == arco.fin || enVuelta(angulo - arco.inicio + holgura) <= abertura + 2 * holgura;
}

}  // namespace

void Medidora::abarcar(double x, double y) {
    const Recuadro punto{x, y, 0, 0};
    extension_ = extension_ ? unir(*extension_, punto) : punto;
}

void Medidora::trazarLinea(double x1, double y1, double x2, double y2, Color) {
    abarcar(x1, y1);
    abarcar(x2, y2);
}

void Medidora::trazarCaja(double x1, double y1, double x2, double y2, Color color) {
    trazarLinea(x1, y1, x2, y2, color);
}

void Medidora::trazarCurva(const Curva& curva, Color) {
    const auto punto = [&](double coseno, double seno) {
        abarcar(curva.x + curva.ejeX() * coseno, curva.y - curva.ejeY() * seno);
    };
    const Arco arco = curva.arco.value_or(Arco{});
    static constexpr std::array<std::array<double, 2>, 4> extremos{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
    for (int i = 0; const auto& [coseno, seno] : extremos)
        if (pasaPor(arco, vuelta / 4 * i++)) punto(coseno, seno);
    if (!curva.arco) return;
    punto(std::cos(arco.inicio), std::sin(arco.inicio));
    punto(std::cos(arco.fin), std::sin(arco.fin));
}

void Medidora::Print(std::string_view texto) {
    const double alto = puntos_ * unidadesPorPunto;
    abarcar(x_, y_);
    abarcar(x_ + alto * static_cast<double>(texto.size()), y_ + alto * 1.5);
}

}  // namespace bosquel
