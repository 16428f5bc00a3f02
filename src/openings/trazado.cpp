#include "openings/trazado.h"

#include "model/numeros.h"
#include "model/polar.h"

namespace bosquel {

namespace {

struct Punto {
    float x = 0, y = 0;
};

Punto origen(const Lugar& lugar, const Ejes& ejes, std::span<const Segmento> lineas, const Segmento& propia) {
    switch (lugar.origen) {
        case Lugar::Origen::pared: return {ejes.X, ejes.Y};
        case Lugar::Origen::inicio: return {lineas[lugar.linea - 1].X1, lineas[lugar.linea - 1].Y1};
        case Lugar::Origen::fin: return {lineas[lugar.linea - 1].X2, lineas[lugar.linea - 1].Y2};
        case Lugar::Origen::propio: break;
    }
    return {propia.X1, propia.Y1};
}

Punto llegar(const Lugar& lugar, const Ejes& ejes, Punto punto) {
    for (const Tramo& tramo : std::span(lugar.tramos).first(lugar.pasos)) {
        const int grados = ejes.grados(tramo.rumbo);
        const double unidades = tramo.rumbo == Rumbo::corto ? tramo.medida : tramo.medida * ejes.factor;
        punto = {PolarX(punto.x, grados, unidades), PolarY(punto.y, grados, unidades)};
    }
    return punto;
}

}  // namespace

int Ejes::grados(Rumbo rumbo) const {
    switch (rumbo) {
        case Rumbo::ancho: return angulo - signo * 90;
        case Rumbo::contra: return angulo + signo * 90;
        case Rumbo::largo:
        case Rumbo::corto: break;
    }
    return angulo;
}

void trazar(std::span<const Fila> filas, std::size_t primera, const Ejes& ejes, std::span<Segmento> lineas) {
    std::size_t numero = primera;
    for (const Fila& fila : filas) {
        Segmento& linea = lineas[numero++ - 1];
        const Punto desde = llegar(fila.inicio, ejes, origen(fila.inicio, ejes, lineas, linea));
        asignar(linea.X1, desde.x);
        asignar(linea.Y1, desde.y);
        const Punto hasta = llegar(fila.fin, ejes, origen(fila.fin, ejes, lineas, linea));
        asignar(linea.X2, hasta.x);
        asignar(linea.Y2, hasta.y);
        linea.Visible = fila.visible;
    }
}

}  // namespace bosquel
