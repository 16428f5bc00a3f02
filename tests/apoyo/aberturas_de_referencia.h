#pragma once

#include "model/elementos.h"

namespace bosquel::apoyo {

// The lines and the grip of an opening written out one after the other, with nothing of the program's own but
// the records: what the tables of the program are held against. The wall's lines are those of `pared`; a
// side or a hinge that no rule knows is none of its business.

struct VentanaDeReferencia {
    std::array<Segmento, 8> lineas;
    float Left = 0, Top = 0, Lado = 0;
};

struct PuertaDeReferencia {
    std::array<Segmento, 12> lineas;
    float Left = 0, Top = 0, Lado = 0;
};

VentanaDeReferencia referencia(const Ventana& ventana, const Pared& pared, double factor);
PuertaDeReferencia referencia(const Puerta& puerta, const Pared& pared, double factor);

}  // namespace bosquel::apoyo
