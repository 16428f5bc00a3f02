#include "drawing/muestras.h"

#include "drawing/creacion.h"
#include "furnishing/calcar.h"

#include <optional>

namespace bosquel {

namespace {

/// The group of buttons that make furniture on a palette; nothing for the other palettes.
std::optional<Grupo> grupoDe(Paleta paleta) {
    switch (paleta) {
        case Paleta::FrMuebles: return Grupo::BttMueble;
        case Paleta::FrBaño: return Grupo::BttBaño;
        case Paleta::FrCocina: return Grupo::BttCocina;
        case Paleta::FrUsuario:
        case Paleta::FrElectrico:
        case Paleta::ninguna: break;
    }
    return std::nullopt;
}

}  // namespace

Calco muestraDe(const Dibujo& dibujo, Paleta paleta, int boton) {
    const auto i = static_cast<std::size_t>(boton);
    if (paleta == Paleta::FrElectrico && i < simbolosDeBoton.size())
        return calcarSimbolo(dibujo, simbolosDeBoton[i].ObjectType);
    const auto grupo = grupoDe(paleta);
    for (const DatosClase& fila : todasLasClases())
        if (fila.grupo == grupo && fila.boton == boton) return calcar(dibujo, fila.clase, 0);
    return {};
}

}  // namespace bosquel
