#pragma once

#include <optional>
#include <string_view>

namespace bosquel {

/// The grammar of a single line of a profile file, in bytes of Windows-1252. Lines are given with their end.

/// What ends a line that is written.
inline constexpr std::string_view finDeLinea = "\r\n";

/// Takes the first line off the text. CR LF, LF and CR each end one; the last line needs no end.
std::string_view tomarLinea(std::string_view& texto);

bool tieneFin(std::string_view linea);
bool esVacia(std::string_view linea);

/// A section's or a key's name as it counts: up to a NUL, without the blanks around it.
std::string_view nombre(std::string_view texto);

/// The name in a section head; nothing for any other line.
std::optional<std::string_view> nombreDeCabecera(std::string_view linea);

/// Both sides of the first "=", without the blanks around them but otherwise as they are spelled; nothing for
/// a section head or a line without "=".
struct Par {
    std::string_view clave;
    std::string_view valor;
};
std::optional<Par> parDeLinea(std::string_view linea);

/// What a reader gets of a value: up to a NUL, without blanks around it, without one pair of like quotes, and
/// no longer than the longest readable value.
std::string_view valorLegible(std::string_view valor);

}  // namespace bosquel
