#include "furnishing/calcar.h"

#include "furnishing/dibujar_elemento.h"
#include "stairs_symbols/catalogo.h"

#include <concepts>
#include <type_traits>
#include <utility>

namespace bosquel {

namespace {

/// Draws the element alone in a drawing of its own.
template <std::derived_from<Elemento> T>
Calco calcarSolo(Clase clase, T elemento) {
    elemento.Left = 0;
    elemento.Top = 0;
    elemento.Visible = true;
    Dibujo solo;
    conColeccion(solo, clase, [&](auto& coleccion) {
        if constexpr (std::is_same_v<decltype(coleccion), Coleccion<T>&>)
            coleccion.crear(1) = std::move(elemento);
    });
    Calcadora calcadora;
    DibujarElemento(salidaDe(solo, calcadora, 1), solo, clase, 1);
    return calcadora.calco();
}

void ponerCodigo(MblMesa& mesa, std::string_view codigo) {
    mesa.ColocacionSillas = codigo;
}

template <class T>
void ponerCodigo(T& elemento, std::string_view codigo) {
    if constexpr (requires { elemento.Orientacion; }) elemento.Orientacion = codigo;
}

/// A picture of a copy of the element, once `cambiar` has changed it.
template <class Cambio>
Calco calcarCambiado(const Dibujo& dibujo, Clase clase, int indice, Cambio cambiar) {
    return conColeccion(dibujo, clase, [&](const auto& coleccion) {
        using T = std::remove_cvref_t<decltype(coleccion.modelo())>;
        if constexpr (std::derived_from<T, Elemento>) {
            if (const T* elemento = coleccion.en(indice)) {
                T copia = *elemento;
                cambiar(copia);
                return calcarSolo(clase, std::move(copia));
            }
        }
        return Calco{};
    });
}

}  // namespace

Calco calcar(const Dibujo& dibujo, Clase clase, int indice) {
    return calcarCambiado(dibujo, clase, indice, [](auto&) {});
}

Calco calcar(const Dibujo& dibujo, Clase clase, int indice, std::string_view codigo) {
    return calcarCambiado(dibujo, clase, indice, [&](auto& copia) { ponerCodigo(copia, codigo); });
}

Calco calcarSimbolo(const Dibujo& dibujo, std::string_view simbolo) {
    Electrico electrico = dibujo.Electrico.modelo();
    ponerSimbolo(electrico, simbolo);
    return calcarSolo(Clase::Electrico, std::move(electrico));
}

}  // namespace bosquel
