#include "walls/paralelas.h"

#include "model/numeros.h"
#include "model/polar.h"
#include "model/textos_numero.h"
#include "walls/pared.h"

namespace bosquel {

namespace {

constexpr double milimetros = 1000.0;  // in a metre

// The dialog's own units.
constexpr double centroX = 1100, centroY = 1000;
constexpr double longitudBoceto = 1600;
constexpr double distanciaPunto = 500, medioPunto = 200;

Segmento boceto(int angulo) {
    Segmento linea{0, 0, 0, 0, true};
    asignar(linea.X1, centroX - PolarX(0, angulo, longitudBoceto / 2));
    asignar(linea.Y1, centroY - PolarY(0, angulo, longitudBoceto / 2));
    asignar(linea.X2, PolarX(linea.X1, angulo, longitudBoceto));
    asignar(linea.Y2, PolarY(linea.Y1, angulo, longitudBoceto));
    return linea;
}

/// The direction in which a side lies.
int hacia(Paralelas::Punto punto, int angulo) {
    return punto == Paralelas::Punto::Punto1 ? angulo - 90 : angulo + 90;
}

Paralelas::Lugar situar(Paralelas::Punto punto, int angulo) {
    const int direccion = hacia(punto, angulo);
    Paralelas::Lugar lugar;
    asignar(lugar.Left, PolarX(centroX, direccion, distanciaPunto) - medioPunto);
    asignar(lugar.Top, PolarY(centroY, direccion, distanciaPunto) - medioPunto);
    return lugar;
}

}  // namespace

Paralelas::Paralelas(Dibujo& dibujo, int indice) : dibujo_(dibujo), indice_(indice) {
    TxtDistancia = formatoMetros(dibujo.DistParalela);
    const Pared* pared = dibujo.Pared.en(indice);
    if (!pared) return;
    Line1_ = boceto(pared->Angulo);
    lugares_ = {situar(Punto::Punto1, pared->Angulo), situar(Punto::Punto2, pared->Angulo)};
}

void Paralelas::Aplicar() {
    const Pared* pared = dibujo_.Pared.en(indice_);
    if (!pared) return;
    if (const auto metros = realTecleado(TxtDistancia)) asignar(dibujo_.DistParalela, *metros);
    const int indice = CreaParedComo(dibujo_, *pared);
    if (indice == 0) return;
    Pared& copia = *dibujo_.Pared.en(indice);
    const double paso = (copia.ancho() + dibujo_.DistParalela * milimetros) * dibujo_.FactorZoomActual;
    const int direccion = hacia(elegido, pared->Angulo);
    asignar(copia.InicialX, PolarX(pared->lineas[0].X1, direccion, paso));
    asignar(copia.InicialY, PolarY(pared->lineas[0].Y1, direccion, paso));
    DeseleccionaPared(dibujo_, indice_);
    DibujaPared(dibujo_, indice, true);
}

}  // namespace bosquel
