#pragma once

#include "surface/superficie_salida.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string_view>

namespace bosquel {

// Outlines as data: a sheet of an outline names the strokes of a kind, one layout beside the other, and one
// pen (pluma.h) draws any of them.

/// An offset or a length of an outline, in millimetres: a sum of terms, which a kind in whole units rounds
/// one by one; a share of the one length that an element may choose; and bare surface units, which do not
/// scale.
struct Cota {
    std::array<std::int16_t, 3> mm{};
    double parte = 0;
    std::int16_t unidades = 0;

    constexpr Cota() = default;
    // NOLINTNEXTLINE(google-explicit-constructor,hicpp-explicit-conversions): a table is full of plain
    // numbers
    consteval Cota(int milimetros)
        : mm{static_cast<std::int16_t>(milimetros)} {}  // untested: only the compiler runs it
};

/// One term more, in the first free place.
consteval Cota conTermino(Cota cota, int milimetros) {
    for (std::int16_t& termino : cota.mm)
        if (milimetros == 0 || termino == 0) {
            termino = static_cast<std::int16_t>(termino + milimetros);
            return cota;
        }
    throw std::length_error("Cota");  // a table with one term too many does not compile
}

consteval Cota operator+(Cota a, const Cota& b) {
    for (const std::int16_t termino : b.mm)
        a = conTermino(a, termino);
    a.parte += b.parte;
    a.unidades = static_cast<std::int16_t>(a.unidades + b.unidades);
    return a;
}

consteval Cota operator-(Cota a, int milimetros) {
    return conTermino(a, -milimetros);
}

consteval Cota operator/(Cota a, int partes) {
    a.parte /= partes;
    return a;
}

/// The first term of a sum or a difference: `2000_k - 300`.
consteval Cota operator""_k(unsigned long long milimetros) {
    return {static_cast<int>(milimetros)};
}

/// Bare units: `400 + 10_u`.
consteval Cota operator""_u(unsigned long long unidades) {
    Cota cota;
    cota.unidades = static_cast<std::int16_t>(unidades);
    return cota;
}

/// The length that the element chooses.
consteval Cota longitudPropia() {
    Cota cota;
    cota.parte = 1;
    return cota;
}

/// One stroke of an outline.
struct Trazo {
    enum class Forma : std::uint8_t { linea, cuadro, curva } forma = Forma::linea;
    Cota x, y;           ///< the start, a corner, or the centre
    Cota x2, y2;         ///< the end or the far corner
    bool pasos = false;  ///< `x2`, `y2` are measured from `x`, `y`
    Cota radio = {};
    std::optional<Arco> grados = {};
    double aspecto = 1;
};

// The words of the sheets. Offsets are from the element's place, angles in degrees.

/// A straight stroke, by its ends and by its steps.
consteval Trazo L(Cota x1, Cota y1, Cota x2, Cota y2) {
    return {Trazo::Forma::linea, x1, y1, x2, y2};
}
consteval Trazo Stroke(Cota x, Cota y, Cota dx, Cota dy) {
    return {Trazo::Forma::linea, x, y, dx, dy, true};
}
/// A box, by opposite corners and by corner and size.
consteval Trazo B(Cota x1, Cota y1, Cota x2, Cota y2) {
    return {Trazo::Forma::cuadro, x1, y1, x2, y2};
}
consteval Trazo Box(Cota x, Cota y, Cota ancho, Cota alto) {
    return {Trazo::Forma::cuadro, x, y, ancho, alto, true};
}
/// An elliptic arc, an arc, an ellipse, a circle.
consteval Trazo EA(Cota x, Cota y, Cota radio, double desde, double hasta, double aspecto) {
    return {Trazo::Forma::curva, x, y, {}, {}, false, radio, Arco{desde, hasta}, aspecto};
}
consteval Trazo A(Cota x, Cota y, Cota radio, double desde, double hasta) {
    return EA(x, y, radio, desde, hasta, 1);
}
consteval Trazo E(Cota x, Cota y, Cota radio, double aspecto) {
    return {Trazo::Forma::curva, x, y, {}, {}, false, radio, {}, aspecto};
}
consteval Trazo C(Cota x, Cota y, Cota radio) {
    return E(x, y, radio, 1);
}

/// The strokes of one layout, in their order.
template <std::size_t Pasos>
struct Disposicion {
    std::string_view codigo;
    std::array<Trazo, Pasos> trazos;
};

/// All layouts of a kind.
template <std::size_t Pasos, std::size_t Codigos>
using Lamina = std::array<Disposicion<Pasos>, Codigos>;

/// A table with a row for each stroke and a column for each layout.
template <std::size_t Pasos, std::size_t Codigos = 4>
using Filas = std::array<std::array<Trazo, Codigos>, Pasos>;

template <std::size_t Codigos, std::size_t Pasos>
consteval Lamina<Pasos, Codigos> porColumnas(const std::array<std::string_view, Codigos>& codigos,
                                             const Filas<Pasos, Codigos>& filas) {
    Lamina<Pasos, Codigos> lamina{};
    for (std::size_t columna = 0; columna < Codigos; ++columna) {
        lamina[columna].codigo = codigos[columna];
        for (std::size_t paso = 0; paso < Pasos; ++paso)
            lamina[columna].trazos[paso] = filas[paso][columna];
    }
    return lamina;
}

}  // namespace bosquel
