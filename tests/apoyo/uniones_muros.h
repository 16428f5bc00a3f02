#pragma once

#include "model/dibujo.h"
#include "model/numeros.h"
#include "walls/pared.h"

#include <random>
#include <string>
#include <vector>

namespace bosquel::apoyo {

/// A wall as it is laid: where it starts (sheet units), degrees, millimetres.
struct Trazo {
    float x = 0, y = 0;
    int angulo = 0;
    double longitud = 4000;
    double ancho = 200;
    std::string tipo = "Muro";
};

/// Lays a wall past the dialog. Gives its index.
inline int traza(Dibujo& dibujo, const Trazo& trazo) {
    const int indice = dibujo.Pared.contador;
    Pared& pared = dibujo.Pared.crear(indice);
    avanzar(dibujo.Pared.contador);
    pared.Tipo = trazo.tipo;
    pared.AnchoMuro = trazo.ancho;
    pared.AnchoTabique = trazo.ancho;
    pared.InicialX = trazo.x;
    pared.InicialY = trazo.y;
    pared.Angulo = static_cast<std::int16_t>(trazo.angulo);
    pared.Longitud = trazo.longitud;
    pared.Estado = estadoEdicion;
    DibujaPared(dibujo, indice, false);
    return indice;
}

/// A drawing of these walls, 1, 2, 3 and so on, at one sheet unit to the millimetre; the first two are
/// chosen.
inline Dibujo planoDe(const std::vector<Trazo>& trazos) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    for (const Trazo& trazo : trazos)
        traza(dibujo, trazo);
    dibujo.ParedUno = 1;
    dibujo.ParedDos = 2;
    return dibujo;
}

/// Random walls around one another, on a lattice so that ties happen.
class Azar {
  public:
    explicit Azar(unsigned semilla) : motor_(semilla) {}

    int entre(int desde, int hasta) { return std::uniform_int_distribution<int>(desde, hasta)(motor_); }
    Trazo trazo(int angulo) {
        return {static_cast<float>(5000 + 100 * entre(-30, 30)),
                static_cast<float>(5000 + 100 * entre(-30, 30)), angulo, 100.0 * entre(3, 40),
                50.0 * entre(1, 6)};
    }

  private:
    std::mt19937 motor_;
};

}  // namespace bosquel::apoyo
