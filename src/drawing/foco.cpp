#include "drawing/foco.h"

#include "drawing/seleccion.h"
#include "drawing/texto_libre.h"
#include "furnishing/recuadro.h"

namespace bosquel {

namespace {

void ponerMarco(Sesion& sesion, const MarcoDeSeleccion& marco) {
    for (const MarcoDeSeleccion& uno : {sesion.RectSel, marco})
        if (uno.Visible) sesion.dibujo.paso.anadir(uno.recuadro);
    sesion.RectSel = marco;
}

void seleccionar(Sesion& sesion, Referencia cual, Situado& elemento) {
    Dibujo& dibujo = sesion.dibujo;
    QuitarSeleccion(dibujo);
    dibujo.ElementoActual = cual.clase;
    dibujo.IndiceActual = cual.indice;
    enmarcar(sesion, cual);
    alFrente(dibujo, elemento);
    ponerMarco(sesion, {sesion.RectSel.recuadro, true});
    anunciar(dibujo, cual.clase, cual.indice);
}

}  // namespace

bool tomaFoco(Clase clase) {
    return clase <= Clase::MblVertedero || clase == Clase::TextoLibre;
}

void darFoco(Sesion& sesion, Referencia cual) {
    if (sesion.foco == cual) return;
    quitarFoco(sesion);
    Situado* elemento = situado(sesion.dibujo, cual);
    if (!elemento) return;
    sesion.foco = cual;
    seleccionar(sesion, cual, *elemento);
}

void quitarFoco(Sesion& sesion) {
    ocultarMarco(sesion);
    if (!sesion.foco) return;
    const Referencia cual = *sesion.foco;
    sesion.foco.reset();
    if (cual.clase == Clase::TextoLibre) terminarTexto(sesion, cual.indice);
}

void olvidarFoco(Sesion& sesion, Referencia cual) {
    if (sesion.foco == cual) sesion.foco.reset();
}

void enmarcar(Sesion& sesion, Referencia cual) {
    const Situado* elemento = situado(sesion.dibujo, cual);
    if (!elemento) return;
    const Recuadro caja = recuadroDe(sesion.dibujo, cual.clase, cual.indice)
                              .value_or(Recuadro{elemento->Left, elemento->Top, 0, 0});
    constexpr double aire = MarcoDeSeleccion::aire;
    ponerMarco(sesion,
               {{elemento->Left - aire, elemento->Top - aire, caja.Width + 2 * aire, caja.Height + 2 * aire},
                sesion.RectSel.Visible});
}

void mostrarLoEscrito(Sesion& sesion) {
    if (sesion.foco) enmarcar(sesion, *sesion.foco);
    publicar(sesion);
}

void llevarMarco(Sesion& sesion, const Situado& elemento) {
    MarcoDeSeleccion marco = sesion.RectSel;
    marco.recuadro.Left = elemento.Left - MarcoDeSeleccion::aire;
    marco.recuadro.Top = elemento.Top - MarcoDeSeleccion::aire;
    ponerMarco(sesion, marco);
}

void ocultarMarco(Sesion& sesion) {
    ponerMarco(sesion, {sesion.RectSel.recuadro, false});
}

}  // namespace bosquel
