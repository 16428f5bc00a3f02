#include "drawing/sesion.h"

namespace bosquel {

void publicar(Sesion& sesion) {
    if (sesion.vistaSucia) {
        sesion.vistaSucia = false;
        sesion.plataforma.vistaCambiada();
    }
    Dibujo& dibujo = sesion.dibujo;
    sesion.mapa.ponerAlDia(dibujo);
    if (dibujo.sucia.limpia() && dibujo.paso.limpia()) return;
    sesion.plataforma.repintar(dibujo.sucia, dibujo.paso);
    dibujo.sucia.vaciar();
    dibujo.paso.vaciar();
}

void cederEventos(Sesion& sesion, Espera espera) {
    publicar(sesion);
    sesion.plataforma.cederEventos(espera);
}

Respuesta preguntar(Sesion& sesion, const Mensaje& mensaje) {
    publicar(sesion);
    return sesion.plataforma.mensaje(mensaje);
}

void ponerModo(Sesion& sesion, Modo modo) {
    if (sesion.dibujo.ModoActual == modo) return;
    sesion.dibujo.ModoActual = modo;
    sesion.vistaSucia = true;
}

void volverAlAspa(Sesion& sesion) {
    ponerModo(sesion, Modo::Aspa);
    sesion.plataforma.ponerCursor(Cursor::Cruz);
}

}  // namespace bosquel
