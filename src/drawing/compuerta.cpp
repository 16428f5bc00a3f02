#include "drawing/archivo.h"
#include "drawing/marca.h"

namespace bosquel {

namespace {

void salvar(Sesion& sesion) {
    const Marca guardando(sesion.GuardandoAuto);
    sesion.SalvadoPendiente = false;
    sesion.MinutosAutoSave = 0;
    GuardarDibujo(sesion, sesion.carpeta / ficheroAutoSave);
}

}  // namespace

void CheckAutoSaving(Sesion& sesion, bool Valor) {
    while (Valor && sesion.GuardandoAuto)
        cederEventos(sesion);
    sesion.Ocupado = Valor;
    if (!Valor && sesion.SalvadoPendiente) salvar(sesion);
}

void tmrAutoSave(Sesion& sesion) {
    ++sesion.MinutosAutoSave;
    if (sesion.MinutosAutoSave < sesion.dibujo.AutoSave) return;
    sesion.SalvadoPendiente = sesion.Ocupado;
    if (!sesion.Ocupado) salvar(sesion);
}

}  // namespace bosquel
