#include "persistence/perfiles.h"

#include "model/windows1252.h"
#include "persistence/disco.h"
#include "persistence/imagen_perfil.h"

#include <utility>

namespace bosquel {

struct ArchivoPerfil::Imagen {
    ImagenPerfil contenido;
    bool sustituible = false;  ///< What stands on disk was read whole, so that nothing in it gets lost.
    bool cambiada = false;
};

ArchivoPerfil::ArchivoPerfil(std::filesystem::path ruta) : ruta_(std::move(ruta)) {
    std::optional<std::string> bytes = leerArchivo(ruta_);
    const bool sustituible = bytes.has_value();
    imagen_ = std::make_unique<Imagen>(Imagen{ImagenPerfil(std::move(bytes).value_or("")), sustituible});
}

ArchivoPerfil::~ArchivoPerfil() = default;
ArchivoPerfil::ArchivoPerfil(ArchivoPerfil&&) noexcept = default;
ArchivoPerfil& ArchivoPerfil::operator=(ArchivoPerfil&&) noexcept = default;

bool ArchivoPerfil::haySeccion(std::string_view seccion) const {
    return imagen_->contenido.haySeccion(aWindows1252(seccion));
}

std::optional<std::string> ArchivoPerfil::buscar(std::string_view seccion, std::string_view clave) const {
    const auto valor = imagen_->contenido.valor(aWindows1252(seccion), aWindows1252(clave));
    if (!valor || valor->empty()) return std::nullopt;
    return aUtf8(*valor);
}

std::string ArchivoPerfil::leer(std::string_view seccion, std::string_view clave,
                                std::string_view predeterminado) const {
    std::optional<std::string> valor = buscar(seccion, clave);
    return valor ? *std::move(valor) : std::string(predeterminado);
}

void ArchivoPerfil::guardar(std::string_view seccion, std::string_view clave, std::string_view valor) {
    if (imagen_->contenido.guardar(aWindows1252(seccion), aWindows1252(clave), aWindows1252(valor)))
        imagen_->cambiada = true;
}

void ArchivoPerfil::volcar() {
    if (!imagen_->cambiada || !imagen_->sustituible) return;
    if (sustituirArchivo(ruta_, imagen_->contenido.bytes())) imagen_->cambiada = false;
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
