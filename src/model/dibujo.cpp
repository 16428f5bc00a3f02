#include "model/dibujo.h"

namespace bosquel {

void alFrente(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = ++dibujo.ordenFrente;
}

void alFondo(Dibujo& dibujo, Pinza& pinza) {
    pinza.orden = --dibujo.ordenFondo;
}

}  // namespace bosquel
