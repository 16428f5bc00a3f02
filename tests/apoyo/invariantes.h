#pragma once

namespace bosquel {
struct Sesion;
}

namespace bosquel::apoyo {

/// Wants what holds between any two events, whatever has happened before: numbers are finite, what refers to
/// an element refers to one that exists or to nothing, counters lie beyond what they count, nothing is
/// half-way.
void comprobar(const Sesion& sesion);

/// Wants finite strokes of all that the drawing sends out.
void comprobarTrazos(const Sesion& sesion);

/// Wants the session's map to tell of everything, and of a point of the sheet, what one made from scratch
/// tells.
void comprobarMapa(const Sesion& sesion, double x, double y);

}  // namespace bosquel::apoyo
