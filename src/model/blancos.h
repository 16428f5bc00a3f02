#pragma once

#include <string_view>

namespace bosquel {

/// What counts as a blank in a file and in a number: the byte 0x1A is the end mark of very old text files.
inline constexpr std::string_view blancos = " \t\v\f\x1A";

/// The text without the blanks around it.
constexpr std::string_view sinBlancos(std::string_view texto) {
    const std::size_t primero = texto.find_first_not_of(blancos);
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(blancos) - primero + 1);
}

}  // namespace bosquel
