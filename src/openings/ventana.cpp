#include "openings/ventana.h"

#include "model/numeros.h"
#include "model/polar.h"
#include "openings/abertura.h"

namespace bosquel {

namespace {

/// Outside the wall, two of its thicknesses from line 1, on the side of the frame.
void ponerPinza(Ventana& ventana, const Pared& pared, double factor) {
    const Segmento& jamba = ventana.lineas[0];
    const Segmento& centro = ventana.lineas[4];
    const bool abajo = ladoEfectivo(ventana) == "Abajo";
    const double medio = ladoPinzaAbertura / 2 * factor;
    const double espesores = abajo ? 2 : -2;
    Pinza& pinza = ventana.VentanaPick;
    asignar(pinza.Lado, ladoPinzaAbertura * factor);
    asignar(pinza.Left, centro.X1 - medio);
    asignar(pinza.Top, centro.Y1 - medio);
    asignar(pinza.Left, pinza.Left + espesores * (static_cast<double>(jamba.X2) - jamba.X1));
    asignar(pinza.Top, pinza.Top + espesores * (static_cast<double>(jamba.Y2) - jamba.Y1));
    if (abajo) {
        const int ancho = ejesDe(ventana, pared, factor).grados(Rumbo::ancho);
        const double hueco = (ventana.AnchoMuro - ventana.AnchoTabique) * factor;
        asignar(pinza.Left, PolarX(pinza.Left, ancho, hueco));
        asignar(pinza.Top, PolarY(pinza.Top, ancho, hueco));
    }
    pinza.Visible = true;
}

}  // namespace

void TrazaLineasVentana(Ventana& ventana, const Pared& pared, double factor) {
    const double largo = ventana.Longitud;
    const double fondo = ventana.AnchoTabique;  // of the frame
    const double espesor = pared.esMuro() ? ventana.AnchoMuro : fondo;
    const double tabique = pared.AnchoTabique;
    const double resto = pared.AnchoMuro - tabique;  // of the wall beside the frame
    const double d = distanciaEnPared(ventana, pared, largo);
    const bool muro = ventana.Tipo == "Muro";
    const bool retirado = muro && ladoEfectivo(ventana) == "Abajo";
    const auto marco = [corrido = retirado ? resto : 0](double medida) {
        return alAncho(enPared(medida), corrido);
    };
    // clang-format off
    const std::array<Fila, 8> filas{{
        {enPared(d),                                   alAncho(propio, espesor)},
        {enPared(d + largo),                           alAncho(propio, espesor)},
        {marco(d + tabique),                           alAncho(propio, fondo)},
        {marco(d + largo / 2 - tabique),               alAncho(propio, fondo)},
        {marco(d + largo / 2),                         alAncho(propio, fondo)},
        {marco(d + largo / 2 + tabique),               alAncho(propio, fondo)},
        {marco(d + largo - tabique),                   alAncho(propio, fondo)},
        {alAncho(inicio(1), retirado ? resto : tabique), alLargo(propio, largo), muro},
    }};
    // clang-format on
    trazar(filas, 1, ejesDe(ventana, pared, factor), ventana.lineas);
}

void ColocaVentana(Dibujo& dibujo, int indice, bool seleccionada) {
    auto* ventana = abertura<Ventana>(dibujo, indice);
    if (!ventana) return;
    ensuciar(dibujo, *ventana);
    if (const Pared* pared = paredTrazada(dibujo, *ventana)) {
        TrazaLineasVentana(*ventana, *pared, dibujo.FactorZoomActual);
        ponerPinza(*ventana, *pared, dibujo.FactorZoomActual);
        alFondo(dibujo, ventana->VentanaPick);
    }
    if (seleccionada) seleccionar<Ventana>(dibujo, indice);
    asignar(dibujo.VentanaBajoPuntero, indice);
    ensuciar(dibujo, *ventana);
}

void RedibujaVentana(Dibujo& dibujo, int indice) {
    ColocaVentana(dibujo, indice, true);
}

void DeseleccionaVentana(Dibujo& dibujo, int indice) {
    deseleccionar<Ventana>(dibujo, indice);
}

}  // namespace bosquel
