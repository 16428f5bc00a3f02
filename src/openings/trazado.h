#pragma once

#include "model/geometria.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace bosquel {

// The lines of windows and doors as tables: a row is a line, told by its two ends and whether it shows. An
// end is told by where it is reckoned from and the steps that lead there, in mm. The tables stand in
// docs/aberturas.md in the same words.

enum class Rumbo : std::uint8_t {
    largo,   ///< along the wall
    ancho,   ///< across it, from line 1 of the wall towards line 3
    contra,  ///< across it the other way
    corto    ///< along the wall, in sheet units whatever the zoom
};

struct Tramo {
    Rumbo rumbo = Rumbo::largo;
    double medida = 0;
};

struct Lugar {
    enum class Origen : std::uint8_t {
        pared,   ///< the start of line 1 of the wall
        inicio,  ///< the start of an earlier line of the table
        fin,     ///< its end
        propio   ///< the start of the row's own line
    };
    Origen origen = Origen::pared;
    std::size_t linea = 0;
    std::array<Tramo, 2> tramos{};
    std::size_t pasos = 0;  ///< of `tramos`
};

struct Fila {
    Lugar inicio, fin;
    bool visible = true;
};

inline constexpr Lugar propio{.origen = Lugar::Origen::propio};

constexpr Lugar inicio(std::size_t linea) {
    return {.origen = Lugar::Origen::inicio, .linea = linea};
}
constexpr Lugar fin(std::size_t linea) {
    return {.origen = Lugar::Origen::fin, .linea = linea};
}
constexpr Lugar avanzado(Rumbo rumbo, Lugar lugar, double medida) {
    lugar.tramos[lugar.pasos++] = {rumbo, medida};
    return lugar;
}
constexpr Lugar enPared(double medida) {
    return avanzado(Rumbo::largo, {}, medida);
}
constexpr Lugar alLargo(const Lugar& lugar, double medida) {
    return avanzado(Rumbo::largo, lugar, medida);
}
constexpr Lugar alAncho(const Lugar& lugar, double medida) {
    return avanzado(Rumbo::ancho, lugar, medida);
}

/// What a table is drawn on: where line 1 of the wall starts (sheet units), the angle of the opening, the
/// sign of the wall's, and sheet units to a mm.
struct Ejes {
    float X = 0, Y = 0;
    int angulo = 0;
    int signo = 1;
    double factor = 1;

    /// The direction of a step, in degrees.
    int grados(Rumbo rumbo) const;
};

/// Draws the rows of a table in their order, as the lines from number `primera` on. Every step is rounded to
/// a 32-bit float. A coordinate that no such float holds stays as it is.
void trazar(std::span<const Fila> filas, std::size_t primera, const Ejes& ejes, std::span<Segmento> lineas);

}  // namespace bosquel
