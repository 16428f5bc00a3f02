#include "apoyo/dibujo_guardado.h"

#include <algorithm>

namespace bosquel::apoyo {

Lineas seccion(const Lineas& lineas, const std::string& nombre) {
    const auto cabeza = std::find(lineas.begin(), lineas.end(), "[" + nombre + "]");
    if (cabeza == lineas.end()) return {};
    return {cabeza + 1, std::find(cabeza, lineas.end(), "")};
}

Lineas cabezas(const Lineas& lineas) {
    Lineas halladas;
    std::copy_if(lineas.begin(), lineas.end(), std::back_inserter(halladas),
                 [](const std::string& linea) { return linea.starts_with('['); });
    return halladas;
}

std::string valor(const Lineas& lineas, const std::string& seccion_, const std::string& clave) {
    for (const std::string& linea : seccion(lineas, seccion_))
        if (linea.starts_with(clave + "=")) return linea.substr(clave.size() + 1);
    return {};
}

Lineas sinOcultos(const Lineas& lineas) {
    Lineas quedan;
    for (const std::string& cabeza : cabezas(lineas)) {
        const Lineas dentro = seccion(lineas, cabeza.substr(1, cabeza.size() - 2));
        const bool puedeSobrar = cabeza.starts_with("[Escalera(") || cabeza.starts_with("[Electrico(");
        if (puedeSobrar && std::count(dentro.begin(), dentro.end(), "Visible=Falso") > 0) continue;
        quedan.push_back(cabeza);
        std::copy_if(dentro.begin(), dentro.end(), std::back_inserter(quedan),
                     [](const std::string& linea) { return !linea.starts_with("NumElectrico="); });
    }
    return quedan;
}

}  // namespace bosquel::apoyo
