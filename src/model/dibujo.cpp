#include "model/dibujo.h"

namespace bosquel {

void alFrente(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = ++dibujo.ordenFrente;
    dibujo.sucia.anadir(pinza.recuadro());
}

void alFondo(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = --dibujo.ordenFondo;
    dibujo.sucia.anadir(pinza.recuadro());
}

}  // namespace bosquel
