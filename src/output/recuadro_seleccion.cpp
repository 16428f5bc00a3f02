#include "output/recuadro_seleccion.h"

#include "model/numeros.h"
#include "output/escala.h"

#include <algorithm>

namespace bosquel {

namespace {

int entero(double valor) {
    return entero32(valor).value_or(0);
}

/// Where a side of the area begins, in pixels.
double inicio(double lugar, double hoja, double medida) {
    return lugar > 0 ? std::min(lugar, hoja / twipsPorPixel - medida) : 0;
}

}  // namespace

bool RecuadroSeleccion::contiene(double X, double Y) const {
    return X >= forma_.Left && X <= forma_.Left + Ancho_ && Y >= forma_.Top && Y <= forma_.Top + Alto_;
}

void RecuadroSeleccion::pulsar(double X, double Y) {
    X0_ = X;
    Y0_ = Y;
    if (contiene(X, Y)) {
        estado_ = EstadoRecuadro::Mover;
        PrimerMovimiento_ = true;
    } else {
        estado_ = EstadoRecuadro::Nuevo;
        forma_.Width = forma_.Height = 0;
    }
    Visible_ = true;
}

void RecuadroSeleccion::empezar() {
    forma_.Left = X0_;
    forma_.Top = Y0_;
    estado_ = EstadoRecuadro::Seguir;
}

bool RecuadroSeleccion::seguir(double X, double Y) {
    if (X <= X0_ || Y <= Y0_) return false;
    forma_.Width = X - X0_;
    forma_.Height = Y - Y0_;
    return true;
}

void RecuadroSeleccion::llevar(double X, double Y) {
    if (PrimerMovimiento_) {
        asignar(OffsetX_, X - forma_.Left);
        asignar(OffsetY_, Y - forma_.Top);
        PrimerMovimiento_ = false;
        return;
    }
    forma_.Left = X - OffsetX_;
    forma_.Top = Y - OffsetY_;
}

void RecuadroSeleccion::terminar() {
    estado_ = EstadoRecuadro::Terminado;
    X0_ = forma_.Left;
    Y0_ = forma_.Top;
    Ancho_ = forma_.Width;
    asignar(Alto_, forma_.Height);
}

void RecuadroSeleccion::abarcar(const Recuadro& hoja) {
    forma_ = {0, 0, hoja.Width, hoja.Height};
    Visible_ = true;
    terminar();
}

void RecuadroSeleccion::reiniciar(const Recuadro& hoja) {
    forma_.Left = hoja.Width + 1;
    Visible_ = false;
}

AreaSalida RecuadroSeleccion::area(const Recuadro& hoja) const {
    const double ancho = Ancho_ / twipsPorPixel;
    const double alto = Alto_ / twipsPorPixel;
    return {entero(truncar(inicio(X0_ / twipsPorPixel, hoja.Width, ancho))),
            entero(inicio(Y0_ / twipsPorPixel, hoja.Height, alto)),
            std::min(entero(truncar(ancho)), ladoMaximo), std::min(entero(truncar(alto)), ladoMaximo)};
}

}  // namespace bosquel
