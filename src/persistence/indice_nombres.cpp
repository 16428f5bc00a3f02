#include "persistence/indice_nombres.h"

#include "model/windows1252.h"

#include <random>
#include <utility>

namespace bosquel {

namespace {

constexpr std::size_t letrasPorPaso = sizeof(std::uint64_t);

/// Two numbers that nobody knows.
struct Secreto {
    std::uint64_t comienzo, factor;
};

std::uint64_t alAzar() {
    std::random_device azar;
    return std::uint64_t{azar()} << 32U | azar();
}

const Secreto& secreto() {
    static const Secreto uno{alAzar(), alAzar() | 1U};
    return uno;
}

/// Both halves of a product in one: each bit of it depends on all bits of the factors.
std::uint64_t plegar(std::uint64_t a, std::uint64_t b) {
    const auto producto = static_cast<unsigned __int128>(a) * b;
    return static_cast<std::uint64_t>(producto) ^ static_cast<std::uint64_t>(producto >> 64U);
}

/// The first eight letters as a number, in small letters.
std::uint64_t palabra(std::string_view letras) {
    std::uint64_t numero = 0;
    for (const char c : letras.substr(0, letrasPorPaso))
        numero = numero << 8U | static_cast<unsigned char>(enMinuscula(c));
    return numero;
}

std::uint32_t huellaDe(std::string_view nombre) {
    const auto& [comienzo, factor] = secreto();
    std::uint64_t suma = comienzo + nombre.size();
    for (std::size_t i = 0; i < nombre.size(); i += letrasPorPaso)
        suma = plegar(suma ^ palabra(nombre.substr(i)), factor);
    return static_cast<std::uint32_t>(plegar(suma, factor));
}

}  // namespace

NombreBuscado::NombreBuscado(std::string_view nombre) : texto(nombre), huella(huellaDe(nombre)) {}

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
std::size_t IndiceNombres::casillaDe(std::string_view texto, const NombreBuscado& nombre) const {
    return casillaDe(nombre.huella, [&](const Casilla& casilla) {
        return casilla.huella == nombre.huella &&
               mismoNombre(texto.substr(casilla.comienzo, casilla.largo), nombre.texto);
    });
}

std::optional<std::size_t> IndiceNombres::buscar(std::string_view texto, const NombreBuscado& nombre) const {
    const Casilla& casilla = casillas_[casillaDe(texto, nombre)];
    return casilla.lugar == libre ? std::nullopt : std::optional<std::size_t>(casilla.lugar);
}

void IndiceNombres::anadir(std::string_view texto, const NombreBuscado& nombre, std::size_t lugar,
                           std::size_t comienzo) {
    Casilla& casilla = casillas_[casillaDe(texto, nombre)];
    if (casilla.lugar != libre) return;
    casilla = {static_cast<std::uint32_t>(lugar), static_cast<std::uint32_t>(comienzo),
               static_cast<std::uint32_t>(nombre.texto.size()), nombre.huella};
    if (++ocupadas_ > casillas_.size() / 4 * 3) crecer();
}

void IndiceNombres::mover(std::size_t lugar, std::size_t pasos) {
    for (Casilla& casilla : casillas_) {
        if (casilla.lugar == lugar) casilla.comienzo = casilla.lugar;
        if (casilla.lugar == libre || casilla.lugar <= lugar) continue;
        casilla.lugar += static_cast<std::uint32_t>(pasos);
        casilla.comienzo += static_cast<std::uint32_t>(pasos);
    }
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
