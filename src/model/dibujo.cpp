#include "model/dibujo.h"

#include <concepts>

namespace bosquel {

namespace {

template <class Coleccionado>
constexpr bool tieneLugar = std::derived_from<Coleccionado, Situado>;

template <class D>
auto buscar(D& dibujo, Referencia cual) {
    using Puntero = std::conditional_t<std::is_const_v<D>, const Situado*, Situado*>;
    return conColeccion(dibujo, cual.clase, [&](auto& coleccion) -> Puntero {
        if constexpr (tieneLugar<std::remove_cvref_t<decltype(coleccion.modelo())>>)
            return cual.indice == 0 ? nullptr : coleccion.en(cual.indice);
        else
            return nullptr;
    });
}

}  // namespace

void anunciar(Dibujo& dibujo, Clase clase, int indice) {
    dibujo.cambiados.push_back({clase, static_cast<std::int16_t>(indice)});
}

void anunciarTodo(Dibujo& dibujo) {
    dibujo.todoCambiado = true;
    dibujo.sucia.anadirTodo();
}

Situado* situado(Dibujo& dibujo, Referencia cual) {
    return buscar(dibujo, cual);
}

const Situado* situado(const Dibujo& dibujo, Referencia cual) {
    return buscar(dibujo, cual);
}

}  // namespace bosquel
