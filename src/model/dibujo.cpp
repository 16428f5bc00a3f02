#include "model/dibujo.h"

namespace bosquel {

void anunciar(Dibujo& dibujo, Clase clase, int indice) {
    dibujo.cambiados.push_back({clase, static_cast<std::int16_t>(indice)});
}

void anunciarTodo(Dibujo& dibujo) {
    dibujo.sucia.anadirTodo();
}

void alFrente(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = ++dibujo.ordenFrente;
}

void alFondo(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = --dibujo.ordenFondo;
}

}  // namespace bosquel
