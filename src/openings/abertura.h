#pragma once

#include "model/dibujo.h"
#include "openings/trazado.h"

#include <optional>
#include <string>

namespace bosquel {

// What windows and doors have in common: they stand in a wall, and each has one grip.

/// What differs between the two kinds wherever the steps are the same.
template <class T>
struct Rasgos;

template <>
struct Rasgos<Ventana> {
    static constexpr Clase clase = Clase::Ventana;
    static constexpr Modo modo = Modo::Ventana;  ///< in which a new one waits for its wall
    static constexpr auto coleccion = &Dibujo::Ventana;
    static constexpr auto bajoPuntero = &Dibujo::VentanaBajoPuntero;
    static constexpr auto pinza = &Ventana::VentanaPick;
};

template <>
struct Rasgos<Puerta> {
    static constexpr Clase clase = Clase::Puerta;
    static constexpr Modo modo = Modo::Puerta;
    static constexpr auto coleccion = &Dibujo::Puerta;
    static constexpr auto bajoPuntero = &Dibujo::PuertaBajoPuntero;
    static constexpr auto pinza = &Puerta::PuertaPick;
};

/// The window or door at `indice`, never the model; nullptr for a hole.
template <class T>
T* abertura(Dibujo& dibujo, int indice) {
    return indice > 0 ? (dibujo.*Rasgos<T>::coleccion).en(indice) : nullptr;
}

/// Calls `paso(abertura)` with the window or door that is meant; not at all for a hole.
template <class D, class Paso>
void conAbertura(D& dibujo, Referencia cual, Paso paso) {
    if (cual.clase == Clase::Ventana) {
        if (auto* ventana = dibujo.Ventana.en(cual.indice)) paso(*ventana);
    } else if (auto* puerta = dibujo.Puerta.en(cual.indice)) {
        paso(*puerta);
    }
}

/// The wall of an opening, if it exists and stands on the sheet.
const Pared* paredTrazada(const Dibujo& dibujo, const Abertura& abertura);

/// True while the opening's wall is being dragged, and the opening with it.
bool enMovimiento(const Dibujo& dibujo, const Abertura& abertura);

/// The side as the wall's lines have it, and back: line 1 is the upper one, but for negative angles the lower
/// one, so that "Arriba" and "Abajo" change places. Any other word stays.
std::string ladoEfectivo(const std::string& lado, int angulo);
std::string ladoEfectivo(const Abertura& abertura);

/// How far from the start of its wall an opening of this length begins, mm.
double distanciaEnPared(const Abertura& abertura, const Pared& pared, double longitud);

/// The ground on which the lines of an opening are drawn in a wall.
Ejes ejesDe(const Abertura& abertura, const Pared& pared, double factor);

inline constexpr double ladoPinzaAbertura = 200;  ///< mm

/// The extent of all that the opening shows on the sheet; nothing if it shows nothing.
std::optional<Recuadro> contorno(const Ventana& ventana);
std::optional<Recuadro> contorno(const Puerta& puerta);

/// A zone of an opening has to be painted again, as something that moves if its wall does.
void ensuciar(Dibujo& dibujo, const Abertura& abertura, const std::optional<Recuadro>& zona);

template <class T>
void ensuciar(Dibujo& dibujo, const T& abertura) {
    ensuciar(dibujo, abertura, contorno(abertura));
}

/// The grip in a colour, where it is in the z-order.
template <class T>
void pintarPinza(Dibujo& dibujo, T& abertura, Color color) {
    Pinza& pinza = abertura.*Rasgos<T>::pinza;
    pinza.BackColor = color;
    if (pinza.Visible) ensuciar(dibujo, abertura, pinza.recuadro());
}

/// The grip white and behind all other elements.
template <class T>
void deseleccionar(Dibujo& dibujo, int indice) {
    T* abierta = abertura<T>(dibujo, indice);
    if (!abierta) return;
    pintarPinza(dibujo, *abierta, blanco);
    alFondo(dibujo, abierta->*Rasgos<T>::pinza);
}

/// Makes the opening the current element; the marks of its wall and of the one crossed last go.
template <class T>
void seleccionar(Dibujo& dibujo, int indice);

extern template void seleccionar<Ventana>(Dibujo& dibujo, int indice);
extern template void seleccionar<Puerta>(Dibujo& dibujo, int indice);

}  // namespace bosquel
