#pragma once

#include <string>
#include <vector>

namespace bosquel::apoyo {

using Lineas = std::vector<std::string>;

/// The lines of one section of a saved drawing, without its head and the blank line after it; none if there
/// is no such section.
Lineas seccion(const Lineas& lineas, const std::string& nombre);

/// The section heads in their order.
Lineas cabezas(const Lineas& lineas);

/// The value of a key; empty if it is not there.
std::string valor(const Lineas& lineas, const std::string& seccion_, const std::string& clave);

/// The drawing without what opening a file adds to it: the hidden stair and symbol, and the step of the
/// symbols' counter.
Lineas sinOcultos(const Lineas& lineas);

}  // namespace bosquel::apoyo
