#include "openings/puerta.h"

#include "model/numeros.h"
#include "model/polar.h"
#include "openings/abertura.h"

#include <algorithm>

namespace bosquel {

namespace {

constexpr double canto = 60;  // of a leaf: mm for the first, sheet units for the second

bool esDoble(const Puerta& puerta) {
    return puerta.OrientacionLateral == "Doble";
}

/// How a first leaf stands by the side that it opens to and its hinge, and where its swing ends.
struct Hoja {
    std::string_view lado, lateral;
    Lugar bisagra, cierre;
    Lugar segunda{};  ///< the hinge of the second leaf
};

std::array<Hoja, 6> hojas(double mitad) {
    // clang-format off
    return {{
        {"Arriba", "Izquierda", inicio(3), inicio(4)},
        {"Arriba", "Derecha",   inicio(4), inicio(3)},
        {"Arriba", "Doble",     inicio(4), alLargo(inicio(1), mitad), inicio(3)},
        {"Abajo",  "Izquierda", fin(3),    fin(4)},
        {"Abajo",  "Derecha",   fin(4),    fin(3)},
        {"Abajo",  "Doble",     fin(4),    alLargo(fin(1), mitad),    fin(3)},
    }};
    // clang-format on
}

void trazarHojas(Puerta& puerta, double mitad, const Ejes& ejes) {
    const std::array tabla = hojas(mitad);
    const std::string lado = ladoEfectivo(puerta);
    const auto hoja = std::find_if(tabla.begin(), tabla.end(), [&](const Hoja& fila) {
        return fila.lado == lado && fila.lateral == puerta.OrientacionLateral;
    });
    if (hoja == tabla.end()) return;
    const Lugar abierta =
        avanzado(hoja->lado == "Arriba" ? Rumbo::contra : Rumbo::ancho, propio, puerta.Longitud);
    const double grueso = hoja->lateral == "Izquierda" ? canto : -canto;
    // clang-format off
    const std::array<Fila, 4> primera{{
        {hoja->bisagra,              abierta},
        {alLargo(inicio(5), grueso), alLargo(fin(5), grueso)},
        {fin(5),                     fin(6)},
        {fin(6),                     hoja->cierre},
    }};
    const std::array<Fila, 4> segunda{{
        {hoja->segunda,                              abierta},
        {avanzado(Rumbo::corto, inicio(9), canto),   avanzado(Rumbo::corto, fin(9), canto)},
        {fin(9),                                     fin(10)},
        {fin(10),                                    hoja->cierre},
    }};
    // clang-format on
    trazar(primera, 5, ejes, puerta.lineas);
    if (esDoble(puerta)) trazar(segunda, 9, ejes, puerta.lineas);
}

/// On the chord of a single leaf; before a double door, as far from the wall as half a leaf is at 1 sheet
/// unit to a mm, whatever the zoom.
void ponerPinza(Puerta& puerta, const Ejes& ejes) {
    const double medio = ladoPinzaAbertura / 2 * ejes.factor;
    const Segmento& cuerda = puerta.lineas[7];
    Pinza& pinza = puerta.PuertaPick;
    asignar(pinza.Lado, ladoPinzaAbertura * ejes.factor);
    if (esDoble(puerta)) {
        const int fuera = ejes.grados(ladoEfectivo(puerta) == "Abajo" ? Rumbo::ancho : Rumbo::contra);
        asignar(pinza.Left, PolarX(cuerda.X2, fuera, puerta.Longitud / 2) - medio);
        asignar(pinza.Top, PolarY(cuerda.Y2, fuera, puerta.Longitud / 2) - medio);
    } else {
        asignar(pinza.Left, (static_cast<double>(cuerda.X2) - cuerda.X1) / 2 + cuerda.X1 - medio);
        asignar(pinza.Top, (static_cast<double>(cuerda.Y2) - cuerda.Y1) / 2 + cuerda.Y1 - medio);
    }
    pinza.Visible = true;
}

}  // namespace

void TrazaLineasPuerta(Puerta& puerta, const Pared& pared, double factor) {
    const double tabique = entero16(pared.AnchoTabique).value_or(0);
    const double total = puerta.Longitud * (esDoble(puerta) ? 2 : 1) + 2 * tabique;
    const double espesor = pared.esMuro() ? puerta.AnchoMuro : puerta.AnchoTabique;
    const double d = distanciaEnPared(puerta, pared, total);
    const Ejes ejes = ejesDe(puerta, pared, factor);
    // clang-format off
    const std::array<Fila, 4> cerco{{
        {enPared(d),                   alAncho(propio, espesor)},
        {enPared(d + total),           alAncho(propio, espesor)},
        {enPared(d + tabique),         alAncho(propio, espesor)},
        {alLargo(inicio(2), -tabique), alAncho(propio, espesor)},
    }};
    // clang-format on
    trazar(cerco, 1, ejes, puerta.lineas);
    trazarHojas(puerta, total / 2, ejes);
    if (esDoble(puerta)) return;
    for (Segmento& linea : std::span(puerta.lineas).subspan(8))
        linea.Visible = false;
}

void ColocaPuerta(Dibujo& dibujo, int indice, bool seleccionada) {
    auto* puerta = abertura<Puerta>(dibujo, indice);
    if (!puerta) return;
    ensuciar(dibujo, *puerta);
    if (const Pared* pared = paredTrazada(dibujo, *puerta)) {
        TrazaLineasPuerta(*puerta, *pared, dibujo.FactorZoomActual);
        ponerPinza(*puerta, ejesDe(*puerta, *pared, dibujo.FactorZoomActual));
        alFrente(dibujo, puerta->PuertaPick);
    }
    if (seleccionada) seleccionar<Puerta>(dibujo, indice);
    asignar(dibujo.PuertaBajoPuntero, indice);
    ensuciar(dibujo, *puerta);
}

void RedibujaPuerta(Dibujo& dibujo, int indice) {
    ColocaPuerta(dibujo, indice, true);
}

void DeseleccionaPuerta(Dibujo& dibujo, int indice) {
    deseleccionar<Puerta>(dibujo, indice);
}

}  // namespace bosquel
