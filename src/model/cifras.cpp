#include "model/cifras.h"

#include "model/numeros.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace bosquel {

namespace {

// The longest expansion is that of the greatest denormal number.
constexpr int cifrasDelMasLargo = 767;

void limpiarCeros(Cifras& numero) {
    while (!numero.cifras.empty() && numero.cifras.back() == '0')
        numero.cifras.pop_back();
    if (numero.cifras.empty()) numero = {};
}

// Adds one to the last digit. Nines carry; nothing but nines (or no digits at all) becomes the next power.
void subir(Cifras& numero) {
    numero.cifras.resize(numero.cifras.find_last_not_of('9') + 1);
    if (numero.cifras.empty()) {
        numero.cifras += '1';
        ++numero.punto;
    } else {
        ++numero.cifras.back();
    }
}

/// The digits of a finite value from its text, "d.ddde+dd" or "de+dd".
Cifras leerCientifico(double valor, std::string_view texto) {
    const std::size_t letra = texto.find('e');
    Cifras numero;
    numero.negativo = std::signbit(valor);
    numero.cifras = texto.substr(0, 1);
    if (letra > 2) numero.cifras.append(texto, 2, letra - 2);
    int exponente = 0;
    std::from_chars(texto.data() + letra + 2, texto.data() + texto.size(), exponente);
    numero.punto = (texto[letra + 1] == '-' ? -exponente : exponente) + 1;
    limpiarCeros(numero);
    return numero;
}

template <class... Precision>
Cifras cientifico(double valor, Precision... precision) {
    if (!std::isfinite(valor)) return {};
    std::array<char, cifrasDelMasLargo + 8> sitio;  // NOLINT(*-member-init): the text is all that is read
    const auto [fin, error] = std::to_chars(sitio.begin(), sitio.end(), std::abs(valor),
                                            std::chars_format::scientific, precision...);
    return leerCientifico(valor, {sitio.data(), static_cast<std::size_t>(fin - sitio.data())});
}

double valorDe(const Decimal& decimal) {
    return static_cast<double>(decimal.numero) / potenciaDeDiez(decimal.decimales);
}

/// With so many decimals; a half goes up.
Decimal redondeado(double magnitud, int decimales) {
    return {static_cast<std::uint64_t>(std::llround(magnitud * potenciaDeDiez(decimales))), decimales};
}

/// A 32-bit real with a fraction, in so many digits, 7 at most. Times a power of ten up to the last one here
/// it still has all its bits in 64.
std::optional<Decimal> decimalSimple(double magnitud, int cuantas) {
    constexpr int masDecimales = 11;
    const double menor = potenciaDeDiez(cuantas - 1);
    for (int decimales = 0; decimales <= masDecimales; ++decimales)
        if (magnitud * potenciaDeDiez(decimales) >= menor) return redondeado(magnitud, decimales);
    return std::nullopt;
}

/// A real of few decimals and so many digits at most: the one that reads back as the value.
std::optional<Decimal> decimalDoble(double magnitud, int cuantas) {
    constexpr int pocosDecimales = 3;
    for (int decimales = 1; decimales <= pocosDecimales; ++decimales) {
        const Decimal decimal = redondeado(magnitud, decimales);
        const bool cabe = static_cast<double>(decimal.numero) < potenciaDeDiez(cuantas);
        if (cabe && valorDe(decimal) == magnitud) return decimal;
    }
    return std::nullopt;
}

/// At least as many digits as a value has, not counting zeros at the end: those before the decimal sign, and
/// one for each binary place behind it.
int cifrasDe(double valor) {
    if (valor == 0 || !std::isfinite(valor)) return 1;
    constexpr double cifrasPorBit = 0.30103;
    const int exponente = std::ilogb(valor);
    const int enteras = exponente < 0 ? 0 : static_cast<int>((exponente + 1) * cifrasPorBit) + 1;
    const int binarias = std::max(0, std::numeric_limits<double>::digits - 1 - exponente);
    return std::min(enteras + binarias, cifrasDelMasLargo);
}

}  // namespace

Cifras cifrasExactas(double valor) {
    return cientifico(valor, cifrasDe(valor) - 1);
}

std::optional<Decimal> decimalCorto(double magnitud, int cuantas) {
    if (!(magnitud < potenciaDeDiez(cuantas) - 1)) return std::nullopt;
    if (const Decimal entero = redondeado(magnitud, 0); valorDe(entero) == magnitud) return entero;
    const bool esSimple = cuantas <= cifrasSimple && simple(magnitud) == magnitud;
    return esSimple ? decimalSimple(magnitud, cuantas) : decimalDoble(magnitud, cuantas);
}

Cifras primerasCifras(double valor, int cuantas) {
    // The shortest text that reads back as the value is what the exact one rounds to, as soon as it is short
    // enough: decimals of 15 digits lie further apart than binary values do. Denormal ones apart, that is.
    Cifras corto = cientifico(valor);
    const bool basta =
        static_cast<int>(corto.cifras.size()) <= cuantas && (std::isnormal(valor) || valor == 0);
    if (!basta) corto = recortar(cifrasExactas(valor), cuantas);
    return corto;
}

Cifras recortar(Cifras numero, int cuantas) {
    if (cuantas >= static_cast<int>(numero.cifras.size())) return numero;
    const auto corte = static_cast<std::size_t>(std::max(cuantas, 0));
    const bool sube = cuantas >= 0 && numero.cifras[corte] >= '5';
    numero.cifras.resize(corte);
    if (sube) subir(numero);
    limpiarCeros(numero);
    return numero;
}

Partes partir(const Cifras& numero) {
    const auto enteras = static_cast<std::size_t>(std::max(numero.punto, 0));
    const auto ceros = static_cast<std::size_t>(std::max(-numero.punto, 0));
    if (enteras == 0) return {"0", std::string(ceros, '0') + numero.cifras};
    Partes partes{numero.cifras, {}};
    partes.entera.resize(enteras, '0');
    if (enteras < numero.cifras.size()) partes.fraccion = numero.cifras.substr(enteras);
    return partes;
}

}  // namespace bosquel
