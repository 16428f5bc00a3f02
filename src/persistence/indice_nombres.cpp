#include "persistence/indice_nombres.h"

#include "model/windows1252.h"

#include <utility>

namespace bosquel {

namespace {

/// FNV-1a over the small letters.
std::uint32_t huellaDe(std::string_view nombre) {
    std::uint64_t suma = 0xCBF29CE484222325U;
    for (const char c : nombre)
        suma = (suma ^ static_cast<unsigned char>(enMinuscula(c))) * 0x100000001B3U;
    return static_cast<std::uint32_t>(suma ^ (suma >> 32U));
}

}  // namespace

/// The first square from that of its print on that is free, or of which `vale(casilla)` is true.
template <class Vale>
std::size_t IndiceNombres::casillaDe(std::uint32_t huella, Vale vale) const {
    const std::size_t mascara = casillas_.size() - 1;
    std::size_t i = huella & mascara;
    while (casillas_[i].lugar != libre && !vale(casillas_[i]))
        i = (i + 1) & mascara;
    return i;
}

/// The square where the name stands, or else the free one where it would.
std::size_t IndiceNombres::casillaDe(std::string_view texto, std::string_view nombre,
                                     std::uint32_t huella) const {
    return casillaDe(huella, [&](const Casilla& casilla) {
        return casilla.huella == huella && mismoNombre(nombreEn_(texto, casilla.lugar), nombre);
    });
}

std::optional<std::size_t> IndiceNombres::buscar(std::string_view texto, std::string_view nombre) const {
    const Casilla& casilla = casillas_[casillaDe(texto, nombre, huellaDe(nombre))];
    return casilla.lugar == libre ? std::nullopt : std::optional<std::size_t>(casilla.lugar);
}

void IndiceNombres::anadir(std::string_view texto, std::size_t lugar) {
    const std::string_view nombre = nombreEn_(texto, lugar);
    const std::uint32_t huella = huellaDe(nombre);
    Casilla& casilla = casillas_[casillaDe(texto, nombre, huella)];
    if (casilla.lugar != libre) return;
    casilla = {static_cast<std::uint32_t>(lugar), huella};
    if (++ocupadas_ > casillas_.size() / 4 * 3) crecer();
}

void IndiceNombres::desplazar(std::size_t desde, std::size_t pasos) {
    for (Casilla& casilla : casillas_)
        if (casilla.lugar != libre && casilla.lugar >= desde)
            casilla.lugar += static_cast<std::uint32_t>(pasos);
}

void IndiceNombres::vaciar() {
    casillas_.assign(alPrincipio, {});
    ocupadas_ = 0;
}

void IndiceNombres::crecer() {
    const std::vector<Casilla> antes = std::exchange(casillas_, std::vector<Casilla>(2 * casillas_.size()));
    for (const Casilla& casilla : antes)
        if (casilla.lugar != libre)
            casillas_[casillaDe(casilla.huella, [](const Casilla&) { return false; })] = casilla;
}

}  // namespace bosquel
