#pragma once

#include "model/numeros.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <limits>
#include <optional>
#include <utility>

namespace bosquel {

/// The elements of one kind by their index. Slot 0 always exists and is the kind's model; real elements start
/// at 1. An element that is removed leaves a hole, and no index is used again until the drawing is emptied.
/// References to elements stay good while others come and go.
template <class T>
class Coleccion {
  public:
    Coleccion() : huecos_(1, T{}) {}

    /// The index that the next element gets; for stairs the last one given. 16 bits, never falls.
    std::int16_t contador = 1;

    T& modelo() { return *huecos_.front(); }
    const T& modelo() const { return *huecos_.front(); }

    /// The element at `indice`, or nullptr for a hole.
    T* en(int indice) { return existe(indice) ? &*huecos_[posicion(indice)] : nullptr; }
    const T* en(int indice) const { return existe(indice) ? &*huecos_[posicion(indice)] : nullptr; }

    bool existe(int indice) const {
        return indice >= 0 && posicion(indice) < huecos_.size() && huecos_[posicion(indice)].has_value();
    }

    /// A copy of the model at `indice` (1 or more), in the place of what may stand there.
    T& crear(int indice) {
        if (posicion(indice) >= huecos_.size()) huecos_.resize(posicion(indice) + 1);
        return huecos_[posicion(indice)].emplace(modelo());
    }

    /// A copy of the model at the counter's index; the counter goes on. Nothing where a file has left the
    /// counter at no index, or at the last one.
    T* crearSiguiente() {
        const bool hayIndice = contador > 0 && contador < std::numeric_limits<std::int16_t>::max();
        T* nuevo = hayIndice ? &crear(contador) : nullptr;
        avanzar(contador);
        return nuevo;
    }

    /// The same where the counter is the last index given: it goes on first.
    T* crearTrasContador() {
        const bool hayIndice = contador >= 0 && contador < std::numeric_limits<std::int16_t>::max();
        avanzar(contador);
        return hayIndice ? &crear(contador) : nullptr;
    }

    /// Leaves a hole; the model stays. Holes at the end take no room.
    void quitar(int indice) {
        if (indice > 0 && existe(indice)) huecos_[posicion(indice)].reset();
        while (!huecos_.back())
            huecos_.pop_back();
    }

    /// The highest index that holds an element; 0 if only the model is there.
    int ultimo() const { return static_cast<int>(huecos_.size()) - 1; }

    /// The first real element of which `vale(elemento)` is true; nullptr if there is none.
    template <class Vale>
    T* primero(Vale vale) {
        for (std::size_t i = 1; i < huecos_.size(); ++i)
            if (huecos_[i] && vale(std::as_const(*huecos_[i]))) return &*huecos_[i];
        return nullptr;
    }

    /// Calls `paso(indice, elemento)` for all that exist from `desde` to `hasta`, both included, in rising
    /// order. The pass may remove elements, and create them beyond `hasta`.
    template <class Paso>
    void recorrer(int desde, int hasta, Paso paso) {
        recorrerEn(*this, desde, hasta, paso);
    }
    template <class Paso>
    void recorrer(int desde, int hasta, Paso paso) const {
        recorrerEn(*this, desde, hasta, paso);
    }

    /// All real elements, whatever the counter says.
    template <class Paso>
    void recorrer(Paso paso) {
        recorrerEn(*this, 1, ultimo(), paso);
    }
    template <class Paso>
    void recorrer(Paso paso) const {
        recorrerEn(*this, 1, ultimo(), paso);
    }

  private:
    static std::size_t posicion(int indice) { return static_cast<std::size_t>(indice); }

    template <class Propia, class Paso>
    static void recorrerEn(Propia& propia, int desde, int hasta, Paso& paso) {
        const int fin = std::min(hasta, propia.ultimo());
        for (int i = std::max(desde, 0); i <= fin; ++i)
            if (auto* elemento = propia.en(i)) paso(i, *elemento);
    }

    std::deque<std::optional<T>> huecos_;  ///< the last one never is a hole
};

}  // namespace bosquel
