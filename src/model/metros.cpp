#include "model/metros.h"

#include "model/numeros.h"
#include "model/textos_numero.h"

namespace bosquel {

std::string enMetros(double milimetros) {
    return formatoMetros(milimetros / milimetrosPorMetro);
}

void leerMetros(double& milimetros, std::string_view tecleado) {
    if (const auto metros = realTecleado(tecleado)) asignar(milimetros, *metros * milimetrosPorMetro);
}

}  // namespace bosquel
