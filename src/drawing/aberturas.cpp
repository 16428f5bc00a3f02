#include "drawing/aberturas.h"

#include "model/numeros.h"
#include "openings/abertura.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"

namespace bosquel {

namespace {

template <class T>
void crear(Sesion& sesion) {
    if (T* nueva = (sesion.dibujo.*Rasgos<T>::coleccion).crearSiguiente()) nueva->Estado = estadoNuevo;
    ponerModo(sesion, Rasgos<T>::modo);
    sesion.plataforma.ponerCursor(Cursor::IcoSeleccion);
}

void copiarDePared(Abertura& abertura, int indice, const Pared& pared) {
    abertura.AnchoMuro = pared.AnchoMuro;
    abertura.AnchoTabique = pared.AnchoTabique;
    abertura.Angulo = pared.Angulo;
    abertura.GrupoInicialPared = pared.NumeroGrupo;
    asignar(abertura.NumeroPared, indice);
}

template <class T, class Dialogo>
void abrir(Sesion& sesion, int indice) {
    if (!abertura<T>(sesion.dibujo, indice)) return;
    Dialogo dialogo(sesion.dibujo, indice);
    mostrar(sesion, dialogo);
}

/// The wall is closed unless it already was.
void agruparConAbertura(Dibujo& dibujo, Pared& pared) {
    if (pared.NumeroGrupo != 0) return;
    avanzar(dibujo.TotalGrupos);
    pared.NumeroGrupo = dibujo.TotalGrupos;
}

template <class T, class Dialogo>
void situar(Sesion& sesion, int pared) {
    Dibujo& dibujo = sesion.dibujo;
    const int indice = (dibujo.*Rasgos<T>::coleccion).contador - 1;
    T* nueva = abertura<T>(dibujo, indice);
    Pared* suya = dibujo.Pared.en(pared);
    if (!nueva || !suya) return;
    copiarDePared(*nueva, pared, *suya);
    if constexpr (requires { nueva->Tipo; }) nueva->Tipo = suya->Tipo;
    abrir<T, Dialogo>(sesion, indice);
    if (nueva->Estado != estadoNuevo) agruparConAbertura(dibujo, *suya);
}

}  // namespace

void crearAbertura(Sesion& sesion, Clase clase) {
    clase == Clase::Ventana ? crear<Ventana>(sesion) : crear<Puerta>(sesion);
}

void situarVentana(Sesion& sesion, int pared) {
    situar<Ventana, VentanaProp>(sesion, pared);
}
void situarPuerta(Sesion& sesion, int pared) {
    situar<Puerta, PuertaProp>(sesion, pared);
}

void AbreVentanaProp(Sesion& sesion, int indice) {
    abrir<Ventana, VentanaProp>(sesion, indice);
}
void AbrePuertaProp(Sesion& sesion, int indice) {
    abrir<Puerta, PuertaProp>(sesion, indice);
}

}  // namespace bosquel
