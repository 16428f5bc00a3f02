#include "persistence/perfiles.h"

#include "model/windows1252.h"
#include "persistence/disco.h"
#include "persistence/imagen_perfil.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace bosquel {

namespace {

/// What the caller gets of a value in the file: an empty one is none.
std::optional<std::string_view> legible(std::string_view valor, std::string& sitio) {
    return valor.empty() ? std::nullopt : std::optional(aUtf8(valor, sitio));
}

/// ASCII alone, which is the same in both character sets, and no line break or other control character.
bool esLlano(const ValorPerfil& valor) {
    bool alguno = false;
    for (const char c : valor.valor)
        alguno |= static_cast<signed char>(c) < ' ';
    return !alguno;
}

}  // namespace

struct ArchivoPerfil::Imagen {
    explicit Imagen(std::optional<std::string> bytes)
        : sustituible(bytes.has_value()), contenido(std::move(bytes).value_or("")) {}

    void abrir(std::string_view pedida) {
        if (pedida == seccion) return;
        contenido.abrir(aWindows1252(pedida, clave));
        seccion = pedida;
    }

    bool sustituible;  ///< What stands on disk was read whole, so that nothing in it gets lost.
    bool cambiada = false;
    ImagenPerfil contenido;
    std::string seccion;       ///< The one in hand, as the caller spells it.
    std::string clave, valor;  ///< Room for what is not the same in both character sets.
    std::vector<std::string> valores;
};

ArchivoPerfil::ArchivoPerfil(std::filesystem::path ruta)
    : ruta_(std::move(ruta)), imagen_(std::make_unique<Imagen>(leerArchivo(ruta_))) {}

ArchivoPerfil::~ArchivoPerfil() = default;
ArchivoPerfil::ArchivoPerfil(ArchivoPerfil&&) noexcept = default;
ArchivoPerfil& ArchivoPerfil::operator=(ArchivoPerfil&&) noexcept = default;

bool ArchivoPerfil::haySeccion(std::string_view seccion) const {
    imagen_->abrir(seccion);
    return imagen_->contenido.haySeccion();
}

std::optional<std::string_view> ArchivoPerfil::buscar(std::string_view seccion,
                                                      std::string_view clave) const {
    Imagen& imagen = *imagen_;
    imagen.abrir(seccion);
    const auto valor = imagen.contenido.valor(aWindows1252(clave, imagen.clave));
    return valor ? legible(*valor, imagen.valor) : std::nullopt;
}

void ArchivoPerfil::buscar(std::string_view seccion, std::span<const std::string_view> claves,
                           std::span<std::optional<std::string_view>> valores) const {
    Imagen& imagen = *imagen_;
    imagen.abrir(seccion);
    imagen.contenido.valores(claves, valores);
    imagen.valores.resize(std::max(imagen.valores.size(), claves.size()));
    for (std::size_t i = 0; i < valores.size(); ++i)
        if (valores[i]) valores[i] = legible(*valores[i], imagen.valores[i]);
}

std::string ArchivoPerfil::leer(std::string_view seccion, std::string_view clave,
                                std::string_view predeterminado) const {
    return std::string(buscar(seccion, clave).value_or(predeterminado));
}

void ArchivoPerfil::guardar(std::string_view seccion, std::string_view clave, std::string_view valor) {
    Imagen& imagen = *imagen_;
    imagen.abrir(seccion);
    if (imagen.contenido.guardar(aWindows1252(clave, imagen.clave), aWindows1252(valor, imagen.valor)))
        imagen.cambiada = true;
}

void ArchivoPerfil::guardar(std::string_view seccion, std::span<const ValorPerfil> valores) {
    Imagen& imagen = *imagen_;
    imagen.abrir(seccion);
    const bool seAnaden =
        !imagen.contenido.haySeccion() && std::all_of(valores.begin(), valores.end(), esLlano);
    if (seAnaden && imagen.contenido.crear(valores))
        imagen.cambiada = true;
    else
        for (const auto& [clave, valor] : valores)
            guardar(seccion, clave, valor);
}

void ArchivoPerfil::volcar() {
    if (!imagen_->cambiada || !imagen_->sustituible) return;
    std::string sitio;
    if (sustituirArchivo(ruta_, imagen_->contenido.bytes(sitio))) imagen_->cambiada = false;
}

std::string LeerIni(const std::filesystem::path& Fichero, std::string_view Seccion, std::string_view Clave,
                    std::string_view Predeterminado) {
    return ArchivoPerfil(Fichero).leer(Seccion, Clave, Predeterminado);
}

void GuardarIni(const std::filesystem::path& Fichero, std::string_view Seccion, std::string_view Clave,
                std::string_view Valor) {
    ArchivoPerfil archivo(Fichero);
    archivo.guardar(Seccion, Clave, Valor);
    archivo.volcar();
}

}  // namespace bosquel
