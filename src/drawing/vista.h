#pragma once

#include "drawing/sesion.h"

namespace bosquel {

// The view: the sheet lies under the viewport, moved by scroll bars, pan and zoom.

/// After any change of the sheet's size or place: a sheet no larger than the viewport stands at 0 with its
/// bar disabled, and so does one that was moved past its far side.
void ActualizarBarras(Sesion& sesion);

/// The user moved a scroll bar to `valor` percent.
void CambiarHScroll1(Sesion& sesion, int valor);
void CambiarVScroll1(Sesion& sesion, int valor);

/// The main window has a new inner size, in sheet units: the viewport follows, the ruler docks.
void Redimensionar(Sesion& sesion, double ancho, double alto);

/// What the window keeps for the controls around the viewport, in sheet units.
inline constexpr double margenAncho = 1860, margenAlto = 1600;

/// The sheet takes the size that the drawing's area has at the present zoom.
void MedirHoja(Sesion& sesion);

/// Where the top left corner of the part of the sheet on view lies by the scroll bars, in sheet units of the
/// sheet: what is created appears there.
struct Esquina {
    float Left = 0, Top = 0;
};
Esquina esquinaALaVista(const Sesion& sesion);

/// Draws the grid into the sheet's own picture, or clears it.
void DibujarCuadricula(Sesion& sesion);
void BorrarCuadricula(Sesion& sesion);

/// One step of the cycle of three zoom factors, with everything on the sheet.
void EjecutarZOOM(Sesion& sesion);

/// Cuts a coordinate down to the grid, toward zero, whatever the settings say of snapping. A grid of no width
/// leaves it as it is.
float ajustarACuadricula(const Dibujo& dibujo, float valor);

}  // namespace bosquel
