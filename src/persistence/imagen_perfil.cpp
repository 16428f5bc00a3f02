#include "persistence/imagen_perfil.h"

#include "model/blancos.h"
#include "model/windows1252.h"

#include <algorithm>
#include <utility>

namespace bosquel {

namespace {

constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

bool tieneFin(std::string_view texto) {
    return !texto.empty() && esSalto(texto.back());
}

/// The first section head from the beginning of a line on.
std::optional<Linea> cabeceraDesde(std::string_view texto, std::size_t desde) {
    for (auto i = texto.find('[', desde); i != std::string_view::npos; i = texto.find('[', i + 1)) {
        std::size_t lugar = i;
        while (lugar > desde && esBlanco(texto[lugar - 1]))
            --lugar;
        if (lugar > desde && !esSalto(texto[lugar - 1])) continue;
        const Linea linea = leerLinea(texto, lugar);
        if (linea.clase == Linea::Clase::cabecera) return linea;
    }
    return std::nullopt;
}

/// Which of the names this is, most likely the next one; their number if none.
std::size_t lugarDe(std::span<const std::string_view> nombres, std::string_view nombre,
                    std::size_t siguiente) {
    if (siguiente < nombres.size() && nombres[siguiente] == nombre) return siguiente;
    const auto esEste = [nombre](std::string_view uno) { return mismoNombre(uno, nombre); };
    return static_cast<std::size_t>(std::find_if(nombres.begin(), nombres.end(), esEste) - nombres.begin());
}

/// Where a part of a text begins in it.
std::size_t lugarEn(std::string_view texto, std::string_view parte) {
    return static_cast<std::size_t>(parte.data() - texto.data());
}

bool contieneSalto(std::string_view texto) {
    return std::any_of(texto.begin(), texto.end(), esSalto);
}

}  // namespace

ImagenPerfil::ImagenPerfil(std::string bytes) : texto_(std::move(bytes)) {
    if (texto_.starts_with(marcaUtf8)) comienzo_ = marcaUtf8.size();
    for (auto cabecera = cabeceraDesde(texto_, comienzo_); cabecera;
         cabecera = cabeceraDesde(texto_, cabecera->lugar + cabecera->largo))
        secciones_.anadir(texto_, NombreBuscado(cabecera->nombre), cabecera->lugar,
                          lugarEn(texto_, cabecera->nombre));
    abrir("");
}

void ImagenPerfil::abrir(std::string_view seccion) {
    abierta_.nombre = nombre(seccion);
    const auto cabeza = secciones_.buscar(texto_, NombreBuscado(abierta_.nombre));
    if (haySeccion() && cabeza == abierta_.cabeza) return;
    abierta_.cabeza = cabeza.value_or(ninguna);
    abierta_.recorrido = cabeza ? leerLinea(textoAbierta(), 0).largo : 0;
    abierta_.finConTexto = abierta_.recorrido;
    abierta_.entera = false;
    abierta_.claves.vaciar();
}

/// From the head of the section in hand to the end of what holds it.
std::string_view ImagenPerfil::textoAbierta() const {
    const auto apartada = apartadas_.find(abierta_.cabeza);
    if (apartada != apartadas_.end()) return apartada->second.texto;
    return std::string_view(texto_).substr(abierta_.cabeza);
}

/// The next line of the section in hand that holds a value; nothing at its end.
std::optional<Linea> ImagenPerfil::avanzar() {
    const std::string_view texto = textoAbierta();
    while (!abierta_.entera) {
        const Linea linea = leerLinea(texto, abierta_.recorrido);
        abierta_.entera = linea.largo == 0 || linea.clase == Linea::Clase::cabecera;
        if (abierta_.entera) break;
        abierta_.recorrido += linea.largo;
        if (linea.clase != Linea::Clase::vacia) abierta_.finConTexto = abierta_.recorrido;
        if (linea.clase == Linea::Clase::valor) return linea;
    }
    return std::nullopt;
}

/// The line of a key in the section in hand. Of two with one name the first counts, so that those gone
/// through come before those ahead.
std::optional<Linea> ImagenPerfil::encontrar(const NombreBuscado& clave) {
    const std::string_view texto = textoAbierta();
    if (const auto lugar = abierta_.claves.buscar(texto, clave)) return leerLinea(texto, *lugar);
    while (const auto linea = avanzar()) {
        const std::string_view suya = nombre(linea->nombre);
        const bool esEsta = mismoNombre(suya, clave.texto);
        abierta_.claves.anadir(texto, esEsta ? clave : NombreBuscado(suya), linea->lugar,
                               lugarEn(texto, suya));
        if (esEsta) return linea;
    }
    return std::nullopt;
}

std::optional<std::string_view> ImagenPerfil::valor(std::string_view clave) {
    if (!haySeccion()) return std::nullopt;
    const auto linea = encontrar(NombreBuscado(nombre(clave)));
    return linea ? std::optional(valorLegible(linea->valor)) : std::nullopt;
}

void ImagenPerfil::valores(std::span<const std::string_view> claves,
                           std::span<std::optional<std::string_view>> valores) const {
    std::fill(valores.begin(), valores.end(), std::nullopt);
    if (!haySeccion()) return;
    const std::string_view texto = textoAbierta();
    Linea linea = leerLinea(texto, 0);
    for (std::size_t faltan = claves.size(), siguiente = 0; faltan > 0;) {
        linea = leerLinea(texto, linea.lugar + linea.largo);
        if (linea.largo == 0 || linea.clase == Linea::Clase::cabecera) return;
        if (linea.clase != Linea::Clase::valor) continue;
        const std::size_t i = lugarDe(claves, nombre(linea.nombre), siguiente);
        if (i == claves.size() || valores[i]) continue;
        valores[i] = valorLegible(linea.valor);
        siguiente = i + 1;
        --faltan;
    }
}

bool ImagenPerfil::guardar(std::string_view clave, std::string_view valor) {
    clave = nombre(clave);
    const bool esNueva = !haySeccion();
    if (esNueva) ponerCabeza();
    const NombreBuscado buscada(clave);
    bool cambia = true;
    if (const auto linea = encontrar(buscada))
        cambia = sustituir(*linea, valor);
    else
        anadir(buscada, componer(clave, valor));

    // These alone can make other lines of what was written than those it was meant to be.
    const bool descoloca = (esNueva && contieneSalto(abierta_.nombre)) || contieneSalto(clave) ||
                           contieneSalto(valor) || clave.starts_with('[') ||
                           clave.find('=') != std::string_view::npos;
    if (descoloca) rehacer();
    return cambia;
}

/// The line of a key, good until the next one is asked for.
std::string_view ImagenPerfil::componer(std::string_view clave, std::string_view valor) {
    linea_.clear();
    return linea_.append(clave).append("=").append(valor).append(finDeLinea);
}

/// The section in hand comes into being at the end of the file.
void ImagenPerfil::ponerCabeza() {
    if (texto_.size() > comienzo_ && !tieneFin(texto_)) texto_ += finDeLinea;
    if (!secciones_.vacio()) texto_ += finDeLinea;
    abierta_.cabeza = texto_.size();
    texto_.append("[").append(abierta_.nombre).append("]").append(finDeLinea);
    abierta_.recorrido = abierta_.finConTexto = texto_.size() - abierta_.cabeza;
    abierta_.entera = true;
    secciones_.anadir(texto_, NombreBuscado(abierta_.nombre), abierta_.cabeza, abierta_.cabeza + 1);
}

bool ImagenPerfil::crear(std::span<const ValorPerfil> valores) {
    if (contieneSalto(abierta_.nombre) || valores.empty()) return false;
    ponerCabeza();
    for (const auto& [clave, valor] : valores)
        texto_.append(clave).append("=").append(valor).append(finDeLinea);
    abierta_.entera = false;
    return true;
}

/// A new key after the last line with a text, of a section that was gone through to its end.
void ImagenPerfil::anadir(const NombreBuscado& clave, std::string_view linea) {
    if (!tieneFin(textoAbierta().substr(0, abierta_.finConTexto)))
        cambiar(abierta_.finConTexto, 0, finDeLinea);
    const std::size_t lugar = abierta_.finConTexto;
    cambiar(lugar, 0, linea);
    abierta_.claves.anadir(textoAbierta(), clave, lugar, lugar);
}

bool ImagenPerfil::sustituir(const Linea& antes, std::string_view valor) {
    const std::string_view ahora = componer(antes.nombre, valor);
    if (ahora == textoAbierta().substr(antes.lugar, antes.largo)) return false;
    const std::size_t crece = ahora.size() - antes.largo;  // modulo 2^n: it may shrink
    cambiar(antes.lugar, antes.largo, ahora);
    abierta_.claves.mover(antes.lugar, crece);
    return true;
}

/// Puts a text in the place of another in the section in hand, where it was gone through.
void ImagenPerfil::cambiar(std::size_t lugar, std::size_t largo, std::string_view texto) {
    auto apartada = apartadas_.find(abierta_.cabeza);
    if (apartada == apartadas_.end() && finAbierta() == texto_.size()) {
        texto_.replace(abierta_.cabeza + lugar, largo, texto);
    } else {
        if (apartada == apartadas_.end()) {
            const std::size_t suyo = finAbierta() - abierta_.cabeza;
            apartada =
                apartadas_.emplace(abierta_.cabeza, Apartada{suyo, texto_.substr(abierta_.cabeza, suyo)})
                    .first;
        }
        apartada->second.texto.replace(lugar, largo, texto);
    }
    abierta_.recorrido += texto.size() - largo;
    abierta_.finConTexto += texto.size() - largo;
}

/// Where the section in hand, in its place in the file, ends.
std::size_t ImagenPerfil::finAbierta() const {
    const std::size_t hasta = abierta_.cabeza + abierta_.recorrido;
    if (abierta_.entera) return hasta;
    const auto siguiente = cabeceraDesde(texto_, hasta);
    return siguiente ? siguiente->lugar : texto_.size();
}

/// The file with all that was changed in its place.
std::string ImagenPerfil::unir() const {
    std::string todo;
    std::size_t desde = 0;
    for (const auto& [cabeza, apartada] : apartadas_) {
        todo.append(texto_, desde, cabeza - desde).append(apartada.texto);
        desde = cabeza + apartada.largo;
    }
    todo.append(texto_, desde);
    return todo;
}

/// Parses itself anew.
void ImagenPerfil::rehacer() {
    const std::string seccion = std::move(abierta_.nombre);
    *this = ImagenPerfil(unir());
    abrir(seccion);
}

std::string_view ImagenPerfil::bytes(std::string& sitio) const {
    return apartadas_.empty() ? texto_ : sitio = unir();
}

}  // namespace bosquel
