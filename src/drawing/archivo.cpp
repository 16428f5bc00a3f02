#include "drawing/archivo.h"

#include "drawing/seleccion.h"
#include "drawing/texto_libre.h"
#include "drawing/vista.h"
#include "persistence/archivo_dibujo.h"
#include "persistence/perfiles.h"
#include "platform/extension.h"
#include "platform/reloj_de_arena.h"

#include <algorithm>
#include <new>
#include <system_error>

namespace bosquel {

namespace fs = std::filesystem;

namespace {

constexpr const char* filtro = "Dibujos Bosquel Rapiz(*.bqr)";

/// The directory search: only a file is found.
bool existe(const fs::path& ruta) {
    std::error_code error;
    return fs::is_regular_file(ruta, error);
}

std::string titulo(const fs::path& ruta) {
    return (existe(ruta) ? ruta.filename().string() : std::string{}) + " - Bosquel Rapiz";
}

std::optional<fs::path> elegir(Sesion& sesion, PeticionArchivo::Modo modo, const char* extension) {
    publicar(sesion);
    const auto ruta = sesion.plataforma.elegirArchivo({modo, filtro, sesion.carpeta / carpetaDibujos});
    return ruta ? std::optional(conExtension(*ruta, extension)) : std::nullopt;
}

/// The old file goes first, silently, however long that takes. While it is only this once the user's hand
/// waits: a command that began in this turn would wait for the save that it stands upon.
void borrarAnterior(Sesion& sesion, const fs::path& ruta) {
    for (Espera espera = Espera::sinEntrada; existe(ruta); espera = Espera::completa) {
        std::error_code error;
        fs::remove(ruta, error);
        cederEventos(sesion, espera);
    }
}

/// By name and not by origin: a drawing that the user saves under that name goes unannounced too.
bool esAutoSave(const fs::path& ruta) {
    const auto enMinusculas = [](std::string texto) {
        std::transform(texto.begin(), texto.end(), texto.begin(),
                       [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
        return texto;
    };
    return enMinusculas(ruta.string()).find(enMinusculas(ficheroAutoSave)) != std::string::npos;
}

/// A write that fails goes unnoticed, and one for which there is no memory is a write that fails.
void escribir(const Sesion& sesion, const fs::path& ruta) try {
    ArchivoPerfil archivo(ruta);
    escribirDibujo(archivo, sesion.dibujo);
    archivo.volcar();
} catch (const std::bad_alloc&) {
}

}  // namespace

void GuardarDibujo(Sesion& sesion, fs::path Ruta) {
    if (Ruta.empty()) {
        const auto elegida = elegir(sesion, PeticionArchivo::Modo::guardar, "bqr");
        if (!elegida) return;
        Ruta = *elegida;
    }
    borrarAnterior(sesion, Ruta);
    {
        const RelojDeArena espera(sesion.plataforma);
        escribir(sesion, Ruta);
        if (!esAutoSave(Ruta)) sesion.plataforma.ponerTitulo(titulo(Ruta));
    }
    if (!esAutoSave(Ruta)) preguntar(sesion, {.titulo = "Aviso", .texto = "Dibujo guardado con éxito"});
}

void AbrirDibujo(Sesion& sesion) {
    const auto ruta = elegir(sesion, PeticionArchivo::Modo::abrir, "bkr");
    if (!ruta) return;
    EliminarTodos(sesion);
    ResetearDibujo(sesion);
    // What was current in the old drawing is nothing in this one.
    sesion.dibujo.ElementoActual.reset();
    const ArchivoPerfil archivo(*ruta);
    leerCabecera(archivo, sesion.dibujo);
    ActualizarBarras(sesion);
    sesion.regla.FactorZoom = sesion.dibujo.FactorZoomActual;
    if (sesion.dibujo.VerCuadricula) DibujarCuadricula(sesion);
    leerElementos(archivo, sesion.dibujo);
    auto& textos = sesion.dibujo.TextoLibre;
    textos.recorrer(0, textos.contador - 1, [&](int, TextoLibre& texto) { ajustarATexto(sesion, texto); });
    anunciarTodo(sesion.dibujo);
    sesion.plataforma.ponerTitulo(titulo(*ruta));
}

}  // namespace bosquel
