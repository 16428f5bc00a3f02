#include "drawing/creacion.h"

#include "drawing/archivo.h"
#include "drawing/elementos.h"
#include "drawing/foco.h"
#include "drawing/texto_libre.h"
#include "drawing/vista.h"
#include "model/numeros.h"
#include "stairs_symbols/catalogo.h"

#include <algorithm>

namespace bosquel {

namespace {

void mostrarEnLaVista(const Sesion& sesion, Situado& elemento) {
    const Esquina esquina = esquinaALaVista(sesion);
    elemento.Visible = true;
    elemento.Left = esquina.Left;
    elemento.Top = esquina.Top;
}

/// A new element of the kind, where the user sees it. Nothing if the file has left its counter at no index.
template <class T>
T* crear(Sesion& sesion, Clase clase, Coleccion<T>& coleccion) {
    const int indice = coleccion.contador;
    T* nuevo = coleccion.crearSiguiente();
    if (!nuevo) return nullptr;
    mostrarEnLaVista(sesion, *nuevo);
    anunciar(sesion.dibujo, clase, indice);
    return nuevo;
}

/// The element made last, which is selected as it comes.
template <class T>
Referencia ultimo(Clase clase, const Coleccion<T>& coleccion) {
    return {clase, static_cast<std::int16_t>(coleccion.contador - 1)};
}

void crearMueble(Sesion& sesion, Grupo grupo, int boton) {
    const auto& clases = todasLasClases();
    const auto fila = std::find_if(clases.begin(), clases.end(), [&](const DatosClase& una) {
        return una.grupo == grupo && una.boton == boton;
    });
    if (fila == clases.end()) return;
    CheckAutoSaving(sesion, true);
    conColeccion(sesion.dibujo, fila->clase, [&](auto& coleccion) {
        if constexpr (requires { coleccion.modelo().FactorZOOM; })
            if (crear(sesion, fila->clase, coleccion)) darFoco(sesion, ultimo(fila->clase, coleccion));
    });
    CheckAutoSaving(sesion, false);
}

}  // namespace

void pulsarMueble(Sesion& sesion, int indice) {
    if (sesion.dibujo.ModoActual == Modo::Aspa) crearMueble(sesion, Grupo::BttMueble, indice);
}

void pulsarBaño(Sesion& sesion, int indice) {
    crearMueble(sesion, Grupo::BttBaño, indice);
}

void pulsarCocina(Sesion& sesion, int indice) {
    crearMueble(sesion, Grupo::BttCocina, indice);
}

void pulsarElectrico(Sesion& sesion, int indice) {
    const bool hayBoton = indice >= 0 && static_cast<std::size_t>(indice) < simbolosDeBoton.size();
    if (!hayBoton || sesion.dibujo.ModoActual != Modo::Aspa) return;
    const SimboloDeBoton& simbolo = simbolosDeBoton[static_cast<std::size_t>(indice)];
    CheckAutoSaving(sesion, true);
    auto& coleccion = sesion.dibujo.Electrico;
    if (Electrico* nuevo = crear(sesion, Clase::Electrico, coleccion)) {
        ponerSimbolo(*nuevo, simbolo.ObjectType);
        nuevo->RectX = simbolo.RectX;
        nuevo->RectY = simbolo.RectY;
        quitarFoco(sesion);
        senalarElemento(sesion, ultimo(Clase::Electrico, coleccion));
    }
    CheckAutoSaving(sesion, false);
}

void crearTexto(Sesion& sesion) {
    auto& coleccion = sesion.dibujo.TextoLibre;
    TextoLibre* nuevo = crear(sesion, Clase::TextoLibre, coleccion);
    if (!nuevo) return;
    asignar(nuevo->FontSize, puntosDeTexto * sesion.dibujo.FactorZoomActual);
    ajustarATexto(sesion, *nuevo);
    darFoco(sesion, ultimo(Clase::TextoLibre, coleccion));
}

}  // namespace bosquel
