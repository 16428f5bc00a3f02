#pragma once

#include <cstdlib>
#include <vector>

namespace bosquel::apoyo {

/// A number out of the environment.
inline unsigned long delEntorno(const char* variable, unsigned long sinElla) {
    const char* valor = std::getenv(variable);
    return valor ? std::strtoul(valor, nullptr, 10) : sinElla;
}

/// The seeds of a monkey: 1 to `cuantas`, or the one that the environment asks for.
inline std::vector<unsigned> semillas(unsigned cuantas) {
    if (const auto una = static_cast<unsigned>(delEntorno("BOSQUEL_MONO_SEMILLA", 0)); una != 0) return {una};
    std::vector<unsigned> todas;
    for (unsigned semilla = 1; semilla <= cuantas; ++semilla)
        todas.push_back(semilla);
    return todas;
}

/// The steps that it takes with each.
inline int pasosDelMono(unsigned sinEntorno) {
    return static_cast<int>(delEntorno("BOSQUEL_MONO_PASOS", sinEntorno));
}

}  // namespace bosquel::apoyo
