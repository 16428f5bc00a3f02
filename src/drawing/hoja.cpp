#include "drawing/hoja.h"

#include "drawing/pinza_abertura.h"

namespace bosquel {

namespace {

/// The grip of a wall that still exists, and the pointer from the grip's corner.
template <class Paso>
void enSusCoordenadas(const Dibujo& dibujo, const Diana& diana, float X, float Y, Paso paso) {
    const Pared* pared = dibujo.Pared.en(diana.indice);
    if (!pared) return;
    const Pinza& pinza = *pared->pinzas()[static_cast<std::size_t>(diana.pinza)];
    paso(X - pinza.Left, Y - pinza.Top);
}

}  // namespace

std::optional<Diana> dianaBajo(const Dibujo& dibujo, float X, float Y) {
    std::optional<Diana> encima;
    std::int32_t orden = 0;
    const auto buscar = [&](Clase clase, const auto& coleccion) {
        coleccion.recorrer([&](int i, const auto& elemento) {
            const auto pinzas = elemento.pinzas();
            for (std::size_t cual = 0; cual < pinzas.size(); ++cual) {
                const Pinza& pinza = *pinzas[cual];
                if (!pinza.Visible || (encima && pinza.orden < orden) || !pinza.recuadro().contiene(X, Y))
                    continue;
                encima = Diana{clase, i, static_cast<PinzaDePared>(cual)};
                orden = pinza.orden;
            }
        });
    };
    buscar(Clase::Pared, dibujo.Pared);
    buscar(Clase::Ventana, dibujo.Ventana);
    buscar(Clase::Puerta, dibujo.Puerta);
    return encima;
}

std::optional<Diana> Hoja::agarrar(float X, float Y) {
    const auto diana = dianaBajo(sesion_.dibujo, X, Y);
    agarre_ = diana ? Agarre::pinza : Agarre::hoja;
    if (diana) agarrada_ = *diana;
    return diana;
}

void Hoja::pulsar(float X, float Y) {
    const auto diana = agarrar(X, Y);
    if (!diana) return pulsarHoja(sesion_, X, Y);
    if (diana->clase != Clase::Pared) return pulsarPinzaAbertura(sesion_, diana->clase, diana->indice);
    enSusCoordenadas(sesion_.dibujo, *diana, X, Y,
                     [&](float x, float y) { pulsarPinzaPared(sesion_, diana->indice, diana->pinza, x, y); });
}

void Hoja::mover(bool boton1, bool alguno, float X, float Y) {
    // A dialog that opened between press and release has swallowed the release.
    if (!alguno) {
        agarre_ = Agarre::nada;
        terminarMovimiento(sesion_);
    }
    if (agarre_ == Agarre::hoja) return moverHoja(sesion_, boton1, X, Y);
    const auto diana = agarre_ == Agarre::pinza ? std::optional(agarrada_) : dianaBajo(sesion_.dibujo, X, Y);
    if (!diana) return moverHoja(sesion_, boton1, X, Y);
    if (diana->clase != Clase::Pared) return moverPinzaAbertura(sesion_, diana->clase, diana->indice);
    enSusCoordenadas(sesion_.dibujo, *diana, X, Y, [&](float x, float y) {
        moverPinzaPared(sesion_, diana->indice, diana->pinza, boton1, x, y);
    });
}

void Hoja::soltar(float X, float Y) {
    // The grab ends first: what the release opens may run for long, and other events in the meantime.
    const Agarre agarre = agarre_;
    agarre_ = Agarre::nada;
    if (agarre == Agarre::hoja) soltarHoja(sesion_, X, Y);
    if (agarre == Agarre::pinza && agarrada_.clase == Clase::Pared)
        soltarPinzaPared(sesion_, agarrada_.indice);
}

void Hoja::dobleClic(float X, float Y) {
    const auto diana = agarrar(X, Y);
    if (!diana) return dobleClicHoja(sesion_);
    if (diana->clase == Clase::Pared)
        dobleClicPinzaPared(sesion_, diana->indice);
    else
        dobleClicPinzaAbertura(sesion_, diana->clase, diana->indice);
}

}  // namespace bosquel
