#include "drawing/hoja.h"
#include "drawing/regla.h"
#include "drawing/seleccion.h"
#include "drawing/vista.h"
#include "model/numeros.h"
#include "openings/abertura.h"
#include "walls/pared.h"
#include "walls/pared_prop.h"

namespace bosquel {

namespace {

/// The extent of the rubber line has to be painted again, as something that moves over what stands still.
void ensuciarVector(Sesion& sesion) {
    sesion.dibujo.paso.anadir(contorno(sesion.Vector));
}

void estirarVector(Sesion& sesion, float X, float Y) {
    ensuciarVector(sesion);
    sesion.Vector.X2 = X;
    sesion.Vector.Y2 = Y;
    ensuciarVector(sesion);
}

/// Where an edge of the sheet goes when it is drawn by `paso`: never past the viewport's edges.
void desplazar(float& lugar, std::int32_t paso, double hoja, double visor) {
    const double nuevo = static_cast<double>(lugar) + paso;
    if (nuevo > 0)
        lugar = 0;
    else
        asignar(lugar, nuevo < visor - hoja ? visor - hoja : nuevo);
}

/// The sheet moves by the drawn line, so that the point under the press ends up under the release.
void desplazarHoja(Sesion& sesion) {
    ensuciarVector(sesion);
    Segmento& vector = sesion.Vector;
    vector.Visible = false;
    Arrastre& arrastre = sesion.dibujo.arrastre;
    asignar(arrastre.ArrastreDX, static_cast<double>(vector.X2) - vector.X1);
    asignar(arrastre.ArrastreDY, static_cast<double>(vector.Y2) - vector.Y1);
    HojaDibujo& hoja = sesion.dibujo.Hoja;
    desplazar(hoja.Left, arrastre.ArrastreDX, hoja.Width, sesion.visorAncho);
    desplazar(hoja.Top, arrastre.ArrastreDY, hoja.Height, sesion.visorAlto);
    ActualizarBarras(sesion);
}

/// A new wall gets its start point as it stands, whatever the grid, and then its dialog.
void situarPared(Sesion& sesion, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    const int indice = dibujo.Pared.contador - 1;
    if (Pared* pared = indice > 0 ? dibujo.Pared.en(indice) : nullptr) {
        pared->InicialX = X;
        pared->InicialY = Y;
    }
    volverAlAspa(sesion);
    ParedProp dialogo(dibujo, indice);
    mostrar(sesion, dialogo);
}

template <class T>
void soltarMarca(Dibujo& dibujo) {
    const int indice = dibujo.*Rasgos<T>::bajoPuntero;
    const T* cruzada = abertura<T>(dibujo, indice);
    if (cruzada && (cruzada->*Rasgos<T>::pinza).BackColor != rojo) deseleccionar<T>(dibujo, indice);
}

/// A red grip belongs to the selected element and stays.
void soltarMarcas(Dibujo& dibujo) {
    const Pared* pared = dibujo.Pared.en(dibujo.ParedBajoPuntero);
    if (pared && pared->ParedPick.BackColor != rojo) DeseleccionaPared(dibujo, dibujo.ParedBajoPuntero);
    soltarMarca<Ventana>(dibujo);
    soltarMarca<Puerta>(dibujo);
}

}  // namespace

void pulsarHoja(Sesion& sesion, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    QuitarSeleccion(dibujo);
    if (dibujo.ModoActual != Modo::Aspa) return;
    sesion.Vector = {X, Y, X, Y, true};
    dibujo.ElementoActual.reset();
}

void moverHoja(Sesion& sesion, bool boton1, float X, float Y) {
    Dibujo& dibujo = sesion.dibujo;
    switch (dibujo.ModoActual) {
        case Modo::Aspa:
            if (boton1) return estirarVector(sesion, X, Y);
            sesion.plataforma.ponerCursor(Cursor::Cruz);
            QuitarBordeElevado(sesion);
            break;
        case Modo::Flecha:
            ponerModo(sesion, Modo::Aspa);
            soltarMarcas(dibujo);
            break;
        case Modo::Seleccion: {
            const Pared* pared = dibujo.Pared.en(dibujo.ParedBajoPuntero);
            if (pared && pared->ParedPick.BackColor != rojo) {
                QuitarSeleccion(dibujo);
                apagar(dibujo, {Clase::Escalera, dibujo.EscaleraBajoPuntero});
            }
            break;
        }
        case Modo::PrimeraPared:
        case Modo::SegundaPared:
        case Modo::Union1:
        case Modo::Union2:
        case Modo::Separar:
        case Modo::Pared:
        case Modo::Ventana:
        case Modo::Puerta:
        case Modo::Escalera: break;
    }
}

void soltarHoja(Sesion& sesion, float X, float Y) {
    if (sesion.dibujo.ModoActual == Modo::Aspa) return desplazarHoja(sesion);
    if (sesion.dibujo.ModoActual == Modo::Pared) situarPared(sesion, X, Y);
}

void dobleClicHoja(Sesion& sesion) {
    if (sesion.dibujo.ModoActual == Modo::Aspa) alternarRegla(sesion);
}

void QuitarBordeElevado(Sesion& sesion) {
    if (sesion.bordeElevado < 0) return;
    sesion.bordeElevado = -1;
    sesion.vistaSucia = true;
}

}  // namespace bosquel
