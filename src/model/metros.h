#pragma once

#include <string>
#include <string_view>

namespace bosquel {

inline constexpr double milimetrosPorMetro = 1000;

/// A length, which a drawing has in millimetres, as a dialog has it: in metres.
std::string enMetros(double milimetros);
/// A text that is no number leaves the length as it was.
void leerMetros(double& milimetros, std::string_view tecleado);

}  // namespace bosquel
