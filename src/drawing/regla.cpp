#include "drawing/regla.h"

#include "drawing/arrastre.h"
#include "model/numeros.h"

namespace bosquel {

namespace {

/// How much of the viewport's width a lying ruler takes.
constexpr double anchoTumbada = 0.6;

float lugarAcoplado(const Sesion& sesion) {
    return simple(sesion.visorAncho - Regla::grosor);
}

void tumbar(Sesion& sesion) {
    Regla& regla = sesion.regla;
    regla.orientacion = Regla::Orientacion::HID;
    asignar(regla.Width, sesion.visorAncho * anchoTumbada);
    regla.Height = Regla::grosor;
    asignar(regla.Left, (sesion.visorAncho - regla.Width) / 2);
    asignar(regla.Top, (sesion.visorAlto - regla.Height) / 2);
}

}  // namespace

void acoplarRegla(Sesion& sesion) {
    Regla& regla = sesion.regla;
    regla.orientacion = Regla::Orientacion::VAB;
    regla.Width = Regla::grosor;
    asignar(regla.Height, sesion.visorAlto);
    regla.Left = lugarAcoplado(sesion);
    regla.Top = 0;
    sesion.vistaSucia = true;
}

void alternarRegla(Sesion& sesion) {
    Regla& regla = sesion.regla;
    const bool acoplada =
        regla.orientacion == Regla::Orientacion::VAB && regla.Left == lugarAcoplado(sesion) && regla.Top == 0;
    if (acoplada)
        tumbar(sesion);
    else
        acoplarRegla(sesion);
    regla.Visible = true;
    sesion.vistaSucia = true;
}

void ocultarRegla(Sesion& sesion) {
    sesion.regla.Visible = false;
    sesion.vistaSucia = true;
}

void pulsarRegla(Sesion& sesion, float X, float Y) {
    agarrar(sesion.dibujo.arrastre, X, Y);
}

void moverRegla(Sesion& sesion, bool boton1, float X, float Y) {
    if (!boton1) return;
    Movimiento(sesion.dibujo.arrastre, sesion.regla.Left, sesion.regla.Top, X, Y);
    sesion.vistaSucia = true;
}

void soltarRegla(Sesion& sesion) {
    sesion.dibujo.arrastre.ArrastrePrimero = true;
    sesion.dibujo.arrastre.ArrastreAlterna = true;
}

}  // namespace bosquel
