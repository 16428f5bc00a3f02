#include "walls/grupos.h"

#include "model/numeros.h"
#include "walls/pared.h"

#include <algorithm>
#include <utility>

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

    Abertura* heredera =
        coleccion.primero([pared](const Abertura& otra) { return otra.NumeroPared == pared; });
    if (heredera) {
        heredera->GrupoInicialPared = 0;
    } else if (Pared* libre = dibujo.Pared.en(pared)) {
        libre->NumeroGrupo = 0;
    }
}

/// The number that both walls take; a new one if neither has any.
std::int16_t grupoComun(Dibujo& dibujo, std::int16_t uno, std::int16_t dos) {
    if (uno != 0 && dos != 0) return std::min(uno, dos);
    if (uno == 0 && dos == 0) {
        avanzar(dibujo.TotalGrupos);
        return dibujo.TotalGrupos;
    }
    return uno != 0 ? uno : dos;
}

}  // namespace

void AgruparParedes(Dibujo& dibujo) {
    Pared* uno = dibujo.Pared.en(dibujo.ParedUno);
    Pared* dos = dibujo.Pared.en(dibujo.ParedDos);
    if (!uno || !dos) return;
    const std::int16_t comun = grupoComun(dibujo, uno->NumeroGrupo, dos->NumeroGrupo);
    for (Pared* elegida : {uno, dos}) {
        const std::int16_t anterior = std::exchange(elegida->NumeroGrupo, comun);
        if (anterior == 0) continue;
        dibujo.Pared.recorrer([&](int, Pared& pared) {
            if (pared.NumeroGrupo == anterior) pared.NumeroGrupo = comun;
        });
    }
}

void Desagrupar(Dibujo& dibujo, std::int16_t grupo) {
    dibujo.Pared.recorrer([&](int i, Pared& pared) {
        if (pared.NumeroGrupo != grupo) return;
        pared.Visible1 = true;
        pared.Visible2 = true;
        RedibujaPared(dibujo, i, false);
        pared.NumeroGrupo = 0;
        EliminaAberturasPared(dibujo, i);
    });
}

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
