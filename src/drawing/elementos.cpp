#include "drawing/elementos.h"

#include "drawing/arrastre.h"
#include "drawing/foco.h"
#include "drawing/propiedades.h"
#include "drawing/seleccion.h"
#include "drawing/vista.h"

namespace bosquel {

namespace {

bool esActual(const Dibujo& dibujo, Referencia cual) {
    return dibujo.ElementoActual == cual.clase && dibujo.IndiceActual == cual.indice;
}

/// Stairs and symbols show by themselves that they are selected, and never take the focus.
void resaltar(Dibujo& dibujo, Referencia cual, Situado& elemento) {
    bool* resaltado = resaltadoDe(dibujo, cual);
    if (!resaltado || *resaltado) return;
    *resaltado = true;
    alFrente(dibujo, elemento);
    anunciar(dibujo, cual.clase, cual.indice);
}

void arrastrar(Sesion& sesion, Referencia cual, Situado& elemento, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    if (dibujo.ObjetoEnMovimiento != cual) {
        asentarObjeto(sesion);
        // Where it stood until now the picture of what stands still changes.
        anunciar(dibujo, cual.clase, cual.indice);
        sesion.mapa.ponerAlDia(dibujo);
        dibujo.ObjetoEnMovimiento = cual;
    }
    Movimiento(dibujo.arrastre, elemento.Left, elemento.Top, X, Y);
    anunciar(dibujo, cual.clase, cual.indice);
}

/// What came to rest takes its place on the grid when the pointer next passes over it.
void ajustarSiEsActual(Sesion& sesion, Referencia cual, Situado& elemento) {
    Dibujo& dibujo = sesion.dibujo;
    if (!esActual(dibujo, cual) || !dibujo.Iman) return;
    const float left = ajustarACuadricula(dibujo, elemento.Left);
    const float top = ajustarACuadricula(dibujo, elemento.Top);
    if (left == elemento.Left && top == elemento.Top) return;
    elemento.Left = left;
    elemento.Top = top;
    anunciar(dibujo, cual.clase, cual.indice);
}

void llevar(Sesion& sesion, Referencia cual, Situado& elemento, bool boton1, float X, float Y) {
    if (boton1)
        arrastrar(sesion, cual, elemento, X, Y);
    else
        ajustarSiEsActual(sesion, cual, elemento);
}

/// The pointer has come from another stair: that one is no longer selected.
void cruzarEscalera(Dibujo& dibujo, std::int16_t indice) {
    const std::int16_t anterior = dibujo.EscaleraBajoPuntero;
    const Referencia otra{Clase::Escalera, anterior};
    const bool* resaltada = anterior == indice ? nullptr : resaltadoDe(dibujo, otra);
    if (resaltada && *resaltada) {
        QuitarSeleccion(dibujo);
        apagar(dibujo, otra);
    }
    dibujo.EscaleraBajoPuntero = indice;
}

/// A symbol has no frame of its own: it leads that of the seat of its index.
Referencia quienLlevaElMarco(Referencia cual) {
    return cual.clase == Clase::Electrico ? Referencia{Clase::MblAsiento, cual.indice} : cual;
}

void moverEscalera(Sesion& sesion, Referencia cual, Situado& elemento, bool boton1, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    if (dibujo.ModoActual == Modo::Escalera) return;
    cruzarEscalera(dibujo, cual.indice);
    if (espera(dibujo.ModoActual)) return;
    sesion.plataforma.ponerCursor(Cursor::Flecha);
    ponerModo(sesion, Modo::Flecha);
    if (boton1) resaltar(dibujo, cual, elemento);
    llevar(sesion, cual, elemento, boton1, X, Y);
}

}  // namespace

void pulsarElemento(Sesion& sesion, Referencia cual, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    Situado* elemento = situado(dibujo, cual);
    if (!elemento) return;
    if (tomaFoco(cual.clase)) {
        darFoco(sesion, cual);
    } else {
        quitarFoco(sesion);
        senalarElemento(sesion, cual);
    }
    agarrar(dibujo.arrastre, X, Y);
    if (cual.clase != Clase::Escalera) sesion.plataforma.ponerCursor(Cursor::Palma);
}

void senalarElemento(Sesion& sesion, Referencia cual) {
    Dibujo& dibujo = sesion.dibujo;
    Situado* elemento = situado(dibujo, cual);
    if (!elemento) return;
    QuitarSeleccion(dibujo);
    dibujo.ElementoActual = cual.clase;
    dibujo.IndiceActual = cual.indice;
    if (cual.clase != Clase::Escalera || !espera(dibujo.ModoActual)) resaltar(dibujo, cual, *elemento);
}

void moverElemento(Sesion& sesion, Referencia cual, bool boton1, float X, float Y) {
    Situado* elemento = situado(sesion.dibujo, cual);
    if (!elemento) return;
    if (cual.clase == Clase::Escalera) return moverEscalera(sesion, cual, *elemento, boton1, X, Y);
    llevar(sesion, cual, *elemento, boton1, X, Y);
    const Referencia enmarcado = quienLlevaElMarco(cual);
    const Situado* marcado = situado(sesion.dibujo, enmarcado);
    if (marcado && esActual(sesion.dibujo, enmarcado)) llevarMarco(sesion, *marcado);
}

void dobleClicElemento(Sesion& sesion, Referencia cual) {
    switch (datos(cual.clase).dobleClic) {
        case DobleClic::enElActo: return MostrarPropiedades(sesion);
        case DobleClic::diferido: return sesion.plataforma.activar(Reloj::Timer2, true);
        case DobleClic::enFlecha:
            if (sesion.dibujo.ModoActual == Modo::Flecha) abrirPropiedades(sesion, cual);
            return;
        case DobleClic::nada: return;
    }
}

void asentarObjeto(Sesion& sesion) {
    Dibujo& dibujo = sesion.dibujo;
    if (!dibujo.ObjetoEnMovimiento) return;
    const Referencia cual = *dibujo.ObjetoEnMovimiento;
    dibujo.ObjetoEnMovimiento.reset();
    anunciar(dibujo, cual.clase, cual.indice);
}

void abrirDiferido(Sesion& sesion) {
    sesion.plataforma.activar(Reloj::Timer2, false);
    const auto clase = sesion.dibujo.ElementoActual;
    if (clase && datos(*clase).dobleClic == DobleClic::diferido) MostrarPropiedades(sesion);
}

}  // namespace bosquel
