#include "openings/aberturas_pared.h"

#include "openings/abertura.h"
#include "openings/puerta.h"
#include "openings/ventana.h"

namespace bosquel {

namespace {

template <class T>
void anotarSuyas(const Coleccion<T>& coleccion, int pared, std::vector<Referencia>& aberturas) {
    coleccion.recorrer([&](int indice, const T& abertura) {
        if (abertura.NumeroPared == pared)
            aberturas.push_back({Rasgos<T>::clase, static_cast<std::int16_t>(indice)});
    });
}

}  // namespace

std::vector<Referencia> aberturasDePared(const Dibujo& dibujo, int pared) {
    std::vector<Referencia> aberturas;
    anotarSuyas(dibujo.Ventana, pared, aberturas);
    anotarSuyas(dibujo.Puerta, pared, aberturas);
    return aberturas;
}

void ColocarAberturas(Dibujo& dibujo, std::span<const Referencia> aberturas) {
    for (const auto& [clase, indice] : aberturas)
        (clase == Clase::Ventana ? ColocaVentana : ColocaPuerta)(dibujo, indice, false);
}

void MoverPuertasVentanasPared(Dibujo& dibujo, int pared) {
    ColocarAberturas(dibujo, aberturasDePared(dibujo, pared));
}

void ensuciarAberturas(Dibujo& dibujo, std::span<const Referencia> aberturas) {
    for (const Referencia cual : aberturas)
        conAbertura(dibujo, cual, [&](const auto& abertura) { ensuciar(dibujo, abertura); });
}

}  // namespace bosquel
