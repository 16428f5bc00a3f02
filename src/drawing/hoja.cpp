#include "drawing/hoja.h"

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
    dibujo.Pared.recorrer([&](int i, const Pared& pared) {
        const auto pinzas = pared.pinzas();
        for (std::size_t cual = 0; cual < pinzas.size(); ++cual) {
            const Pinza& pinza = *pinzas[cual];
            if (!pinza.Visible || (encima && pinza.orden < orden) || !pinza.recuadro().contiene(X, Y))
                continue;
            encima = Diana{i, static_cast<PinzaDePared>(cual)};
            orden = pinza.orden;
        }
    });
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
    enSusCoordenadas(sesion_.dibujo, *diana, X, Y, [&](float x, float y) {
        moverPinzaPared(sesion_, diana->indice, diana->pinza, boton1, x, y);
    });
}

void Hoja::soltar(float X, float Y) {
    // The grab ends first: what the release opens may run for long, and other events in the meantime.
    const Agarre agarre = agarre_;
    agarre_ = Agarre::nada;
    if (agarre == Agarre::hoja) soltarHoja(sesion_, X, Y);
    if (agarre == Agarre::pinza) soltarPinzaPared(sesion_, agarrada_.indice);
}

void Hoja::dobleClic(float X, float Y) {
    if (const auto diana = agarrar(X, Y))
        dobleClicPinzaPared(sesion_, diana->indice);
    else
        dobleClicHoja(sesion_);
}

}  // namespace bosquel
