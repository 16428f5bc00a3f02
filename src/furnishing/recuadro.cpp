#include "furnishing/recuadro.h"

#include "furnishing/dibujar_elemento.h"
#include "stairs_symbols/escalera.h"
#include "surface/medidora.h"

#include <cmath>

namespace bosquel {

namespace {

/// What is drawn of the element, at the size that it has on the sheet.
std::optional<Recuadro> medir(const Dibujo& dibujo, Clase clase, int indice, double unidad) {
    Medidora medidora;
    Salida salida = salidaDe(dibujo, medidora, 1);
    salida.unidad = unidad;
    DibujarElemento(salida, dibujo, clase, indice);
    return medidora.extension();
}

Recuadro recuadro(const Dibujo& dibujo, const Escalera& escalera) {
    Medidora medidora;
    const double lado = PlantaEscalera(salidaDe(dibujo, medidora, 1), escalera).D;
    return {escalera.Left, escalera.Top, lado, lado};
}

Recuadro recuadro(const Dibujo& dibujo, const Electrico& electrico) {
    return {electrico.Left, electrico.Top, electrico.RectX * dibujo.FactorZoomActual,
            electrico.RectY * dibujo.FactorZoomActual};
}

Recuadro recuadro(const Dibujo&, const TextoLibre& texto) {
    return {texto.Left, texto.Top, texto.Width, texto.Height};
}

bool esFinito(const Recuadro& caja) {
    return std::isfinite(caja.Left) && std::isfinite(caja.Top) && std::isfinite(caja.Width) &&
           std::isfinite(caja.Height);
}

template <class T>
std::optional<Recuadro> siSeVe(const Dibujo& dibujo, const Coleccion<T>& coleccion, int indice) {
    const T* elemento = indice == 0 ? nullptr : coleccion.en(indice);
    if (!elemento || !elemento->Visible) return std::nullopt;
    const Recuadro caja = recuadro(dibujo, *elemento);
    return esFinito(caja) ? std::optional(caja) : std::nullopt;
}

}  // namespace

std::optional<Recuadro> recuadroDe(const Dibujo& dibujo, Clase clase, int indice) {
    if (clase == Clase::Escalera) return siSeVe(dibujo, dibujo.Escalera, indice);
    if (clase == Clase::Electrico) return siSeVe(dibujo, dibujo.Electrico, indice);
    if (clase == Clase::TextoLibre) return siSeVe(dibujo, dibujo.TextoLibre, indice);
    return medir(dibujo, clase, indice, 0);
}

std::optional<Recuadro> extensionDe(const Dibujo& dibujo, Clase clase, int indice) {
    return medir(dibujo, clase, indice, 1);
}

}  // namespace bosquel
