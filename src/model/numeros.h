#pragma once

#include <cstdint>
#include <optional>

namespace bosquel {

/// Rounds to a whole number, an exact half to the even neighbour: the only rounding of coordinates.
double redondear(double valor);

/// Cuts the fraction off, toward zero.
double truncar(double valor);

/// The value rounded half to even, or nothing if it lies outside of the type (or is no number).
std::optional<std::int16_t> entero16(double valor);
std::optional<std::int32_t> entero32(double valor);

/// The value as a 32-bit float; NaN if no finite 32-bit float holds it.
float simple(double valor);

/// Stores `valor`, unless it is infinite or no number: then `destino` keeps what it has. All arithmetic on
/// the drawing is stored through these, so that nothing but finite numbers ever gets into it.
void asignar(float& destino, double valor);
void asignar(double& destino, double valor);
void asignar(std::int16_t& destino, double valor);
void asignar(std::int32_t& destino, double valor);

/// Adds 1 to a counter; one that has reached the end of the 16-bit range stays there.
void avanzar(std::int16_t& contador);

}  // namespace bosquel
