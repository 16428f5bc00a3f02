#pragma once

#include <string_view>

namespace bosquel {

/// What counts as a blank in a file and in a number: the byte 0x1A is the end mark of very old text files.
constexpr bool esBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1A';
}

/// The text without the blanks around it.
constexpr std::string_view sinBlancos(std::string_view texto) {
    while (!texto.empty() && esBlanco(texto.front()))
        texto.remove_prefix(1);
    while (!texto.empty() && esBlanco(texto.back()))
        texto.remove_suffix(1);
    return texto;
}

}  // namespace bosquel
