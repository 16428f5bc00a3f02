#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace bosquel {

/// UTF-8 into Windows-1252, one byte a character. A character that has no byte, and each stray byte of
/// malformed UTF-8, becomes '?'.
std::string aWindows1252(std::string_view utf8);

/// Windows-1252 into UTF-8. The five bytes without a character of their own stand for the control character
/// of the same number, so that every text of bytes comes back as it was.
std::string aUtf8(std::string_view bytes);

/// The same, without a copy of what is plain ASCII: that is given back itself, all else is put into `sitio`.
std::string_view aWindows1252(std::string_view utf8, std::string& sitio);
std::string_view aUtf8(std::string_view bytes, std::string& sitio);

/// The small letter of each byte that is a capital, all Windows-1252 over; any other byte as it is.
inline constexpr std::array<char, 256> minusculas = [] {
    std::array<char, 256> tabla{};
    const auto par = [&tabla](int mayuscula, int minuscula) {
        tabla[static_cast<std::size_t>(mayuscula)] = static_cast<char>(minuscula);
    };
    for (int i = 0; i < 256; ++i)
        par(i, i);
    for (int i = 'A'; i <= 'Z'; ++i)
        par(i, i + 0x20);
    for (int i = 0xC0; i <= 0xDE; ++i)
        par(i, i + 0x20);
    par(0xD7, 0xD7);  // the sign of multiplication, in the midst of the letters
    for (const int i : {0x8A, 0x8C, 0x8E})
        par(i, i + 0x10);
    par(0x9F, 0xFF);
    return tabla;
}();

constexpr char enMinuscula(char byte) {
    return minusculas[static_cast<unsigned char>(byte)];
}

/// True for names that differ in case only.
constexpr bool mismoNombre(std::string_view uno, std::string_view otro) {
    return uno == otro || std::equal(uno.begin(), uno.end(), otro.begin(), otro.end(),
                                     [](char a, char b) { return enMinuscula(a) == enMinuscula(b); });
}

}  // namespace bosquel
