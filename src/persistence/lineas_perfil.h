#pragma once

#include "model/blancos.h"
#include "model/windows1252.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace bosquel {

// The grammar of a profile file, line by line, in bytes of Windows-1252.

/// What ends a line that is written.
inline constexpr std::string_view finDeLinea = "\r\n";

/// CR LF, LF and CR each end a line that is read; the last line needs no end.
constexpr bool esSalto(char c) {
    return c == '\r' || c == '\n';
}

/// What stands in one line of a text.
struct Linea {
    enum class Clase { cabecera, valor, vacia, otra };

    std::size_t lugar;
    std::size_t largo;  ///< with its end; nothing but the end of the text has none
    Clase clase;
    std::string_view nombre;  ///< of a head; of a value what stands before its first "=", as it is spelled
    std::string_view valor;   ///< of a value what stands behind it; both without the blanks around them
};
Linea leerLinea(std::string_view texto, std::size_t lugar);

/// A key that is written as it is asked for, in either character set: nothing in it is blank, ends it or
/// makes a head of its line.
constexpr bool esLlana(std::string_view clave) {
    return std::all_of(clave.begin(), clave.end(),
                       [](char c) { return c > ' ' && c <= '~' && c != '=' && c != '['; });
}

/// Keys that are plain, and of which no two are one.
constexpr bool sonLlanas(std::span<const std::string_view> claves) {
    for (std::size_t i = 0; i < claves.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (mismoNombre(claves[i], claves[j])) return false;
    return std::all_of(claves.begin(), claves.end(), esLlana);
}

/// A section's or a key's name as it counts: up to a NUL, without the blanks around it.
std::string_view nombre(std::string_view texto);

/// What a reader gets of a value: up to a NUL, without blanks around it, without one pair of like quotes, and
/// no longer than the longest readable value.
std::string_view valorLegible(std::string_view valor);

}  // namespace bosquel
