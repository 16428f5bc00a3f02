#include "drawing/archivo.h"

namespace bosquel {

void CheckAutoSaving(Sesion& sesion, bool Valor) {
    while (Valor && sesion.GuardandoAuto)
        cederEventos(sesion);
    sesion.Ocupado = Valor;
}

void tmrAutoSave(Sesion& sesion) {
    ++sesion.MinutosAutoSave;
    if (sesion.MinutosAutoSave < sesion.dibujo.AutoSave) return;
    while (sesion.Ocupado)
        cederEventos(sesion);
    sesion.GuardandoAuto = true;
    sesion.MinutosAutoSave = 0;
    GuardarDibujo(sesion, sesion.carpeta / ficheroAutoSave);
    sesion.GuardandoAuto = false;
}

}  // namespace bosquel
