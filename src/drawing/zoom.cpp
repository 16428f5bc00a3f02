#include "drawing/foco.h"
#include "drawing/marca.h"
#include "drawing/seleccion.h"
#include "drawing/texto_libre.h"
#include "drawing/vista.h"
#include "model/numeros.h"
#include "openings/puerta.h"
#include "openings/ventana.h"
#include "walls/pared.h"

#include <cmath>

namespace bosquel {

namespace {

/// The factor that follows the present one in the cycle; a factor that is none of the three steps stays.
void darPaso(Dibujo& dibujo) {
    const double anterior = dibujo.FactorZoomActual;
    if (anterior == dibujo.ZoomPasoBajo)
        dibujo.FactorZoomActual = dibujo.ZoomPasoMedio;
    else if (anterior == dibujo.ZoomPasoMedio)
        dibujo.FactorZoomActual = dibujo.ZoomPasoAlto;
    else if (anterior == dibujo.ZoomPasoAlto)
        dibujo.FactorZoomActual = dibujo.ZoomPasoBajo;
    else
        return;
    dibujo.RelacionZoom = dibujo.FactorZoomActual / anterior;
}

void escalar(float& valor, double relacion) {
    asignar(valor, valor * relacion);
}

void escalarLugar(auto& elemento, double relacion) {
    escalar(elemento.Left, relacion);
    escalar(elemento.Top, relacion);
}

// What the zoom does to one element of each family of kinds.

void ampliar(Dibujo& dibujo, int, Elemento& elemento) {
    elemento.FactorZOOM = dibujo.FactorZoomActual;
    escalarLugar(elemento, dibujo.RelacionZoom);
}

void ampliar(Dibujo& dibujo, int indice, Pared& pared) {
    for (const std::size_t larga : {0U, 2U}) {
        Segmento& linea = pared.lineas[larga];
        for (float* coordenada : {&linea.X1, &linea.Y1, &linea.X2, &linea.Y2})
            escalar(*coordenada, dibujo.RelacionZoom);
    }
    if (!pared.lineas[0].Visible) return;
    ReconstruyePared(dibujo, indice);
    GuardaLineasPared(dibujo, indice);
    DeseleccionaPared(dibujo, indice);
}

void ampliar(Dibujo& dibujo, int indice, Ventana&) {
    RedibujaVentana(dibujo, indice);
    DeseleccionaVentana(dibujo, indice);
}

void ampliar(Dibujo& dibujo, int indice, Puerta&) {
    RedibujaPuerta(dibujo, indice);
    DeseleccionaPuerta(dibujo, indice);
}

void ampliar(Sesion& sesion, TextoLibre& texto) {
    escalarLugar(texto, sesion.dibujo.RelacionZoom);
    asignar(texto.FontSize, puntosDeTexto * sesion.dibujo.FactorZoomActual);
    ajustarATexto(sesion, texto);
}

void ampliarTodo(Sesion& sesion) {
    Dibujo& dibujo = sesion.dibujo;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](auto& coleccion) {
            const int hasta = coleccion.contador - (fila.zoomConContador ? 0 : 1);
            coleccion.recorrer(fila.desdeZoom, hasta, [&](int indice, auto& elemento) {
                if constexpr (requires { elemento.Text; })
                    ampliar(sesion, elemento);
                else
                    ampliar(dibujo, indice, elemento);
            });
        });
}

std::optional<Referencia> actual(const Dibujo& dibujo) {
    if (!dibujo.ElementoActual) return std::nullopt;
    return Referencia{*dibujo.ElementoActual, dibujo.IndiceActual};
}

/// Where the sheet's edge goes so that the point in the middle of the view stays there.
void conservarCentro(float& lugar, double visor, double relacion) {
    const double centro = std::abs(lugar) + visor / 2;
    const double nuevo = lugar - (centro * relacion - centro);
    asignar(lugar, nuevo > 0 ? 0 : nuevo);
}

}  // namespace

void EjecutarZOOM(Sesion& sesion) {
    if (sesion.EjecutandoZoom) return;
    const Marca ampliando(sesion.EjecutandoZoom);
    Dibujo& dibujo = sesion.dibujo;
    anunciarTodo(dibujo);
    darPaso(dibujo);
    escalar(dibujo.Hoja.Width, dibujo.RelacionZoom);
    escalar(dibujo.Hoja.Height, dibujo.RelacionZoom);
    sesion.regla.FactorZoom = dibujo.FactorZoomActual;
    const auto elegido = actual(dibujo);
    ampliarTodo(sesion);
    if (elegido && actual(dibujo) != elegido) {
        apagar(dibujo, *elegido);
        quitarFoco(sesion);
    }
    conservarCentro(dibujo.Hoja.Left, sesion.visorAncho, dibujo.RelacionZoom);
    conservarCentro(dibujo.Hoja.Top, sesion.visorAlto, dibujo.RelacionZoom);
    ActualizarBarras(sesion);
    if (dibujo.VerCuadricula) DibujarCuadricula(sesion);
    if (sesion.foco) enmarcar(sesion, *sesion.foco);
}

}  // namespace bosquel
