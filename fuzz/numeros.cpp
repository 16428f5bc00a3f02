#include "model/numeros.h"

#include "exigir.h"
#include "model/textos_numero.h"

#include <array>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

// Texts to numbers and numbers to texts under both decimal separators, held against the plain way of doing
// it: the bytes are a text that is read, and the number that their first eight are is written.

using namespace bosquel;
using fuzz::exigir;

namespace {

bool esCifra(char c) {
    return c >= '0' && c <= '9';
}

std::string sinBlancosIngenuo(std::string texto) {
    const auto blanco = [](char c) { return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1A'; };
    while (!texto.empty() && blanco(texto.front()))
        texto.erase(texto.begin());
    while (!texto.empty() && blanco(texto.back()))
        texto.pop_back();
    return texto;
}

/// The number that a text is, letter by letter; under the locale "C", for `strtod` follows it.
std::optional<double> leerIngenuo(const std::string& texto, std::optional<char> decimal, char grupo) {
    std::string llano;
    std::size_t i = 0;
    const auto cifras = [&](bool agrupadas) {
        const std::size_t antes = llano.size();
        for (; i < texto.size() && (esCifra(texto[i]) || (agrupadas && texto[i] == grupo)); ++i)
            if (esCifra(texto[i])) llano += texto[i];
        return llano.size() > antes;
    };
    const auto signo = [&] {
        if (i < texto.size() && (texto[i] == '+' || texto[i] == '-')) llano += texto[i++];
    };
    signo();
    bool hay = cifras(true);
    if (i < texto.size() && texto[i] == decimal) {
        llano += '.';
        ++i;
        hay = cifras(false) || hay;
    }
    if (!hay) return std::nullopt;
    if (i < texto.size() && (texto[i] == 'e' || texto[i] == 'E')) {
        llano += 'e';
        ++i;
        signo();
        if (!cifras(false)) return std::nullopt;
    }
    const double valor = std::strtod(llano.c_str(), nullptr);
    return i == texto.size() && std::isfinite(valor) ? std::optional(valor) : std::nullopt;
}

/// The last separator is the decimal sign, whatever the locale.
std::optional<double> leerTecleadoIngenuo(std::string texto) {
    const auto decimal = texto.find_last_of(",.");
    if (decimal == std::string::npos) return leerIngenuo(texto, '.', ',');
    for (std::size_t i = decimal; i-- > 0;)
        if (texto[i] == ',' || texto[i] == '.') texto[i] = ',';
    texto[decimal] = '.';
    return leerIngenuo(texto, '.', ',');
}

std::optional<double> leerEnteroIngenuo(std::string texto) {
    for (char& c : texto)
        if (c == '.') c = ',';
    return leerIngenuo(texto, std::nullopt, ',');
}

/// All the digits there are, rounded as at school; with a point.
std::string escribirIngenuo(double valor, std::size_t cuantas) {
    if (!std::isfinite(valor) || valor == 0) return "0";
    std::array<char, 1024> sitio{};
    std::snprintf(sitio.data(), sitio.size(), "%.780e", std::abs(valor));
    const std::string todo = sitio.data();
    int exponente = std::atoi(todo.c_str() + todo.find('e') + 1);
    std::string cifras = "0" + todo.substr(0, 1) + todo.substr(2, todo.find('e') - 2);
    const bool sube = cifras[cuantas + 1] >= '5';
    cifras.resize(cuantas + 1);
    std::size_t i = cuantas;
    for (; sube && cifras[i] == '9'; --i)
        cifras[i] = '0';
    if (sube) ++cifras[i];
    if (cifras[0] == '1')
        ++exponente;
    else
        cifras.erase(0, 1);
    cifras.resize(cifras.find_last_not_of('0') + 1);

    const std::string signo = valor < 0 ? "-" : "";
    if (exponente < -5 || exponente >= static_cast<int>(cuantas)) {
        std::snprintf(sitio.data(), sitio.size(), "E%+03d", exponente);
        return signo + cifras.substr(0, 1) + (cifras.size() > 1 ? "." + cifras.substr(1) : "") + sitio.data();
    }
    if (exponente < 0)
        return signo + "0." + std::string(static_cast<std::size_t>(-exponente - 1), '0') + cifras;
    const auto enteras = static_cast<std::size_t>(exponente) + 1;
    if (cifras.size() <= enteras) return signo + cifras + std::string(enteras - cifras.size(), '0');
    return signo + cifras.substr(0, enteras) + "." + cifras.substr(enteras);
}

std::string cambiar(std::string texto, char de, char a) {
    for (char& c : texto)
        if (c == de) c = a;
    return texto;
}

bool mismo(std::optional<double> uno, std::optional<double> otro) {
    return uno.has_value() == otro.has_value() && (!uno || *uno == *otro);
}

template <class Entero>
bool esElEntero(std::optional<Entero> leido, std::optional<double> real) {
    const double redondo = real ? std::nearbyint(*real) : 0;
    const bool cabe = real && redondo >= std::numeric_limits<Entero>::min() &&
                      redondo <= std::numeric_limits<Entero>::max();
    return leido.has_value() == cabe && (!leido || *leido == redondo);
}

/// What the plain way says of a text and of a number, while the locale is "C".
struct Esperado {
    std::optional<double> real, tecleado, entero;
    std::string doble, simple;
};

void comprobarLectura(const std::string& texto, const Esperado& esperado, char decimal) {
    exigir(mismo(realDeTexto(texto), esperado.real), "a real is read");
    exigir(mismo(realTecleado(texto), esperado.tecleado), "a typed real is read");
    exigir(mismo(enteroTecleado(texto), esperado.entero), "a typed whole number is read");
    exigir(esElEntero(entero16DeTexto(texto), esperado.real), "16 bits are read");
    exigir(esElEntero(entero32DeTexto(texto), esperado.real), "32 bits are read");
    exigir(UnificarFormato(texto) == cambiar(texto, ',', '.'), "UnificarFormato");
    exigir(AplicarFormato(texto) == cambiar(texto, '.', decimal), "AplicarFormato");
}

void comprobarEscritura(double valor, const Esperado& esperado, char decimal) {
    exigir(textoReal(valor) == cambiar(esperado.doble, '.', decimal), "a 64-bit real is written");
    exigir(textoReal(simple(valor)) == cambiar(esperado.simple, '.', decimal), "a 32-bit real is written");
    if (!std::isfinite(valor)) return;
    // The greatest values round to more than a real can hold.
    if (const auto vuelta = realDeTexto(textoReal(valor)))
        exigir(textoReal(*vuelta) == textoReal(valor), "a text that was read is written again");
    exigir(enteroTecleado(formatoEntero(valor)) == std::round(valor), "formatoEntero comes back");
    for (const auto formato : {formatoMetros, formatoSinGrupos})
        exigir(formato(realTecleado(formato(valor)).value()) == formato(valor), "metres come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    const std::string texto(datos, datos + cuantos);
    const std::string limpio = sinBlancosIngenuo(texto);
    double valor = 0;
    if (cuantos >= sizeof valor) std::memcpy(&valor, datos, sizeof valor);

    struct Caso {
        const char* idioma;
        char decimal, grupo;
    };
    for (const auto& [idioma, decimal, grupo] : {Caso{"C", '.', ','}, Caso{"es_ES.UTF-8", ',', '.'}}) {
        std::setlocale(LC_ALL, "C");
        for (const double numero : {valor, leerIngenuo(limpio, decimal, grupo).value_or(0)}) {
            std::setlocale(LC_ALL, "C");
            const Esperado esperado{leerIngenuo(limpio, decimal, grupo), leerTecleadoIngenuo(limpio),
                                    leerEnteroIngenuo(limpio), escribirIngenuo(numero, 15),
                                    escribirIngenuo(simple(numero), 7)};
            exigir(std::setlocale(LC_ALL, idioma) != nullptr, "the locale is installed");
            comprobarLectura(texto, esperado, decimal);
            comprobarEscritura(numero, esperado, decimal);
        }
    }
    return 0;
}
