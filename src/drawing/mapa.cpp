#include "drawing/mapa.h"

#include "furnishing/recuadro.h"

#include <algorithm>
#include <cmath>

namespace bosquel {

namespace {

constexpr double lado = 1500;              // sheet units of a square
constexpr double sinFigura = 240;          // sheet units of the box of what has no figure
constexpr std::int64_t muchas = 64;        // squares
constexpr double ultimaCasilla = 1 << 30;  // far beyond any sheet

std::int64_t columnaDe(double coordenada) {
    return static_cast<std::int64_t>(
        std::clamp(std::floor(coordenada / lado), -ultimaCasilla, ultimaCasilla));
}

}  // namespace

Mapa::Clave Mapa::claveDe(Referencia cual) {
    return static_cast<Clave>(cual.clase) << 16U | static_cast<std::uint16_t>(cual.indice);
}

Mapa::Casilla Mapa::casilla(std::int64_t columna, std::int64_t fila) {
    return columna * (std::int64_t{1} << 32) + fila;
}

Mapa::Casilla Mapa::casillaDe(double x, double y) {
    return casilla(columnaDe(x), columnaDe(y));
}

/// Nothing for what covers too many squares.
std::optional<Mapa::Rango> Mapa::rangoDe(const Recuadro& zona) {
    const Rango rango{columnaDe(zona.Left), columnaDe(zona.Top), columnaDe(zona.Left + zona.Width),
                      columnaDe(zona.Top + zona.Height)};
    const std::int64_t ancho = rango.x2 - rango.x1 + 1;
    const std::int64_t alto = rango.y2 - rango.y1 + 1;
    if (ancho > muchas || alto > muchas || ancho * alto > muchas) return std::nullopt;
    return rango;
}

/// Calls `paso` with each list in which something of this extent belongs.
template <class Paso>
void Mapa::porCasillas(const Recuadro& zona, Paso paso) {
    const auto rango = rangoDe(zona);
    if (!rango) return paso(grandes_);
    for (auto columna = rango->x1; columna <= rango->x2; ++columna)
        for (auto fila = rango->y1; fila <= rango->y2; ++fila)
            paso(casillas_[casilla(columna, fila)]);
}

void Mapa::anotar(const Dibujo& dibujo, Referencia cual, ZonaSucia& zona) {
    const Situado* elemento = situado(dibujo, cual);
    if (!elemento || !elemento->Visible) return;
    const auto extension = extensionDe(dibujo, cual.clase, cual.indice);
    // What draws nothing can be picked all the same, where it stands.
    const Recuadro sitio{elemento->Left, elemento->Top, sinFigura, sinFigura};
    const Recuadro caja =
        recuadroDe(dibujo, cual.clase, cual.indice).value_or(extension ? *extension : sitio);
    const Recuadro todo = extension ? unir(*extension, caja) : caja;
    const Clave clave = claveDe(cual);
    fichas_[clave] = {cual, todo, cual.clase == Clase::Escalera && extension ? *extension : caja};
    porCasillas(todo, [&](std::vector<Clave>& claves) { claves.push_back(clave); });
    zona.anadir(todo);
}

void Mapa::borrar(Referencia cual, ZonaSucia& zona) {
    const auto ficha = fichas_.find(claveDe(cual));
    if (ficha == fichas_.end()) return;
    zona.anadir(ficha->second.extension);
    porCasillas(ficha->second.extension,
                [&](std::vector<Clave>& claves) { std::erase(claves, ficha->first); });
    fichas_.erase(ficha);
}

void Mapa::rehacer(Dibujo& dibujo) {
    fichas_.clear();
    casillas_.clear();
    grandes_.clear();
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer([&](int indice, const auto& elemento) {
                if constexpr (requires { elemento.orden; })
                    anotar(dibujo, {fila.clase, static_cast<std::int16_t>(indice)}, dibujo.sucia);
            });
        });
}

void Mapa::ponerAlDia(Dibujo& dibujo) {
    if (dibujo.todoCambiado) {
        rehacer(dibujo);
    } else {
        for (const Referencia cual : dibujo.cambiados) {
            ZonaSucia& zona = cual == dibujo.ObjetoEnMovimiento ? dibujo.paso : dibujo.sucia;
            borrar(cual, zona);
            anotar(dibujo, cual, zona);
        }
    }
    dibujo.todoCambiado = false;
    dibujo.cambiados.clear();
}

std::vector<Referencia> Mapa::enZona(const Recuadro& zona) const {
    std::vector<Referencia> halladas;
    const auto probar = [&](const Ficha& ficha) {
        if (ficha.extension.toca(zona)) halladas.push_back(ficha.cual);
    };
    const auto rango = rangoDe(zona);
    if (!rango) {
        for (const auto& [clave, ficha] : fichas_)
            probar(ficha);
        return halladas;
    }
    std::vector<Clave> claves = grandes_;
    for (auto columna = rango->x1; columna <= rango->x2; ++columna)
        for (auto fila = rango->y1; fila <= rango->y2; ++fila)
            if (const auto lista = casillas_.find(casilla(columna, fila)); lista != casillas_.end())
                claves.insert(claves.end(), lista->second.begin(), lista->second.end());
    std::sort(claves.begin(), claves.end());
    claves.erase(std::unique(claves.begin(), claves.end()), claves.end());
    for (const Clave clave : claves)
        probar(fichas_.at(clave));
    return halladas;
}

}  // namespace bosquel
