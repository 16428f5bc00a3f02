#include "persistence/imagen_perfil.h"

#include "model/windows1252.h"
#include "persistence/lineas_perfil.h"

#include <utility>

namespace bosquel {

namespace {

constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

// Supplies the end of a last line that has none, since something is to follow it.
void completar(std::string& texto) {
    if (!texto.empty() && !tieneFin(texto)) texto += finDeLinea;
}

std::string lineaDeClave(std::string_view clave, std::string_view valor) {
    std::string linea;
    linea.reserve(clave.size() + 1 + valor.size() + finDeLinea.size());
    return linea.append(clave).append("=").append(valor).append(finDeLinea);
}

std::string lineaDeCabecera(std::string_view seccion) {
    return std::string("[").append(seccion).append("]").append(finDeLinea);
}

bool contieneSalto(std::string_view texto) {
    return texto.find_first_of(finDeLinea) != std::string_view::npos;
}

}  // namespace

ImagenPerfil::ImagenPerfil(std::string_view bytes) {
    if (bytes.starts_with(marcaUtf8)) {
        marca_ = marcaUtf8;
        bytes.remove_prefix(marcaUtf8.size());
    }
    while (!bytes.empty())
        anadir(tomarLinea(bytes));
}

void ImagenPerfil::anadir(std::string_view linea) {
    if (const auto nombre = nombreDeCabecera(linea)) {
        abrir(linea, *nombre);
    } else if (secciones_.empty()) {
        preambulo_ += linea;
    } else {
        secciones_.back().anadir(linea);
    }
}

void ImagenPerfil::abrir(std::string_view cabecera, std::string_view nombre) {
    indice_.try_emplace(plegar(nombre), secciones_.size());
    secciones_.emplace_back().cabecera = cabecera;
}

void ImagenPerfil::crear(std::string_view nombre) {
    completar(secciones_.empty() ? preambulo_ : secciones_.back().ultima());
    if (!secciones_.empty()) secciones_.back().cola += finDeLinea;
    abrir(lineaDeCabecera(nombre), nombre);
}

void ImagenPerfil::Seccion::anadir(std::string_view linea) {
    if (esVacia(linea)) {
        cola += linea;
        return;
    }
    if (!cola.empty()) lineas.push_back(std::exchange(cola, {}));
    anadirConTexto(std::string(linea));
}

void ImagenPerfil::Seccion::anadirConTexto(std::string linea) {
    if (const auto par = parDeLinea(linea)) claves.try_emplace(plegar(nombre(par->clave)), lineas.size());
    lineas.push_back(std::move(linea));
}

bool ImagenPerfil::Seccion::guardar(std::string_view clave, std::string_view valor) {
    const auto lugar = buscar(claves, clave);
    if (!lugar) {
        completar(ultimaConTexto());
        anadirConTexto(lineaDeClave(clave, valor));
        return true;
    }
    std::string& linea = lineas[*lugar];
    std::string nueva = lineaDeClave(parDeLinea(linea)->clave, valor);
    const bool cambia = nueva != linea;
    linea = std::move(nueva);
    return cambia;
}

std::optional<std::size_t> ImagenPerfil::buscar(const Indice& indice, std::string_view nombre) {
    const auto lugar = indice.find(plegar(nombre));
    return lugar == indice.end() ? std::nullopt : std::optional(lugar->second);
}

std::optional<std::string_view> ImagenPerfil::valor(std::string_view seccion, std::string_view clave) const {
    const auto donde = buscar(indice_, nombre(seccion));
    if (!donde) return std::nullopt;
    const Seccion& encontrada = secciones_[*donde];
    const auto lugar = buscar(encontrada.claves, nombre(clave));
    if (!lugar) return std::nullopt;
    return valorLegible(parDeLinea(encontrada.lineas[*lugar])->valor);
}

bool ImagenPerfil::guardar(std::string_view seccion, std::string_view clave, std::string_view valor) {
    seccion = nombre(seccion);
    clave = nombre(clave);
    const auto donde = buscar(indice_, seccion);
    if (!donde) crear(seccion);
    const bool cambia = (donde ? secciones_[*donde] : secciones_.back()).guardar(clave, valor);

    // These alone can make other lines of what was written than those it was meant to be.
    const bool descoloca =
        contieneSalto(seccion) || contieneSalto(clave) || contieneSalto(valor) || clave.starts_with('[');
    if (descoloca) *this = ImagenPerfil(bytes());
    return cambia;
}

std::string ImagenPerfil::bytes() const {
    std::string todo = marca_ + preambulo_;
    for (const Seccion& seccion : secciones_) {
        todo += seccion.cabecera;
        for (const std::string& linea : seccion.lineas)
            todo += linea;
        todo += seccion.cola;
    }
    return todo;
}

}  // namespace bosquel
