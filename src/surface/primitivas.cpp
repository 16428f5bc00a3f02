#include "surface/primitivas.h"

#include "model/numeros.h"
#include "model/polar.h"

#include <cmath>
#include <limits>

namespace bosquel {

namespace {

/// How far the far sides of a `TrazarRecuadro` overrun.
constexpr double rebase = 15;

struct Punto {
    float x, y;
};

void rayar(SuperficieSalida& superficie, Punto desde, Punto hasta, Color color) {
    if (std::isfinite(desde.x) && std::isfinite(desde.y) && std::isfinite(hasta.x) && std::isfinite(hasta.y))
        superficie.Line(desde.x, desde.y, hasta.x, hasta.y, color);
}

void trazarArco(SuperficieSalida& superficie, Color color, PuntoSalida centro, double radio, double medio,
                double abertura) {
    const Arco arco{AnguloRadianes(medio - abertura / 2), AnguloRadianes(medio + abertura / 2)};
    superficie.Circle({centro.x, centro.y, radio, arco}, color);
}

}  // namespace

double NormalizarAngulo(double angulo) {
    if (std::abs(angulo) >= 360) angulo = std::fmod(redondear(angulo), 360);
    return angulo < 0 ? angulo + 360 : angulo;
}

double AnguloRadianes(double angulo) {
    return radianes(NormalizarAngulo(angulo));
}

PuntoSalida polar(PuntoSalida desde, double angulo, double distancia) {
    const auto grados = entero16(angulo);
    if (!grados) return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
    return {PolarX(desde.x, *grados, distancia), PolarY(desde.y, *grados, distancia)};
}

void TrazarRecta(SuperficieSalida& superficie, Color color, PuntoSalida inicio, PuntoSalida fin,
                 double angulo, double longitud) {
    const PuntoSalida hasta = angulo == sinAngulo ? fin : polar(inicio, angulo, longitud);
    superficie.Line(inicio.x, inicio.y, hasta.x, hasta.y, color);
}

void TrazarRecuadro(SuperficieSalida& superficie, Color color, PuntoSalida esquina, double longitud,
                    double ancho, double angulo) {
    const auto recta = [&](PuntoSalida desde, double direccion, double distancia) {
        TrazarRecta(superficie, color, desde, {}, direccion, distancia);
    };
    const double traves = angulo + 90;
    recta(esquina, angulo, longitud);
    recta(esquina, traves, -ancho);
    recta(polar(esquina, traves, -ancho), angulo, longitud + rebase);
    recta(polar(esquina, angulo, longitud), traves, -(ancho + rebase));
}

void TrazarElipse(SuperficieSalida& superficie, Color color, const Ovalo& ovalo) {
    const double a = ovalo.relativo + ovalo.base;
    const double alExtremo = 3 * ovalo.longitud / 10;
    const double alLado = ovalo.ancho / 2;
    const auto arco = [&](double hacia, double distancia, double radio, double medio, double abertura) {
        trazarArco(superficie, color, polar(ovalo.centro, hacia, distancia), radio, medio, abertura);
    };
    arco(a, alExtremo, ovalo.longitud / 5, a, ovalo.arcoCorto);
    arco(a + 180, alExtremo, ovalo.longitud / 5, a + 180, ovalo.arcoCorto);
    arco(a - 90, alLado, ovalo.ancho, a + 90, ovalo.arcoLargo);
    arco(a + 90, alLado, ovalo.ancho, a + 270, ovalo.arcoLargo);
}

void TrazarSegmento(SuperficieSalida& superficie, const Segmento& segmento, Color color, double EscalaSalida,
                    TipoDeTrazo trazo) {
    const Punto desde{simple(segmento.X1 * EscalaSalida), simple(segmento.Y1 * EscalaSalida)};
    const Punto hasta{simple(segmento.X2 * EscalaSalida), simple(segmento.Y2 * EscalaSalida)};
    if (trazo == TipoDeTrazo::continuo) return rayar(superficie, desde, hasta, color);
    const double dx = redondear((static_cast<double>(segmento.X2) - segmento.X1) / 7);
    const double dy = redondear((static_cast<double>(segmento.Y2) - segmento.Y1) / 7);
    const auto punto = [&](int n) { return Punto{simple(desde.x + n * dx), simple(desde.y + n * dy)}; };
    for (const int n : {0, 2, 4})
        rayar(superficie, punto(n), punto(n + 1), color);
    rayar(superficie, punto(6), hasta, color);
}

}  // namespace bosquel
