#include "model/windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace bosquel {

namespace {

constexpr char sinByte = '?';
constexpr char32_t malFormado = 0xFFFFFFFF;  // no character has this number

// The bytes from 0x80 to 0x9F: the only ones whose character has another number.
constexpr std::uint8_t primeroPropio = 0x80;
constexpr std::array<char32_t, 32> propios{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  //
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint8_t octeto(char c) {
    return static_cast<std::uint8_t>(c);
}

char32_t caracterDe(std::uint8_t byte) {
    const bool esPropio = byte >= primeroPropio && byte < primeroPropio + propios.size();
    return esPropio ? propios[byte - primeroPropio] : byte;
}

char byteDe(char32_t caracter) {
    const bool mismoNumero = caracter < primeroPropio || (caracter >= 0xA0 && caracter <= 0xFF);
    if (mismoNumero) return static_cast<char>(caracter);
    const auto* propio = std::find(propios.begin(), propios.end(), caracter);
    return propio == propios.end() ? sinByte : static_cast<char>(propio - propios.begin() + primeroPropio);
}

// How a sequence of UTF-8 begins: `marca` under `mascara`, and the least character it may stand for.
struct Comienzo {
    std::uint8_t mascara;
    std::uint8_t marca;
    std::size_t largo;
    char32_t minimo;
};
constexpr std::array<Comienzo, 4> comienzos{
    {{0x80, 0x00, 1, 0x0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

bool esCaracter(char32_t c) {
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

// The character that the sequence stands for, or the mark of none.
char32_t caracterDe(std::string_view secuencia, const Comienzo& comienzo) {
    char32_t caracter = octeto(secuencia.front()) & ~comienzo.mascara & 0xFFU;
    for (const char c : secuencia.substr(1)) {
        if ((octeto(c) & 0xC0U) != 0x80U) return malFormado;
        caracter = (caracter << 6) | (octeto(c) & 0x3FU);
    }
    return caracter >= comienzo.minimo && esCaracter(caracter) ? caracter : malFormado;
}

// Takes one character off the front, or one byte if no character stands there.
char32_t tomarCaracter(std::string_view& utf8) {
    for (const Comienzo& comienzo : comienzos) {
        if ((octeto(utf8.front()) & comienzo.mascara) != comienzo.marca || utf8.size() < comienzo.largo)
            continue;
        const char32_t caracter = caracterDe(utf8.substr(0, comienzo.largo), comienzo);
        if (caracter == malFormado) break;
        utf8.remove_prefix(comienzo.largo);
        return caracter;
    }
    utf8.remove_prefix(1);
    return malFormado;
}

void anadirUtf8(std::string& texto, char32_t c) {
    const auto continuacion = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x80) {
        texto += static_cast<char>(c);
    } else if (c < 0x800) {
        texto += {static_cast<char>(0xC0 | (c >> 6)), continuacion(c)};
    } else {
        texto += {static_cast<char>(0xE0 | (c >> 12)), continuacion(c >> 6), continuacion(c)};
    }
}

bool esAscii(std::string_view texto) {
    std::uint8_t bits = 0;
    for (const char c : texto)
        bits |= octeto(c);
    return bits < primeroPropio;
}

}  // namespace

std::string aWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += byteDe(tomarCaracter(utf8));
    return bytes;
}

std::string aUtf8(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char byte : bytes)
        anadirUtf8(utf8, caracterDe(octeto(byte)));
    return utf8;
}

std::string_view aWindows1252(std::string_view utf8, std::string& sitio) {
    return esAscii(utf8) ? utf8 : sitio = aWindows1252(utf8);
}

std::string_view aUtf8(std::string_view bytes, std::string& sitio) {
    return esAscii(bytes) ? bytes : sitio = aUtf8(bytes);
}

}  // namespace bosquel
