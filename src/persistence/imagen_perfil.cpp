#include "persistence/imagen_perfil.h"

#include "persistence/lineas_perfil.h"

#include <utility>

namespace bosquel {

namespace {

constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

std::string_view lineaEn(std::string_view texto, std::size_t lugar) {
    texto.remove_prefix(lugar);
    return tomarLinea(texto);
}

std::string_view seccionEn(std::string_view texto, std::size_t lugar) {
    return nombreDeCabecera(lineaEn(texto, lugar)).value_or("");
}

std::string_view claveEn(std::string_view texto, std::size_t lugar) {
    const auto par = parDeLinea(lineaEn(texto, lugar));
    return par ? nombre(par->clave) : std::string_view();
}

/// Calls `paso(linea, lugar)` for every line from `lugar` on, until it says false.
template <class Paso>
void porLineas(std::string_view texto, std::size_t lugar, Paso paso) {
    for (std::string_view resto = texto.substr(lugar); !resto.empty();) {
        const std::string_view linea = tomarLinea(resto);
        if (!paso(linea, lugar)) return;
        lugar += linea.size();
    }
}

std::string lineaDeClave(std::string_view clave, std::string_view valor) {
    std::string linea;
    linea.reserve(clave.size() + 1 + valor.size() + finDeLinea.size());
    return linea.append(clave).append("=").append(valor).append(finDeLinea);
}

bool contieneSalto(std::string_view texto) {
    return texto.find_first_of(finDeLinea) != std::string_view::npos;
}

}  // namespace

ImagenPerfil::ImagenPerfil(std::string bytes)
    : texto_(std::move(bytes)), secciones_(seccionEn), abierta_{.claves = IndiceNombres(claveEn)} {
    if (texto_.starts_with(marcaUtf8)) comienzo_ = marcaUtf8.size();
    porLineas(texto_, comienzo_, [this](std::string_view linea, std::size_t lugar) {
        if (nombreDeCabecera(linea)) secciones_.anadir(texto_, lugar);
        return true;
    });
}

bool ImagenPerfil::haySeccion(std::string_view seccion) const {
    return secciones_.buscar(texto_, nombre(seccion)).has_value();
}

std::string_view ImagenPerfil::textoAbierta() const {
    const auto apartada = apartadas_.find(abierta_.cabeza);
    if (apartada != apartadas_.end()) return apartada->second.texto;
    return std::string_view(texto_).substr(abierta_.cabeza, abierta_.largo);
}

/// Takes a section in hand. False if there is none of that name.
bool ImagenPerfil::abrir(std::string_view seccion) const {
    const auto cabeza = secciones_.buscar(texto_, seccion);
    if (!cabeza) return false;
    if (*cabeza == abierta_.cabeza) return true;
    abierta_.cabeza = *cabeza;
    abierta_.claves.vaciar();
    const auto apartada = apartadas_.find(*cabeza);
    const std::string_view texto = apartada == apartadas_.end() ? std::string_view(texto_).substr(*cabeza)
                                                                : std::string_view(apartada->second.texto);
    abierta_.largo = texto.size();
    porLineas(texto, 0, [&](std::string_view linea, std::size_t lugar) {
        if (lugar > 0 && nombreDeCabecera(linea)) {
            abierta_.largo = lugar;
            return false;
        }
        if (!esVacia(linea)) abierta_.finConTexto = lugar + linea.size();
        if (parDeLinea(linea)) abierta_.claves.anadir(texto, lugar);
        return true;
    });
    return true;
}

std::optional<std::string_view> ImagenPerfil::valor(std::string_view seccion, std::string_view clave) const {
    if (!abrir(nombre(seccion))) return std::nullopt;
    const std::string_view texto = textoAbierta();
    const auto lugar = abierta_.claves.buscar(texto, nombre(clave));
    if (!lugar) return std::nullopt;
    return valorLegible(parDeLinea(lineaEn(texto, *lugar))->valor);
}

bool ImagenPerfil::guardar(std::string_view seccion, std::string_view clave, std::string_view valor) {
    seccion = nombre(seccion);
    clave = nombre(clave);
    bool cambia = true;
    if (!abrir(seccion))
        crear(seccion, lineaDeClave(clave, valor));
    else if (const auto lugar = abierta_.claves.buscar(textoAbierta(), clave))
        cambia = sustituir(*lugar, valor);
    else
        anadir(lineaDeClave(clave, valor));

    // These alone can make other lines of what was written than those it was meant to be.
    const bool descoloca =
        contieneSalto(seccion) || contieneSalto(clave) || contieneSalto(valor) || clave.starts_with('[');
    if (descoloca) *this = ImagenPerfil(bytes());
    return cambia;
}

/// A new section at the end of the file, with its first key.
void ImagenPerfil::crear(std::string_view seccion, std::string_view linea) {
    if (texto_.size() > comienzo_ && !tieneFin(texto_)) texto_ += finDeLinea;
    if (!secciones_.vacio()) texto_ += finDeLinea;
    const std::size_t cabeza = texto_.size();
    texto_.append("[").append(seccion).append("]").append(finDeLinea).append(linea);
    secciones_.anadir(texto_, cabeza);
    abierta_.cabeza = ninguna;
}

/// A new key after the last line with a text.
void ImagenPerfil::anadir(const std::string& linea) {
    std::size_t lugar = abierta_.finConTexto;
    if (!tieneFin(textoAbierta().substr(0, lugar))) {
        cambiar(lugar, 0, finDeLinea);
        lugar += finDeLinea.size();
    }
    cambiar(lugar, 0, linea);
    abierta_.finConTexto = lugar + linea.size();
    if (parDeLinea(linea)) abierta_.claves.anadir(textoAbierta(), lugar);
}

bool ImagenPerfil::sustituir(std::size_t lugar, std::string_view valor) {
    const std::string_view antes = lineaEn(textoAbierta(), lugar);
    const std::string ahora = lineaDeClave(parDeLinea(antes)->clave, valor);
    if (ahora == antes) return false;
    const std::size_t crece = ahora.size() - antes.size();  // modulo 2^n: it may shrink
    cambiar(lugar, antes.size(), ahora);
    abierta_.claves.desplazar(lugar + 1, crece);
    abierta_.finConTexto += crece;
    return true;
}

/// Puts a text in the place of another in the section in hand.
void ImagenPerfil::cambiar(std::size_t lugar, std::size_t largo, std::string_view texto) {
    const bool esLaUltima = abierta_.cabeza + abierta_.largo == texto_.size();
    auto apartada = apartadas_.find(abierta_.cabeza);
    if (apartada == apartadas_.end() && esLaUltima) {
        texto_.replace(abierta_.cabeza + lugar, largo, texto);
        abierta_.largo = texto_.size() - abierta_.cabeza;
        return;
    }
    if (apartada == apartadas_.end())
        apartada =
            apartadas_.emplace(abierta_.cabeza, Apartada{abierta_.largo, std::string(textoAbierta())}).first;
    apartada->second.texto.replace(lugar, largo, texto);
}

std::string ImagenPerfil::bytes() const {
    std::string todo;
    std::size_t desde = 0;
    for (const auto& [cabeza, apartada] : apartadas_) {
        todo.append(texto_, desde, cabeza - desde).append(apartada.texto);
        desde = cabeza + apartada.largo;
    }
    return todo.append(texto_, desde);
}

}  // namespace bosquel
