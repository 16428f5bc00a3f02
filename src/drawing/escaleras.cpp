#include "drawing/escaleras.h"

#include "drawing/vista.h"
#include "stairs_symbols/escalera_prop.h"

namespace bosquel {

namespace {

bool quiereAlinear(Sesion& sesion) {
    return preguntar(sesion, {.titulo = "Aviso",
                              .texto = "¿Desea alinear la nueva escalera a alguna pared o tabique existente?",
                              .icono = Icono::pregunta,
                              .botones = Botones::siNo}) == Respuesta::si;
}

}  // namespace

void CrearEscalera(Sesion& sesion) {
    const bool hayParedes = sesion.dibujo.Pared.ultimo() > 0;
    if (!hayParedes || !quiereAlinear(sesion)) return AbreEscaleraProp(sesion, 0, 0);
    ponerModo(sesion, Modo::Escalera);
    sesion.plataforma.ponerCursor(Cursor::IcoSeleccion);
}

void AbreEscaleraProp(Sesion& sesion, int indice, int angulo) {
    if (!sesion.dibujo.Escalera.existe(indice)) return;
    const Esquina esquina = esquinaALaVista(sesion);
    EscaleraProp dialogo(sesion.dibujo, indice, angulo, esquina.Left, esquina.Top);
    mostrar(sesion, dialogo);
}

}  // namespace bosquel
