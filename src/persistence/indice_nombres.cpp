#include "persistence/indice_nombres.h"

#include "model/windows1252.h"

#include <cstdint>
#include <utility>

namespace bosquel {

namespace {

/// FNV-1a over the small letters.
std::size_t huella(std::string_view nombre) {
    std::uint64_t suma = 0xCBF29CE484222325U;
    for (const char c : nombre)
        suma = (suma ^ static_cast<unsigned char>(enMinuscula(c))) * 0x100000001B3U;
    return static_cast<std::size_t>(suma ^ (suma >> 32U));
}

}  // namespace

/// The square where the name stands, or else the free one where it would.
std::size_t IndiceNombres::casillaDe(std::string_view texto, std::string_view nombre) const {
    const std::size_t mascara = casillas_.size() - 1;
    std::size_t casilla = huella(nombre) & mascara;
    while (casillas_[casilla] != libre && !mismoNombre(nombreEn_(texto, casillas_[casilla]), nombre))
        casilla = (casilla + 1) & mascara;
    return casilla;
}

std::optional<std::size_t> IndiceNombres::buscar(std::string_view texto, std::string_view nombre) const {
    const std::size_t lugar = casillas_[casillaDe(texto, nombre)];
    return lugar == libre ? std::nullopt : std::optional(lugar);
}

void IndiceNombres::anadir(std::string_view texto, std::size_t lugar) {
    std::size_t& casilla = casillas_[casillaDe(texto, nombreEn_(texto, lugar))];
    if (casilla != libre) return;
    casilla = lugar;
    if (++ocupadas_ > casillas_.size() / 2) crecer(texto);
}

void IndiceNombres::desplazar(std::size_t desde, std::size_t pasos) {
    for (std::size_t& lugar : casillas_)
        if (lugar != libre && lugar >= desde) lugar += pasos;
}

void IndiceNombres::vaciar() {
    casillas_.assign(alPrincipio, libre);
    ocupadas_ = 0;
}

void IndiceNombres::crecer(std::string_view texto) {
    const std::size_t casillas = 2 * casillas_.size();
    const std::vector<std::size_t> antes = std::exchange(casillas_, std::vector(casillas, libre));
    for (const std::size_t lugar : antes)
        if (lugar != libre) casillas_[casillaDe(texto, nombreEn_(texto, lugar))] = lugar;
}

}  // namespace bosquel
