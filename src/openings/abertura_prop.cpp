#include "openings/abertura_prop.h"

#include "model/metros.h"
#include "model/numeros.h"
#include "model/polar.h"
#include "walls/pared.h"

namespace bosquel {

namespace {

// Units of the sketch.
constexpr double ladoBoton = 300;
constexpr double distanciaPunto = 500, distanciaLado = 900;

}  // namespace

AberturaProp::AberturaProp(const Dibujo& dibujo, const Abertura* abertura) {
    muro_.AnchoMuro = anchoMuroCroquis;
    muro_.AnchoTabique = anchoTabiqueCroquis;
    if (!abertura) return;
    txtLongitud = enMetros(abertura->Longitud);
    TxtDistancia = enMetros(abertura->Distancia);
    if (abertura->Alineacion == "Centro") alineacion_ = 0;
    if (abertura->Alineacion == "Izquierda" || abertura->Alineacion == "Derecha") alineacion_ = 1;
    angulo_ = abertura->Angulo;
    const Pared* pared = dibujo.Pared.en(abertura->NumeroPared);
    if (!pared) return;
    muro_.Tipo = pared->Tipo;
    anguloPared_ = pared->Angulo;
}

Recuadro AberturaProp::sitio(Boton boton) const {
    const bool punto = boton == Boton::Punto1 || boton == Boton::Punto2;
    const bool atras = boton == Boton::Lado1;
    const int direccion = boton == Boton::Punto1 ? angulo_ + 90 : punto ? angulo_ - 90 : angulo_;
    const double distancia = punto ? distanciaPunto : atras ? -distanciaLado : distanciaLado;
    return {PolarX(centroX, direccion, distancia) - ladoBoton / 2,
            PolarY(centroY, direccion, distancia) - ladoBoton / 2, ladoBoton, ladoBoton};
}

void AberturaProp::trazarMuro(double largo) {
    asignar(muro_.InicialX, centroX - PolarX(0, angulo_, largo / 2));
    asignar(muro_.InicialY, centroY - PolarY(0, angulo_, largo / 2));
    muro_.Longitud = largo;
    asignar(muro_.Angulo, angulo_);
    TrazaLineasPared(muro_, 1);
    // Drawn as the opening runs; across it, the opening keeps to the sign of its wall.
    muro_.Angulo = anguloPared_;
}

void AberturaProp::dibujar(const std::function<void()>& trazar) {
    if (dibujando_) return;
    dibujando_ = true;
    trazar();
    if (alDibujar) alDibujar();
    dibujando_ = false;
}

void AberturaProp::leerMedidas(Abertura& abertura) const {
    leerMetros(abertura.Distancia, TxtDistancia);
    leerMetros(abertura.Longitud, txtLongitud);
}

}  // namespace bosquel
