#include "drawing/pinza_abertura.h"

#include "drawing/aberturas.h"
#include "drawing/seleccion.h"
#include "model/numeros.h"
#include "openings/abertura.h"

namespace bosquel {

namespace {

template <class T>
Pinza& pinzaDe(T& abertura) {
    return abertura.*Rasgos<T>::pinza;
}

template <class T>
void pulsar(Sesion& sesion, int indice) {
    Dibujo& dibujo = sesion.dibujo;
    T* pulsada = abertura<T>(dibujo, indice);
    if (!pulsada) return;
    QuitarSeleccion(dibujo);
    dibujo.ElementoActual = Rasgos<T>::clase;
    asignar(dibujo.IndiceActual, indice);
    pintarPinza(dibujo, *pulsada, rojo);
    alFrente(dibujo, pinzaDe(*pulsada));
}

/// The pointer has come from another opening of the kind: that one's mark goes, unless it is selected.
template <class T>
void cruzar(Dibujo& dibujo, int indice) {
    std::int16_t& bajoPuntero = dibujo.*Rasgos<T>::bajoPuntero;
    if (bajoPuntero == indice) return;
    T* anterior = abertura<T>(dibujo, bajoPuntero);
    if (anterior && pinzaDe(*anterior).BackColor != rojo) deseleccionar<T>(dibujo, bajoPuntero);
    asignar(bajoPuntero, indice);
}

template <class T>
void senalar(Dibujo& dibujo, T& cruzada) {
    const Color color = pinzaDe(cruzada).BackColor;
    if (color != rojo && color != verdeAzulado) pintarPinza(dibujo, cruzada, verdeAzulado);
}

template <class T>
void mover(Sesion& sesion, int indice) {
    Dibujo& dibujo = sesion.dibujo;
    T* cruzada = abertura<T>(dibujo, indice);
    if (!cruzada || dibujo.ModoActual == Rasgos<T>::modo) return;
    cruzar<T>(dibujo, indice);
    senalar(dibujo, *cruzada);
    if (espera(dibujo.ModoActual)) return alFrente(dibujo, pinzaDe(*cruzada));
    sesion.plataforma.ponerCursor(Cursor::Flecha);
    ponerModo(sesion, Modo::Flecha);
}

}  // namespace

void pulsarPinzaAbertura(Sesion& sesion, Clase clase, int indice) {
    clase == Clase::Ventana ? pulsar<Ventana>(sesion, indice) : pulsar<Puerta>(sesion, indice);
}

void moverPinzaAbertura(Sesion& sesion, Clase clase, int indice) {
    clase == Clase::Ventana ? mover<Ventana>(sesion, indice) : mover<Puerta>(sesion, indice);
}

void dobleClicPinzaAbertura(Sesion& sesion, Clase clase, int indice) {
    if (sesion.dibujo.ModoActual != Modo::Flecha) return;
    clase == Clase::Ventana ? AbreVentanaProp(sesion, indice) : AbrePuertaProp(sesion, indice);
}

}  // namespace bosquel
