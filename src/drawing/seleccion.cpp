#include "drawing/seleccion.h"

#include "drawing/elementos.h"
#include "drawing/foco.h"
#include "drawing/pinza_pared.h"
#include "model/numeros.h"
#include "openings/puerta.h"
#include "openings/ventana.h"
#include "walls/grupos.h"
#include "walls/pared.h"
#include "walls/pared_prop.h"

namespace bosquel {

namespace {

Respuesta preguntarPorElGrupo(Sesion& sesion) {
    return preguntar(sesion, {.titulo = "Eliminar Pared",
                              .texto = "La última pared seleccionada pertenece a un grupo\n\n"
                                       "¿ Desea eliminar todas las paredes del grupo ?",
                              .icono = Icono::pregunta,
                              .botones = Botones::siNoCancelar});
}

Respuesta preguntarSiDesagrupa(Sesion& sesion) {
    return preguntar(sesion,
                     {.titulo = "Aviso",
                      .texto = "Esta pared pertenece a un grupo y no puede ser editada. Si quiere hacer "
                               "modificaciones en la misma primero debe desagruparla.\n"
                               "¿Desea desagruparla ahora?",
                      .icono = Icono::pregunta,
                      .botones = Botones::siNo});
}

void eliminarGrupo(Dibujo& dibujo, std::int16_t grupo) {
    dibujo.Pared.recorrer([&](int i, const Pared& pared) {
        if (pared.NumeroGrupo == grupo) EliminaPared(dibujo, i);
    });
}

void eliminarPared(Sesion& sesion, int indice, bool forzar) {
    Dibujo& dibujo = sesion.dibujo;
    const Pared* pared = indice > 0 ? dibujo.Pared.en(indice) : nullptr;
    if (!pared) return;
    // Kept before the first removal, which may set the wall free.
    const std::int16_t grupo = pared->NumeroGrupo;
    const Respuesta respuesta = forzar || grupo == 0 ? Respuesta::no : preguntarPorElGrupo(sesion);
    if (respuesta == Respuesta::no) EliminaPared(dibujo, indice);
    if (respuesta == Respuesta::si) eliminarGrupo(dibujo, grupo);
}

void quitar(Sesion& sesion, Referencia cual) {
    conColeccion(sesion.dibujo, cual.clase, [&](auto& coleccion) { coleccion.quitar(cual.indice); });
    anunciar(sesion.dibujo, cual.clase, cual.indice);
    olvidarFoco(sesion, cual);
}

}  // namespace

bool* resaltadoDe(Dibujo& dibujo, Referencia cual) {
    if (!situado(dibujo, cual)) return nullptr;
    if (cual.clase == Clase::Escalera) return &dibujo.Escalera.en(cual.indice)->Resaltado;
    if (cual.clase == Clase::Electrico) return &dibujo.Electrico.en(cual.indice)->Resaltado;
    return nullptr;
}

void apagar(Dibujo& dibujo, Referencia cual) {
    bool* resaltado = resaltadoDe(dibujo, cual);
    if (!resaltado || !*resaltado) return;
    *resaltado = false;
    anunciar(dibujo, cual.clase, cual.indice);
}

void QuitarSeleccion(Dibujo& dibujo) {
    if (dibujo.ElementoActual == Clase::Pared) DeseleccionaPared(dibujo, dibujo.ParedBajoPuntero);
    if (dibujo.ElementoActual == Clase::Ventana) DeseleccionaVentana(dibujo, dibujo.VentanaBajoPuntero);
    if (dibujo.ElementoActual == Clase::Puerta) DeseleccionaPuerta(dibujo, dibujo.PuertaBajoPuntero);
    if (dibujo.ElementoActual) apagar(dibujo, {*dibujo.ElementoActual, dibujo.IndiceActual});
}

void EliminarElemento(Sesion& sesion, bool Forzar) {
    Dibujo& dibujo = sesion.dibujo;
    const auto clase = dibujo.ElementoActual;
    const int indice = dibujo.IndiceActual;
    if (!clase) return;
    if (clase == Clase::Pared)
        eliminarPared(sesion, indice, Forzar);
    else if (clase == Clase::Ventana)
        EliminaVentana(dibujo, indice);
    else if (clase == Clase::Puerta)
        EliminaPuerta(dibujo, indice);
    else
        quitar(sesion, {*clase, dibujo.IndiceActual});
}

void EliminarTodos(Sesion& sesion) {
    Dibujo& dibujo = sesion.dibujo;
    // What is being dragged is told by its index, which another element may have from now on.
    terminarMovimiento(sesion);
    asentarObjeto(sesion);
    anunciarTodo(dibujo);
    for (const Clase clase : ordenDeEliminar()) {
        const int contador =
            conColeccion(dibujo, clase, [](const auto& coleccion) { return coleccion.contador; });
        const int hasta = contador - (datos(clase).eliminarConContador ? 0 : 1);
        for (int i = 1; i <= hasta; ++i) {
            dibujo.ElementoActual = clase;
            asignar(dibujo.IndiceActual, i);
            EliminarElemento(sesion, clase == Clase::Pared);
        }
    }
    ocultarMarco(sesion);
}

void AbreParedProp(Sesion& sesion, int indice) {
    Pared* pared = sesion.dibujo.Pared.en(indice);
    if (!pared || indice == 0) return;
    if (pared->NumeroGrupo != 0) {
        if (preguntarSiDesagrupa(sesion) != Respuesta::si) return;
        pared->NumeroGrupo = 0;
        EliminaAberturasPared(sesion.dibujo, indice);
    }
    ParedProp dialogo(sesion.dibujo, indice);
    mostrar(sesion, dialogo);
}

}  // namespace bosquel
