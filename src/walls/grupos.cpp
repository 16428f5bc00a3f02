#include "walls/grupos.h"

#include "walls/pared.h"

#include <algorithm>

namespace bosquel {

namespace {

template <class Abertura>
void eliminaAbertura(Dibujo& dibujo, Coleccion<Abertura>& coleccion, int indice) {
    const Abertura* abertura = indice > 0 ? coleccion.en(indice) : nullptr;
    if (!abertura) return;
    const auto grupo = abertura->GrupoInicialPared;
    const auto pared = abertura->NumeroPared;
    coleccion.quitar(indice);
    dibujo.sucia.anadirTodo();
    if (grupo != 0) return;

    Abertura* heredera = nullptr;
    coleccion.recorrer([&](int, Abertura& otra) {
        if (!heredera && otra.NumeroPared == pared) heredera = &otra;
    });
    if (heredera) {
        heredera->GrupoInicialPared = 0;
    } else if (Pared* libre = dibujo.Pared.en(pared)) {
        libre->NumeroGrupo = 0;
    }
}

}  // namespace

void EliminaVentana(Dibujo& dibujo, int indice) {
    eliminaAbertura(dibujo, dibujo.Ventana, indice);
}
void EliminaPuerta(Dibujo& dibujo, int indice) {
    eliminaAbertura(dibujo, dibujo.Puerta, indice);
}

void EliminaAberturasPared(Dibujo& dibujo, int pared) {
    const int ultima = std::max(dibujo.Ventana.ultimo(), dibujo.Puerta.ultimo());
    for (int k = 1; k <= ultima; ++k) {
        if (const Ventana* ventana = dibujo.Ventana.en(k); ventana && ventana->NumeroPared == pared)
            EliminaVentana(dibujo, k);
        if (const Puerta* puerta = dibujo.Puerta.en(k); puerta && puerta->NumeroPared == pared)
            EliminaPuerta(dibujo, k);
    }
}

void EliminaPared(Dibujo& dibujo, int indice) {
    const Pared* pared = indice > 0 ? dibujo.Pared.en(indice) : nullptr;
    if (!pared) return;
    EliminaAberturasPared(dibujo, indice);
    ensuciar(dibujo, *pared);
    dibujo.Pared.quitar(indice);
}

}  // namespace bosquel
