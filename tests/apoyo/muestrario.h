#pragma once

#include "model/dibujo.h"

#include <functional>
#include <string>
#include <vector>

namespace bosquel::apoyo {

/// One element to look at: how to put it into an empty drawing, at index 1.
struct Muestra {
    Clase clase;
    std::string titulo;
    std::function<void(Dibujo&)> poner;
};

/// Every furnishing kind, stair and symbol in every layout that it has.
const std::vector<Muestra>& muestrario();

/// The drawing that holds the sample alone, at a place that is no whole number and in colours of its own.
Dibujo dibujoDe(const Muestra& muestra, double factor);

/// What is recorded when the drawing's one element is drawn.
std::vector<std::string> trazosDe(const Dibujo& dibujo, Clase clase, double EscalaSalida = 1);

inline constexpr double escalaDeSalida = 1.1338582677;

}  // namespace bosquel::apoyo
