#include "model/textos_numero.h"

#include "model/cifras.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace bosquel {

namespace {

constexpr int menorExponenteLlano = -5;
constexpr std::size_t millar = 3;

#ifdef LC_MESSAGES
constexpr int categoriaDelIdioma = LC_MESSAGES;
#else
constexpr int categoriaDelIdioma = LC_CTYPE;
#endif

char separadorDeMillares() {
    return separadorDecimal() == ',' ? '.' : ',';
}

std::string signo(const Cifras& numero) {
    return numero.negativo ? "-" : "";
}

std::string unir(const std::string& entera, const std::string& fraccion) {
    return fraccion.empty() ? entera : entera + separadorDecimal() + fraccion;
}

std::string llano(const Cifras& numero) {
    const auto [entera, fraccion] = partir(numero);
    return unir(entera, fraccion);
}

std::string conExponente(const Cifras& numero) {
    const int exponente = numero.punto - 1;
    const std::string magnitud = textoEntero(std::abs(exponente));
    return unir(numero.cifras.substr(0, 1), numero.cifras.substr(1)) + (exponente < 0 ? "E-" : "E+") +
           (magnitud.size() < 2 ? "0" : "") + magnitud;
}

std::string textoDeDecimal(bool menos, const Decimal& decimal) {
    constexpr std::size_t sobra = 3;              // both signs and a zero in front
    std::array<char, cifrasDoble + sobra> sitio;  // NOLINT(*-member-init): the text is all that is read
    const auto divisor = static_cast<std::uint64_t>(potenciaDeDiez(decimal.decimales));
    auto* fin = sitio.data();
    if (menos && decimal.numero > 0) *fin++ = '-';
    fin = std::to_chars(fin, sitio.end(), decimal.numero / divisor).ptr;
    if (const std::uint64_t fraccion = decimal.numero % divisor; fraccion > 0) {
        auto* const signo = fin;
        fin = std::to_chars(fin, sitio.end(), divisor + fraccion).ptr;  // a one, and all zeros behind it
        *signo = separadorDecimal();
        while (*(fin - 1) == '0')
            --fin;
    }
    return {sitio.data(), fin};
}

std::string textoDeReal(double valor, int cifras) {
    if (const auto decimal = decimalCorto(std::abs(valor), cifras))
        return textoDeDecimal(std::signbit(valor), *decimal);
    const Cifras numero = primerasCifras(valor, cifras);
    if (numero.cifras.empty()) return "0";
    const int exponente = numero.punto - 1;
    const bool esLlano = exponente >= menorExponenteLlano && exponente < cifras;
    return signo(numero) + (esLlano ? llano(numero) : conExponente(numero));
}

std::string agrupar(std::string entera) {
    const char grupo = separadorDeMillares();
    for (std::size_t i = entera.size(); i > millar;)
        entera.insert(i -= millar, 1, grupo);
    return entera;
}

std::string formato(double valor, int decimales, bool agrupado = true) {
    const Cifras exactas = cifrasExactas(valor);
    const Cifras numero = recortar(exactas, exactas.punto + decimales);
    auto [entera, fraccion] = partir(numero);
    fraccion.resize(static_cast<std::size_t>(decimales), '0');
    return signo(numero) + unir(agrupado ? agrupar(entera) : entera, fraccion);
}

std::string reemplazar(std::string_view texto, char viejo, char nuevo) {
    std::string resultado(texto);
    std::replace(resultado.begin(), resultado.end(), viejo, nuevo);
    return resultado;
}

}  // namespace

char separadorDecimal() {
    return *std::localeconv()->decimal_point == ',' ? ',' : '.';
}

bool idiomaEspanol() {
    const char* nombre = std::setlocale(categoriaDelIdioma, nullptr);
    return nombre != nullptr && std::string_view(nombre).starts_with("es");
}

std::string textoReal(double valor) {
    return textoDeReal(valor, cifrasDoble);
}
std::string textoReal(float valor) {
    return textoDeReal(valor, cifrasSimple);
}

std::string textoEntero(std::int32_t valor) {
    std::array<char, 12> sitio{};
    return {sitio.data(), std::to_chars(sitio.begin(), sitio.end(), valor).ptr};
}

std::string formatoMetros(double valor) {
    return formato(valor, 2);
}
std::string formatoEntero(double valor) {
    return formato(valor, 0);
}
std::string formatoSinGrupos(double valor) {
    return formato(valor, 2, false);
}

std::string UnificarFormato(std::string_view texto) {
    return reemplazar(texto, ',', '.');
}
std::string AplicarFormato(std::string_view texto) {
    return reemplazar(texto, '.', separadorDecimal());
}

}  // namespace bosquel
