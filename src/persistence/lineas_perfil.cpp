#include "persistence/lineas_perfil.h"

#include <optional>

namespace bosquel {

namespace {

constexpr std::size_t valorMasLargo = 254;

std::string_view hastaElNulo(std::string_view texto) {
    return texto.substr(0, texto.find('\0'));
}

bool entreComillas(std::string_view texto) {
    return texto.size() >= 2 && texto.front() == texto.back() &&
           (texto.front() == '"' || texto.front() == '\'');
}

std::optional<std::string_view> nombreDeCabecera(std::string_view contenido) {
    if (!contenido.starts_with('[')) return std::nullopt;
    const std::size_t cierre = contenido.rfind(']');
    if (cierre == std::string_view::npos) return std::nullopt;
    return nombre(contenido.substr(1, cierre - 1));
}

}  // namespace

Linea leerLinea(std::string_view texto, std::size_t lugar) {
    const auto* const principio = texto.begin() + lugar;
    const auto* const igual =
        std::find_if(principio, texto.end(), [](char c) { return c == '=' || esSalto(c); });
    const auto* fin = std::find_if(igual, texto.end(), esSalto);
    const std::string_view contenido = sinBlancos({principio, fin});
    const std::size_t largoFin = std::string_view(fin, texto.end()).starts_with(finDeLinea) ? 2 : 1;
    const auto largo = static_cast<std::size_t>(fin - principio) + (fin == texto.end() ? 0 : largoFin);
    if (const auto cabecera = nombreDeCabecera(contenido))
        return {lugar, largo, Linea::Clase::cabecera, *cabecera, {}};
    if (igual != fin)
        return {lugar, largo, Linea::Clase::valor, sinBlancos({principio, igual}),
                sinBlancos({igual + 1, fin})};
    return {lugar, largo, contenido.empty() ? Linea::Clase::vacia : Linea::Clase::otra, {}, {}};
}

std::string_view nombre(std::string_view texto) {
    return sinBlancos(hastaElNulo(texto));
}

std::string_view valorLegible(std::string_view valor) {
    valor = sinBlancos(hastaElNulo(valor));
    if (entreComillas(valor)) valor = valor.substr(1, valor.size() - 2);
    return valor.substr(0, valorMasLargo);
}

}  // namespace bosquel
