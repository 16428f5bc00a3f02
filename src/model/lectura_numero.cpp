#include "model/blancos.h"
#include "model/cifras.h"
#include "model/numeros.h"
#include "model/textos_numero.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

namespace bosquel {

namespace {

constexpr std::string_view separadores = ",.";
constexpr std::string_view letrasDelExponente = "eE";

bool soloCifras(std::string_view texto) {
    return texto.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string sinSeparadores(std::string_view texto) {
    std::string resultado(texto);
    std::erase_if(resultado, [](char c) { return separadores.find(c) != std::string_view::npos; });
    return resultado;
}

// Takes one sign off the front, if there is one; true if it was a minus.
bool tomarSigno(std::string_view& texto) {
    const bool menos = texto.starts_with('-');
    if (menos || texto.starts_with('+')) texto.remove_prefix(1);
    return menos;
}

// The exponent after its letter, an enormous one held at the end of the range.
std::optional<int> exponente(std::string_view texto) {
    const bool menos = tomarSigno(texto);
    if (texto.empty() || !soloCifras(texto)) return std::nullopt;
    int magnitud = std::numeric_limits<int>::max();
    std::from_chars(texto.data(), texto.data() + texto.size(), magnitud);
    return menos ? -magnitud : magnitud;
}

// What a number has but its sign, checked: digits on either side of the decimal sign, times a power of ten.
struct Numero {
    std::string entera;
    std::string_view fraccion;
    int exponente = 0;
};

// The power of ten above the first digit that counts: it tells a number that is too great from one that is
// too small.
std::int64_t orden(const Numero& numero) {
    const std::string cifras = numero.entera + std::string(numero.fraccion);
    const std::size_t ceros = std::min(cifras.find_first_not_of('0'), cifras.size());
    return static_cast<std::int64_t>(numero.entera.size()) - static_cast<std::int64_t>(ceros) +
           numero.exponente;
}

std::optional<double> valor(const Numero& numero) {
    const std::string texto =
        "0" + numero.entera + "." + std::string(numero.fraccion) + "0e" + textoEntero(numero.exponente);
    double resultado = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), resultado);
    if (error == std::errc()) return resultado;
    return orden(numero) > 0 ? std::nullopt : std::optional(0.0);
}

// As most texts are: up to 15 digits, with a minus sign, a decimal sign or neither. The digits and the power
// of ten are exact, so that their quotient is rounded but once.
std::optional<double> leerLlano(std::string_view texto) {
    const bool menos = texto.starts_with('-');
    if (menos) texto.remove_prefix(1);
    std::uint64_t numero = 0;
    const auto tomarCifras = [&] {
        std::size_t cuantas = 0;
        for (; cuantas < texto.size() && texto[cuantas] >= '0' && texto[cuantas] <= '9'; ++cuantas)
            numero = 10 * numero + static_cast<std::uint64_t>(texto[cuantas] - '0');
        texto.remove_prefix(cuantas);
        return static_cast<int>(cuantas);
    };
    const int enteras = tomarCifras();
    int decimales = 0;
    if (!texto.empty() && texto.front() == separadorDecimal()) {
        texto.remove_prefix(1);
        decimales = tomarCifras();
    }
    const int cifras = enteras + decimales;
    if (!texto.empty() || cifras == 0 || cifras > cifrasDoble) return std::nullopt;
    auto valor = static_cast<double>(numero);
    if (decimales > 0) valor /= potenciaDeDiez(decimales);
    return menos ? -valor : valor;
}

// `decimal` is the place of the decimal sign in the text, or npos. Separators in front of it are grouping.
std::optional<double> leer(std::string_view texto, std::size_t decimal) {
    const std::size_t letra = std::min(texto.find_first_of(letrasDelExponente), texto.size());
    if (decimal != std::string_view::npos && decimal > letra) return std::nullopt;
    std::string_view entera = texto.substr(0, std::min(decimal, letra));
    const bool menos = tomarSigno(entera);

    Numero numero;
    numero.entera = sinSeparadores(entera);
    if (decimal < letra) numero.fraccion = texto.substr(decimal + 1, letra - decimal - 1);
    if (numero.entera.empty() && numero.fraccion.empty()) return std::nullopt;
    if (!soloCifras(numero.entera) || !soloCifras(numero.fraccion)) return std::nullopt;
    if (letra < texto.size()) {
        const std::optional<int> leido = exponente(texto.substr(letra + 1));
        if (!leido) return std::nullopt;
        numero.exponente = *leido;
    }
    const std::optional<double> magnitud = valor(numero);
    return magnitud && menos ? -*magnitud : magnitud;
}

}  // namespace

std::optional<double> realDeTexto(std::string_view texto) {
    texto = sinBlancos(texto);
    const auto llano = leerLlano(texto);
    return llano ? llano : leer(texto, texto.find(separadorDecimal()));
}

std::optional<std::int16_t> entero16DeTexto(std::string_view texto) {
    const std::optional<double> valor = realDeTexto(texto);
    return valor ? entero16(*valor) : std::nullopt;
}

std::optional<std::int32_t> entero32DeTexto(std::string_view texto) {
    const std::optional<double> valor = realDeTexto(texto);
    return valor ? entero32(*valor) : std::nullopt;
}

std::optional<double> realTecleado(std::string_view texto) {
    texto = sinBlancos(texto);
    return leer(texto, texto.find_last_of(separadores));
}

std::optional<double> enteroTecleado(std::string_view texto) {
    return leer(sinBlancos(texto), std::string_view::npos);
}

}  // namespace bosquel
