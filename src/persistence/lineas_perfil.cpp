#include "persistence/lineas_perfil.h"

#include "model/blancos.h"

#include <algorithm>

namespace bosquel {

namespace {

constexpr std::size_t valorMasLargo = 254;
constexpr bool esSalto(char c) {
    return c == '\r' || c == '\n';
}

std::string_view sinFin(std::string_view linea) {
    while (tieneFin(linea))
        linea.remove_suffix(1);
    return linea;
}

std::string_view hastaElNulo(std::string_view texto) {
    return texto.substr(0, texto.find('\0'));
}

bool entreComillas(std::string_view texto) {
    return texto.size() >= 2 && texto.front() == texto.back() &&
           (texto.front() == '"' || texto.front() == '\'');
}

}  // namespace

std::string_view tomarLinea(std::string_view& texto) {
    const auto salto =
        static_cast<std::size_t>(std::find_if(texto.begin(), texto.end(), esSalto) - texto.begin());
    const std::size_t fin = texto.substr(salto).starts_with(finDeLinea) ? 2 : 1;
    const std::string_view linea = texto.substr(0, salto + fin);
    texto.remove_prefix(linea.size());
    return linea;
}

bool tieneFin(std::string_view linea) {
    return !linea.empty() && esSalto(linea.back());
}

bool esVacia(std::string_view linea) {
    return sinBlancos(sinFin(linea)).empty();
}

std::string_view nombre(std::string_view texto) {
    return sinBlancos(hastaElNulo(texto));
}

std::optional<std::string_view> nombreDeCabecera(std::string_view linea) {
    const std::string_view texto = sinBlancos(sinFin(linea));
    if (!texto.starts_with('[')) return std::nullopt;
    const std::size_t cierre = texto.rfind(']');
    if (cierre == std::string_view::npos) return std::nullopt;
    return nombre(texto.substr(1, cierre - 1));
}

std::optional<Par> parDeLinea(std::string_view linea) {
    const std::string_view texto = sinFin(linea);
    const std::size_t igual = texto.find('=');
    if (igual == std::string_view::npos || nombreDeCabecera(linea)) return std::nullopt;
    return Par{sinBlancos(texto.substr(0, igual)), sinBlancos(texto.substr(igual + 1))};
}

std::string_view valorLegible(std::string_view valor) {
    valor = sinBlancos(hastaElNulo(valor));
    if (entreComillas(valor)) valor = valor.substr(1, valor.size() - 2);
    return valor.substr(0, valorMasLargo);
}

}  // namespace bosquel
