#include "drawing/destino_pared.h"

#include "drawing/aberturas.h"
#include "drawing/escaleras.h"
#include "walls/esquina.h"
#include "walls/grupos.h"
#include "walls/paralelas.h"
#include "walls/pared.h"
#include "walls/union.h"

#include <array>

namespace bosquel {

namespace {

void avisar(Sesion& sesion, const char* texto) {
    preguntar(sesion, {.titulo = "Aviso", .texto = texto});
}

/// What a corner or a union has to say is said under the default pointer.
Respuesta conCursorNormal(Sesion& sesion, const Mensaje& mensaje) {
    sesion.plataforma.ponerCursor(Cursor::Flecha);
    const Respuesta respuesta = preguntar(sesion, mensaje);
    sesion.plataforma.ponerCursor(Cursor::Cruz);
    return respuesta;
}

void esquina(Sesion& sesion) {
    if (EsquinaParedes(sesion.dibujo)) return;
    conCursorNormal(sesion, {.titulo = "Aviso",
                             .texto = "Las líneas señaladas son paralelas y no pueden formar una esquina"});
}

void avisarParalelas(Sesion& sesion) {
    conCursorNormal(sesion, {.titulo = "Aviso",
                             .texto = "Las líneas señaladas son paralelas y no pueden formar una unión en "
                                      "'X' o en 'T'"});
}

void proponerEsquina(Sesion& sesion) {
    const Mensaje pregunta{.titulo = "Aviso",
                           .texto =
                               "El encuentro de las paredes seleccionadas no es una unión en 'X' ni una "
                               "unión en 'T'. ¿Desea realizar una unión en esquina?",
                           .icono = Icono::pregunta,
                           .botones = Botones::siNo};
    if (conCursorNormal(sesion, pregunta) == Respuesta::si) esquina(sesion);
}

void unionDeParedes(Sesion& sesion) {
    switch (encuentroDeParedes(sesion.dibujo)) {
        case Encuentro::ninguno: return;
        case Encuentro::paralelas: return avisarParalelas(sesion);
        case Encuentro::fuera: return proponerEsquina(sesion);
        case Encuentro::cruce: return UnionParedes(sesion.dibujo);
    }
}

void situarParalela(Sesion& sesion, int indice) {
    Paralelas dialogo(sesion.dibujo, indice);
    mostrar(sesion, dialogo);
}

template <Modo siguiente>
void elegirPrimera(Sesion& sesion, int indice) {
    sesion.dibujo.ParedUno = static_cast<std::int16_t>(indice);
    sesion.dibujo.ModoActual = siguiente;
    sesion.vistaSucia = true;
}

template <void (*unir)(Sesion&)>
void elegirSegunda(Sesion& sesion, int indice) {
    Dibujo& dibujo = sesion.dibujo;
    if (indice == dibujo.ParedUno)
        return avisar(sesion,
                      "Para llevar a cabo una unión entre dos muros debe seleccionar muros diferentes");
    dibujo.ParedDos = static_cast<std::int16_t>(indice);
    unir(sesion);
    ActualizarPuntoInicialPared(dibujo, dibujo.ParedUno);
    ActualizarPuntoInicialPared(dibujo, dibujo.ParedDos);
}

void separar(Sesion& sesion, int indice) {
    const std::int16_t grupo = sesion.dibujo.Pared.en(indice)->NumeroGrupo;
    if (grupo == 0)
        return avisar(
            sesion,
            "La pared seleccionada no pertenece a ningún grupo y por tanto no es posible desagruparla");
    const Mensaje pregunta{.titulo = "Desagrupar Paredes",
                           .texto =
                               "Esta acción desagrupará todas las paredes del grupo al que pertenece la "
                               "pared seleccionada\n\n¿ Desea seguir adelante ?",
                           .icono = Icono::pregunta,
                           .botones = Botones::siNo};
    if (preguntar(sesion, pregunta) == Respuesta::si) Desagrupar(sesion.dibujo, grupo);
}

void alinearEscalera(Sesion& sesion, int indice) {
    AbreEscaleraProp(sesion, 0, sesion.dibujo.Pared.en(indice)->Angulo);
}

struct Destino {
    Modo modo;
    bool termina;  ///< the tool is over before the command runs
    void (*hacer)(Sesion&, int);
};

constexpr std::array<Destino, 9> destinos{{
    {Modo::Seleccion, true, situarParalela},
    {Modo::PrimeraPared, false, elegirPrimera<Modo::SegundaPared>},
    {Modo::SegundaPared, true, elegirSegunda<esquina>},
    {Modo::Union1, false, elegirPrimera<Modo::Union2>},
    {Modo::Union2, true, elegirSegunda<unionDeParedes>},
    {Modo::Separar, true, separar},
    {Modo::Ventana, true, situarVentana},
    {Modo::Puerta, true, situarPuerta},
    {Modo::Escalera, true, alinearEscalera},
}};

}  // namespace

bool elegirPared(Sesion& sesion, int indice) {
    for (const Destino& destino : destinos) {
        if (destino.modo != sesion.dibujo.ModoActual) continue;
        if (destino.termina) volverAlAspa(sesion);
        destino.hacer(sesion, indice);
        return true;
    }
    return false;
}

}  // namespace bosquel
