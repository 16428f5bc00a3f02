#include "drawing/vista.h"

#include "drawing/regla.h"
#include "model/numeros.h"

#include <cmath>

namespace bosquel {

namespace {

void actualizarBarra(Barra& barra, float& lugar, double hoja, double visor) {
    const double holgura = hoja - visor;
    barra.activa = hoja > visor && holgura >= std::abs(lugar);
    if (barra.activa)
        asignar(barra.valor, std::abs(lugar) * 100.0 / holgura);
    else
        lugar = 0;
}

void mover(float& lugar, double hoja, double visor, int valor) {
    asignar(lugar, -((hoja - visor) * valor / 100));
}

}  // namespace

void ActualizarBarras(Sesion& sesion) {
    HojaDibujo& hoja = sesion.dibujo.Hoja;
    actualizarBarra(sesion.HScroll1, hoja.Left, hoja.Width, sesion.visorAncho);
    actualizarBarra(sesion.VScroll1, hoja.Top, hoja.Height, sesion.visorAlto);
    sesion.vistaSucia = true;
}

void CambiarHScroll1(Sesion& sesion, int valor) {
    sesion.HScroll1.valor = valor;
    mover(sesion.dibujo.Hoja.Left, sesion.dibujo.Hoja.Width, sesion.visorAncho, valor);
    sesion.vistaSucia = true;
}

void CambiarVScroll1(Sesion& sesion, int valor) {
    sesion.VScroll1.valor = valor;
    mover(sesion.dibujo.Hoja.Top, sesion.dibujo.Hoja.Height, sesion.visorAlto, valor);
    sesion.vistaSucia = true;
}

void Redimensionar(Sesion& sesion, double ancho, double alto) {
    sesion.visorAncho = ancho - margenAncho;
    sesion.visorAlto = alto - margenAlto;
    ActualizarBarras(sesion);
    acoplarRegla(sesion);
    sesion.regla.Visible = true;
}

void MedirHoja(Sesion& sesion) {
    Dibujo& dibujo = sesion.dibujo;
    asignar(dibujo.Hoja.Width, dibujo.AreaWidth * dibujo.FactorZoomActual);
    asignar(dibujo.Hoja.Height, dibujo.AreaHight * dibujo.FactorZoomActual);
    ActualizarBarras(sesion);
}

Esquina esquinaALaVista(const Sesion& sesion) {
    const HojaDibujo& hoja = sesion.dibujo.Hoja;
    Esquina esquina;
    const auto recorrido = [](const Barra& barra) { return barra.activa ? barra.valor : 0; };
    asignar(esquina.Left, (hoja.Width - sesion.visorAncho) * recorrido(sesion.HScroll1) / 100);
    asignar(esquina.Top, (hoja.Height - sesion.visorAlto) * recorrido(sesion.VScroll1) / 100);
    return esquina;
}

void DibujarCuadricula(Sesion& sesion) {
    BorrarCuadricula(sesion);
    // The user's hand waits: a command that began in the midst of opening a file would mix two drawings.
    cederEventos(sesion, Espera::sinEntrada);
    const Dibujo& dibujo = sesion.dibujo;
    asignar(sesion.cuadricula.paso, dibujo.Cuadricula * dibujo.FactorZoomActual);
    sesion.cuadricula.ancho = dibujo.Hoja.Width;
    sesion.cuadricula.alto = dibujo.Hoja.Height;
    sesion.dibujo.sucia.anadirTodo();
}

void BorrarCuadricula(Sesion& sesion) {
    sesion.cuadricula = {};
    sesion.dibujo.sucia.anadirTodo();
}

float ajustarACuadricula(const Dibujo& dibujo, float valor) {
    const double paso = dibujo.FactorZoomActual * dibujo.Cuadricula;
    asignar(valor, truncar(valor / paso) * paso);
    return valor;
}

}  // namespace bosquel
