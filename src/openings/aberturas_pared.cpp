#include "openings/aberturas_pared.h"

#include "openings/abertura.h"
#include "openings/puerta.h"
#include "openings/ventana.h"

namespace bosquel {

void MoverPuertasVentanasPared(Dibujo& dibujo, int pared) {
    dibujo.Ventana.recorrer([&](int i, const Ventana& ventana) {
        if (ventana.NumeroPared == pared) ColocaVentana(dibujo, i, false);
    });
    dibujo.Puerta.recorrer([&](int i, const Puerta& puerta) {
        if (puerta.NumeroPared == pared) ColocaPuerta(dibujo, i, false);
    });
}

void ensuciarAberturasPared(Dibujo& dibujo, int pared) {
    const auto ensuciarSuya = [&](int, const auto& abertura) {
        if (abertura.NumeroPared == pared) ensuciar(dibujo, abertura);
    };
    dibujo.Ventana.recorrer(ensuciarSuya);
    dibujo.Puerta.recorrer(ensuciarSuya);
}

}  // namespace bosquel
