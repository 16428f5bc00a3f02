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

/// What a save writes, line by line, once the drawing that an earlier save wrote has been opened: the same,
/// but for the gaps that come back as hidden elements, the one symbol beyond the last, its counter, and texts
/// that do not read back as they stand. Worked out from the lines alone, under the locale of the process.
Lineas trasAbrir(const Lineas& guardado);

}  // namespace bosquel::apoyo
