#include "openings/abertura.h"

#include "model/numeros.h"
#include "walls/pared.h"

namespace bosquel {

const Pared* paredTrazada(const Dibujo& dibujo, const Abertura& abertura) {
    const Pared* pared = abertura.NumeroPared > 0 ? dibujo.Pared.en(abertura.NumeroPared) : nullptr;
    return pared != nullptr && pared->lineas[0].Visible ? pared : nullptr;
}

bool enMovimiento(const Dibujo& dibujo, const Abertura& abertura) {
    const Pared* pared = dibujo.Pared.en(abertura.NumeroPared);
    return pared != nullptr && pared->EnMovimiento;
}

std::string ladoEfectivo(const std::string& lado, int angulo) {
    if (angulo < 0 && lado == "Arriba") return "Abajo";
    if (angulo < 0 && lado == "Abajo") return "Arriba";
    return lado;
}

std::string ladoEfectivo(const Abertura& abertura) {
    return ladoEfectivo(abertura.Orientacion, abertura.Angulo);
}

double distanciaEnPared(const Abertura& abertura, const Pared& pared, double longitud) {
    if (abertura.Alineacion == "Centro") return (pared.Longitud - longitud) / 2;
    if (abertura.Alineacion == "Izquierda") return abertura.Distancia;
    if (abertura.Alineacion == "Derecha") return pared.Longitud - longitud - abertura.Distancia;
    return 0;
}

Ejes ejesDe(const Abertura& abertura, const Pared& pared, double factor) {
    return {.X = pared.lineas[0].X1,
            .Y = pared.lineas[0].Y1,
            .angulo = abertura.Angulo,
            .signo = pared.Angulo < 0 ? -1 : 1,
            .factor = factor};
}

std::optional<Recuadro> contorno(const Ventana& ventana) {
    const std::array pinzas = ventana.pinzas();
    return contorno(ventana.lineas, pinzas);
}

std::optional<Recuadro> contorno(const Puerta& puerta) {
    const std::array pinzas = puerta.pinzas();
    return contorno(puerta.lineas, pinzas);
}

void ensuciar(Dibujo& dibujo, const Abertura& abertura, const std::optional<Recuadro>& zona) {
    if (zona) (enMovimiento(dibujo, abertura) ? dibujo.paso : dibujo.sucia).anadir(*zona);
}

template <class T>
void seleccionar(Dibujo& dibujo, int indice) {
    auto* abierta = abertura<T>(dibujo, indice);
    if (!abierta) return;
    DeseleccionaPared(dibujo, abierta->NumeroPared);
    deseleccionar<T>(dibujo, dibujo.*Rasgos<T>::bajoPuntero);
    dibujo.ElementoActual = Rasgos<T>::clase;
    asignar(dibujo.IndiceActual, indice);
    pintarPinza(dibujo, *abierta, rojo);
}

template void seleccionar<Ventana>(Dibujo& dibujo, int indice);
template void seleccionar<Puerta>(Dibujo& dibujo, int indice);

}  // namespace bosquel
