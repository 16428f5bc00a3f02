#include "appearance/colores.h"

#include "model/textos_numero.h"

#include <algorithm>

namespace bosquel {

namespace {

constexpr std::array todasLasListas{ListaColor::Varios, ListaColor::Lineas, ListaColor::Fondos};
constexpr std::size_t fijosEnVarios = 3;  // doors and windows, walls, texts

std::size_t indiceDeEsquema(const std::string& nombre) {
    const auto hallado = std::find_if(esquemasColor.begin(), esquemasColor.end(),
                                      [&](const EsquemaColor& fila) { return fila.nombre == nombre; });
    return hallado == esquemasColor.end() ? 0 : static_cast<std::size_t>(hallado - esquemasColor.begin());
}

void pintar(TextoLibre& texto, Color linea, std::optional<Color> /*fondo*/) {
    texto.ForeColor = linea;
}

template <class T>
void pintar(T& elemento, Color linea, std::optional<Color> fondo) {
    elemento.LineColor = linea;
    if constexpr (requires { elemento.BackColor; })
        if (fondo) elemento.BackColor = *fondo;
}

/// All elements of a kind, and its model, so that new ones have the colours.
void pintarClase(Dibujo& dibujo, Clase clase, Color linea, std::optional<Color> fondo = {}) {
    conColeccion(dibujo, clase, [&](auto& coleccion) {
        coleccion.recorrer(0, coleccion.ultimo(),
                           [&](int, auto& elemento) { pintar(elemento, linea, fondo); });
    });
}

}  // namespace

Colores::Colores(Dibujo& dibujo, Plataforma& plataforma, const std::filesystem::path& carpeta)
    : dibujo_(dibujo), plataforma_(plataforma), almacen_(carpeta) {
    lineasCategoria_.fill(colorTextoVentana);
    fondosCategoria_.fill(colorFondoVentana);
    CargarComboPerfiles();
    elegirEsquema(indiceDeEsquema(dibujo.Esquema));
    if (perfilHabilitado()) SeleccionarPerfil(dibujo.Perfil);
}

void Colores::elegirEsquema(std::size_t indice) {
    esquema_ = indice;
    if (!perfilHabilitado()) SeleccionarPerfil({});
    for (const ListaColor lista : todasLasListas)
        RepresentarPerfil(lista, constanteDe(lista), esquemasColor[indice].marcar);
}

void Colores::escribirPerfil(const std::string& texto) {
    perfil_ = texto;
    AbrirPerfil(texto);
}

void Colores::CargarComboPerfiles() {
    perfil_.clear();
    perfiles_ = almacen_.nombres();
}

void Colores::AbrirPerfil(const std::string& Nombre) {
    if (Nombre.empty()) return;
    for (const ListaColor lista : todasLasListas)
        if (const std::string colores = almacen_.leer(Nombre, lista); colores != sinLinea)
            RepresentarPerfil(lista, colores, true);
}

void Colores::SeleccionarPerfil(const std::string& Nombre) {
    if (Nombre.empty() || std::find(perfiles_.begin(), perfiles_.end(), Nombre) != perfiles_.end())
        escribirPerfil(Nombre);
}

Colores::Destino Colores::destino(ListaColor lista) {
    switch (lista) {
        case ListaColor::Varios:
            return {std::span(lineasCategoria_).subspan(primeraCategoriaDelPerfil),
                    std::span(chkCatColor).subspan(primeraCategoriaDelPerfil), fijosEnVarios};
        case ListaColor::Lineas: return {lineas_, chkColores, lineas_.size()};
        case ListaColor::Fondos: break;
    }
    return {fondos_, {}, fondos_.size()};
}

void Colores::RepresentarPerfil(ListaColor Tipo, std::string_view Lista, bool Marcar) {
    const auto textos = partirColores(Lista);
    const auto [colores, casillas, fijos] = destino(Tipo);
    for (std::size_t i = 0; i < std::max(fijos, std::min(colores.size(), textos.size())); ++i) {
        if (i < textos.size()) colores[i] = entero32DeTexto(textos[i]).value_or(colores[i]);
        if (!casillas.empty()) casillas[i] = Marcar;
    }
}

void Colores::cmdLineColor(std::size_t tipo, std::optional<Color> elegido) {
    elegirTipo(tipo, elegido, lineas_);
}

void Colores::cmdBackColor(std::size_t tipo, std::optional<Color> elegido) {
    elegirTipo(tipo, elegido, fondos_);
}

void Colores::elegirTipo(std::size_t tipo, std::optional<Color> elegido, std::span<Color> muestras) {
    muestras[tipo] = elegido.value_or(muestras[tipo]);
    chkColores[tipo] = true;
    SeleccionarPerfil({});
}

void Colores::cmdLineCatColor(std::size_t categoria, std::optional<Color> elegido) {
    elegirCategoria(categoria, elegido, lineasCategoria_, lineas_);
}

void Colores::cmdBackCatColor(std::size_t categoria, std::optional<Color> elegido) {
    elegirCategoria(categoria, elegido, fondosCategoria_, fondos_);
}

void Colores::elegirCategoria(std::size_t categoria, std::optional<Color> elegido, std::span<Color> muestras,
                              std::span<Color> deTipos) {
    muestras[categoria] = elegido.value_or(muestras[categoria]);
    for (std::size_t i = 0; i < deTipos.size(); ++i)
        if (tiposColor[i].solapa == categoriasColor[categoria].solapa) elegirTipo(i, elegido, deTipos);
    chkCatColor[categoria] = true;
    SeleccionarPerfil({});
}

void Colores::soltarConControl(std::size_t tipo) {
    chkColores.fill(chkColores[tipo]);
}

void Colores::cmdGuardarPerfil() {
    const std::string nombre =
        plataforma_.pedirTexto({"Guardar Perfil", "Establezca el nombre para el nuevo perfil"});
    // Without a name nothing is kept, yet the rest goes its way, the message included.
    if (!nombre.empty() && !guardarPerfil(nombre)) return;
    CargarComboPerfiles();
    SeleccionarPerfil(nombre);
    plataforma_.mensaje({"Aviso", "Perfil Guardado con éxito"});
}

/// False if the user does not want a profile to be overwritten.
bool Colores::guardarPerfil(const std::string& nombre) {
    if (almacen_.existe(nombre) &&
        plataforma_.mensaje({"Aviso", "Ya existe un perfil con ese nombre. ¿Desea sobreescribirlo?",
                             Icono::pregunta, Botones::siNo}) != Respuesta::si)
        return false;
    almacen_.guardar(nombre, {unirColores(destino(ListaColor::Varios).colores), unirColores(lineas_),
                              unirColores(fondos_)});
    return true;
}

void Colores::AplicarColores() {
    dibujo_.Esquema = esquemasColor[esquema_].nombre;
    dibujo_.Perfil = perfil_;
    for (std::size_t i = 0; i < tiposColor.size(); ++i) {
        const auto fondo = tiposColor[i].conFondo ? std::optional(fondos_[i]) : std::nullopt;
        if (chkColores[i]) pintarClase(dibujo_, tiposColor[i].clase, lineas_[i], fondo);
    }
    for (std::size_t i = 0; i < categoriasColor.size(); ++i)
        for (const Clase clase : categoriasColor[i].clases)
            if (chkCatColor[i]) pintarClase(dibujo_, clase, lineasCategoria_[i]);
    anunciarTodo(dibujo_);
}

}  // namespace bosquel
