#include "drawing/hoja.h"

#include "drawing/foco.h"
#include "drawing/pinza_abertura.h"

namespace bosquel {

namespace {

/// The search for the topmost of all that stands at a point.
class Busqueda {
  public:
    Busqueda(float X, float Y) : x_(X), y_(Y) {}

    template <class T>
    void enPinzas(Clase clase, const Coleccion<T>& coleccion) {
        coleccion.recorrer([&](int indice, const T& elemento) {
            const auto pinzas = elemento.pinzas();
            for (std::size_t cual = 0; cual < pinzas.size(); ++cual)
                if (pinzas[cual]->Visible && pinzas[cual]->recuadro().contiene(x_, y_))
                    proponer({pinzas[cual]->orden, true, clase, indice}, static_cast<PinzaDePared>(cual));
        });
    }

    void proponer(const Altura& altura, PinzaDePared pinza = PinzaDePared::inicial) {
        if (hallada_ && altura < altura_) return;
        altura_ = altura;
        hallada_ = {altura.clase, altura.indice, pinza};
    }

    std::optional<Diana> hallada() const { return hallada_; }

  private:
    float x_, y_;
    Altura altura_;
    std::optional<Diana> hallada_;
};

/// Where the coordinates of what stands under the pointer begin: at the grip's corner, or the element's.
/// Nothing if it is gone.
std::optional<Recuadro> esquinaDe(const Dibujo& dibujo, const Diana& diana) {
    if (diana.clase == Clase::Pared) {
        const Pared* pared = dibujo.Pared.en(diana.indice);
        return pared ? std::optional(pared->pinzas()[static_cast<std::size_t>(diana.pinza)]->recuadro())
                     : std::nullopt;
    }
    const Situado* elemento = situado(dibujo, diana.referencia());
    return elemento ? std::optional(Recuadro{elemento->Left, elemento->Top, 0, 0}) : std::nullopt;
}

bool esAbertura(Clase clase) {
    return clase == Clase::Ventana || clase == Clase::Puerta;
}

}  // namespace

std::optional<Diana> dianaBajo(Sesion& sesion, float X, float Y) {
    const Dibujo& dibujo = sesion.dibujo;
    Busqueda busqueda(X, Y);
    busqueda.enPinzas(Clase::Pared, dibujo.Pared);
    busqueda.enPinzas(Clase::Ventana, dibujo.Ventana);
    busqueda.enPinzas(Clase::Puerta, dibujo.Puerta);
    sesion.mapa.ponerAlDia(sesion.dibujo);
    sesion.mapa.enPunto(X, Y, [&](Referencia cual) {
        busqueda.proponer({situado(dibujo, cual)->orden, false, cual.clase, cual.indice});
    });
    return busqueda.hallada();
}

std::optional<Diana> Hoja::agarrar(float X, float Y) {
    const auto diana = dianaBajo(sesion_, X, Y);
    agarre_ = diana ? Agarre::diana : Agarre::hoja;
    if (diana) agarrada_ = *diana;
    return diana;
}

void Hoja::pulsar(float X, float Y) {
    const auto diana = agarrar(X, Y);
    if (!diana || !tomaFoco(diana->clase)) quitarFoco(sesion_);
    if (!diana) return pulsarHoja(sesion_, X, Y);
    if (esAbertura(diana->clase)) return pulsarPinzaAbertura(sesion_, diana->clase, diana->indice);
    const auto esquina = esquinaDe(sesion_.dibujo, *diana);
    if (!esquina) return;
    const auto x = static_cast<float>(X - esquina->Left);
    const auto y = static_cast<float>(Y - esquina->Top);
    if (diana->clase == Clase::Pared)
        pulsarPinzaPared(sesion_, diana->indice, diana->pinza, x, y);
    else
        pulsarElemento(sesion_, diana->referencia(), x, y);
}

void Hoja::mover(bool boton1, bool alguno, float X, float Y) {
    // A dialog that opened between press and release has swallowed the release.
    if (!alguno) {
        agarre_ = Agarre::nada;
        terminarMovimiento(sesion_);
        asentarObjeto(sesion_);
    }
    if (agarre_ == Agarre::hoja) return moverHoja(sesion_, boton1, X, Y);
    const auto diana = agarre_ == Agarre::diana ? std::optional(agarrada_) : dianaBajo(sesion_, X, Y);
    if (!diana) return moverHoja(sesion_, boton1, X, Y);
    if (esAbertura(diana->clase)) return moverPinzaAbertura(sesion_, diana->clase, diana->indice);
    const auto esquina = esquinaDe(sesion_.dibujo, *diana);
    if (!esquina) return;
    const auto x = static_cast<float>(X - esquina->Left);
    const auto y = static_cast<float>(Y - esquina->Top);
    if (diana->clase == Clase::Pared)
        moverPinzaPared(sesion_, diana->indice, diana->pinza, boton1, x, y);
    else
        moverElemento(sesion_, diana->referencia(), boton1, x, y);
}

void Hoja::soltar(float X, float Y) {
    // The grab ends first: what the release opens may run for long, and other events in the meantime.
    const Agarre agarre = agarre_;
    agarre_ = Agarre::nada;
    terminarMovimiento(sesion_);
    asentarObjeto(sesion_);
    if (agarre == Agarre::hoja) soltarHoja(sesion_, X, Y);
    if (agarre == Agarre::diana && agarrada_.clase == Clase::Pared)
        soltarPinzaPared(sesion_, agarrada_.indice);
}

void Hoja::dobleClic(float X, float Y) {
    const auto diana = agarrar(X, Y);
    if (!diana) return dobleClicHoja(sesion_);
    if (diana->clase == Clase::Pared)
        dobleClicPinzaPared(sesion_, diana->indice);
    else if (esAbertura(diana->clase))
        dobleClicPinzaAbertura(sesion_, diana->clase, diana->indice);
    else
        dobleClicElemento(sesion_, diana->referencia());
}

}  // namespace bosquel
