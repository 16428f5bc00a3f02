#include "apoyo/muestrario.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// The strokes of all layouts of a kind, as they are kept.
std::string listado(Clase clase) {
    std::string texto;
    for (const Muestra& muestra : muestrario()) {
        if (muestra.clase != clase) continue;
        for (const auto& [factor, escala] : {std::pair{1.0, 1.0}, std::pair{0.5, escalaDeSalida}}) {
            if (clase == Clase::Escalera && escala == 1) continue;  // one of the two is long enough
            texto += "[" + muestra.titulo + (escala == 1 ? "" : ", output") + "]\n";
            for (const std::string& trazo : trazosDe(dibujoDe(muestra, factor), clase, escala))
                texto += trazo + "\n";
        }
    }
    return texto;
}

std::string leido(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

}  // namespace

/// With BOSQUEL_RENOVAR in the environment the kept files are written anew: look at what git says has
/// changed.
TEST(FigurasGuardadas, CadaClaseDaLosTrazosDeSiempre) {
    std::set<Clase> clases;
    for (const Muestra& muestra : muestrario())
        clases.insert(muestra.clase);
    for (const Clase clase : clases) {
        const std::string ruta = BOSQUEL_FIGURAS "/" + std::string(datos(clase).nombre) + ".txt";
        const std::string texto = listado(clase);
        if (std::getenv("BOSQUEL_RENOVAR")) std::ofstream(ruta, std::ios::binary) << texto;
        EXPECT_TRUE(leido(ruta) == texto) << ruta;
    }
}
