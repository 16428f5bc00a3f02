#include "model/cifras.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace bosquel {

namespace {

// The longest expansion is that of the greatest denormal number.
constexpr int cifrasDelMasLargo = 767;

void limpiarCeros(Cifras& numero) {
    numero.cifras.resize(numero.cifras.find_last_not_of('0') + 1);
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

}  // namespace

Cifras cifrasExactas(double valor) {
    if (!std::isfinite(valor)) return {};
    std::array<char, cifrasDelMasLargo + 8> sitio{};
    const auto [fin, error] = std::to_chars(sitio.begin(), sitio.end(), std::abs(valor),
                                            std::chars_format::scientific, cifrasDelMasLargo - 1);
    const std::string_view texto(sitio.data(), static_cast<std::size_t>(fin - sitio.data()));  // d.ddde+dd
    const std::size_t letra = texto.find('e');

    Cifras numero;
    numero.negativo = std::signbit(valor);
    numero.cifras.append(texto, 0, 1).append(texto, 2, letra - 2);
    int exponente = 0;
    std::from_chars(texto.data() + letra + 2, fin, exponente);
    numero.punto = (texto[letra + 1] == '-' ? -exponente : exponente) + 1;
    limpiarCeros(numero);
    return numero;
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
