#include "drawing/principal.h"

#include "appearance/colores.h"
#include "drawing/archivo.h"
#include "drawing/enviar.h"
#include "drawing/foco.h"
#include "drawing/hoja.h"
#include "drawing/opciones.h"
#include "drawing/propiedades.h"
#include "drawing/seleccion.h"
#include "drawing/vista.h"
#include "walls/grupos.h"

namespace bosquel {

namespace {

/// The wall of the highest index goes if its dialog was never applied; the counter stays.
void retirarParedPendiente(Dibujo& dibujo) {
    const int indice = dibujo.Pared.ultimo();
    if (indice > 0 && dibujo.Pared.en(indice)->Estado == estadoNuevo) EliminaPared(dibujo, indice);
}

bool confirmar(Sesion& sesion, const char* titulo, const char* texto) {
    return preguntar(sesion, {titulo, texto, Icono::pregunta, Botones::siNo}) == Respuesta::si;
}

void nuevo(Sesion& sesion) {
    if (!confirmar(sesion, "Aviso",
                   "Esta orden borrará todo el contenido actual del área de dibujo\n¿Desea continuar"))
        return;
    EliminarTodos(sesion);
    ResetearDibujo(sesion);
    sesion.plataforma.ponerTitulo(tituloNuevo);
}

void opciones(Sesion& sesion) {
    Opciones dialogo(sesion);
    mostrar(sesion, dialogo);
    sesion.Ocupado = false;
}

void colores(Sesion& sesion) {
    Colores dialogo(sesion.dibujo, sesion.plataforma, sesion.carpeta);
    mostrar(sesion, dialogo);
    sesion.vistaSucia = true;  // the pictures of the palettes are the models', whose colours may be new
}

/// Leaves the gate shut when the user stays: the next command opens it.
void salir(Sesion& sesion) {
    if (confirmar(sesion, "Salir del programa",
                  "Si sale del programa sin guardar los datos se perderán\n\n"
                  "¿Desea abandonar el programa ahora?"))
        sesion.plataforma.terminar();
}

void ejecutar(Sesion& sesion, Principal boton) {
    switch (boton) {
        case Principal::Nuevo: return nuevo(sesion);
        case Principal::Abrir: return AbrirDibujo(sesion);
        case Principal::Guardar: return GuardarDibujo(sesion, {});
        case Principal::Ayuda: return sesion.plataforma.mostrarAyuda(sesion.carpeta / "Bosquel.chm");
        case Principal::Zoom: return EjecutarZOOM(sesion);
        case Principal::Definir: return MostrarPropiedades(sesion);
        case Principal::Opciones: return opciones(sesion);
        case Principal::Eliminar: return EliminarElemento(sesion, false);
        case Principal::Imprimir: return EnviarA(sesion);
        case Principal::Salir: return salir(sesion);
        case Principal::Colores: return colores(sesion);
    }
}

}  // namespace

void pulsarPrincipal(Sesion& sesion, Principal boton) {
    if (sesion.dibujo.ModoActual != Modo::Aspa) {
        retirarParedPendiente(sesion.dibujo);
        volverAlAspa(sesion);
    }
    CheckAutoSaving(sesion, true);
    ejecutar(sesion, boton);
    if (boton != Principal::Salir) CheckAutoSaving(sesion, false);
}

void cruzarPrincipal(Sesion& sesion, Principal boton) {
    const int indice = static_cast<int>(boton);
    if (sesion.bordeElevado == indice) return;
    sesion.bordeElevado = indice;
    sesion.vistaSucia = true;
}

void teclaSuprimir(Sesion& sesion) {
    pulsarPrincipal(sesion, Principal::Eliminar);
    ocultarMarco(sesion);
}

}  // namespace bosquel
