#include "drawing/arrastre.h"

#include "model/numeros.h"

namespace bosquel {

namespace {

/// One axis of the two anchors, so that x and y go through the same arithmetic.
struct Eje {
    std::int32_t& anclaQueToma;
    std::int32_t puntoDeMedida;
    std::int32_t agarre;
    std::int32_t& paso;
};

void dar(const Eje& eje, double muestra, float& lugar) {
    asignar(eje.paso, muestra - eje.puntoDeMedida);
    asignar(lugar, static_cast<double>(lugar) + eje.paso - eje.agarre);
    asignar(eje.anclaQueToma, muestra - eje.paso);
}

}  // namespace

void agarrar(Arrastre& arrastre, float X, float Y) {
    asignar(arrastre.AgarreX, X);
    asignar(arrastre.AgarreY, Y);
}

void Movimiento(Arrastre& a, float& left, float& top, float X, float Y) {
    const double x = redondear(X);
    const double y = redondear(Y);
    if (a.ArrastrePrimero) {
        asignar(a.ArrastreOrigenX, x);
        asignar(a.ArrastreOrigenY, y);
    }
    const bool abre = a.ArrastreAlterna && a.ArrastrePrimero;
    const bool tomaA = a.ArrastreAlterna;
    const auto medidaX = abre ? a.ArrastreOrigenX : tomaA ? a.ArrastreAnclaBX : a.ArrastreAnclaAX;
    const auto medidaY = abre ? a.ArrastreOrigenY : tomaA ? a.ArrastreAnclaBY : a.ArrastreAnclaAY;
    dar({tomaA ? a.ArrastreAnclaAX : a.ArrastreAnclaBX, medidaX, a.AgarreX, a.ArrastreDX}, x, left);
    dar({tomaA ? a.ArrastreAnclaAY : a.ArrastreAnclaBY, medidaY, a.AgarreY, a.ArrastreDY}, y, top);
    if (abre) a.ArrastrePrimero = false;
    a.ArrastreAlterna = !a.ArrastreAlterna;
}

}  // namespace bosquel
