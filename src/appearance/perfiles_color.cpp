#include "appearance/perfiles_color.h"

#include "model/numeros.h"
#include "model/textos_numero.h"
#include "persistence/perfiles.h"

#include <algorithm>

namespace bosquel {

namespace {

constexpr char separador = '#';
constexpr const char* seccionCarga = "Carga";
constexpr const char* claveNumero = "NumeroPerfiles";

std::string clavePerfil(int numero) {
    return "Perfil" + textoEntero(numero);
}

/// A number that cannot be read, or none that counts anything, is 0.
std::int16_t numeroDePerfiles(const ArchivoPerfil& archivo) {
    return std::max<std::int16_t>(entero16DeTexto(archivo.leer(seccionCarga, claveNumero)).value_or(0), 0);
}

void anotarNombre(ArchivoPerfil& archivo, const std::string& nombre) {
    std::int16_t numero = numeroDePerfiles(archivo);
    avanzar(numero);
    archivo.guardar(seccionCarga, claveNumero, textoEntero(numero));
    archivo.guardar(seccionCarga, clavePerfil(numero), nombre);
}

}  // namespace

std::string unirColores(std::span<const Color> colores) {
    std::string lista;
    for (const Color color : colores) {
        if (!lista.empty()) lista += separador;
        lista += textoEntero(color);
    }
    return lista;
}

std::string constanteDe(ListaColor lista) {
    return unirColores(std::vector(datos(lista).cuantos, datos(lista).constante));
}

std::vector<std::string_view> partirColores(std::string_view lista) {
    std::vector<std::string_view> partes;
    for (auto fin = lista.find(separador); fin != std::string_view::npos; fin = lista.find(separador)) {
        partes.push_back(lista.substr(0, fin));
        lista.remove_prefix(fin + 1);
    }
    partes.push_back(lista);
    return partes;
}

std::vector<std::string> PerfilesColor::nombres() const {
    const ArchivoPerfil archivo(fichero_);
    std::vector<std::string> todos;
    for (int i = 1, cuantos = numeroDePerfiles(archivo); i <= cuantos; ++i)
        todos.push_back(archivo.leer(seccionCarga, clavePerfil(i)));
    return todos;
}

std::string PerfilesColor::leer(const std::string& nombre, ListaColor lista) const {
    return LeerIni(fichero_, datos(lista).seccion, nombre, sinLinea);
}

void PerfilesColor::guardar(const std::string& nombre,
                            const std::array<std::string, listasColor.size()>& listas) const {
    ArchivoPerfil archivo(fichero_);
    if (!existe(nombre)) anotarNombre(archivo, nombre);
    for (std::size_t i = 0; i < listas.size(); ++i)
        archivo.guardar(listasColor[i].seccion, nombre, listas[i]);
    archivo.volcar();
}

}  // namespace bosquel
