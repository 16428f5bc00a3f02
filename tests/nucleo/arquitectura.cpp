#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace fs = std::filesystem;

namespace {

const fs::path src = BOSQUEL_SRC;

/// The floors of the house: a module may include those on its own floor and below.
const std::map<std::string, int> pisos{{"model", 1},      {"platform", 1},    {"surface", 2},
                                       {"walls", 2},      {"openings", 2},    {"stairs_symbols", 3},
                                       {"furnishing", 4}, {"persistence", 4}, {"output", 5},
                                       {"appearance", 5}, {"drawing", 6},     {"ui", 7}};

/// Calls `paso(modulo, fichero, incluido)` for every include line of the sources; what stands in angle
/// brackets keeps them.
template <class Paso>
void porInclusiones(Paso paso) {
    for (const auto& entrada : fs::recursive_directory_iterator(src)) {
        const auto extension = entrada.path().extension();
        if (extension != ".h" && extension != ".cpp") continue;
        const std::string fichero = fs::relative(entrada.path(), src).string();
        std::ifstream archivo(entrada.path());
        for (std::string linea; std::getline(archivo, linea);) {
            if (!linea.starts_with("#include ")) continue;
            std::string incluido = linea.substr(9);
            if (incluido.starts_with('"')) incluido = incluido.substr(1, incluido.find('"', 1) - 1);
            paso(fichero.substr(0, fichero.find('/')), fichero, incluido);
        }
    }
}

}  // namespace

TEST(Arquitectura, NingunModuloIncluyeUnPisoMasAlto) {
    int vistas = 0;
    porInclusiones([&](const std::string& modulo, const std::string& fichero, const std::string& incluido) {
        const auto barra = incluido.find('/');
        if (incluido.starts_with('<') || barra == std::string::npos) return;
        const auto propio = pisos.find(modulo);
        const auto ajeno = pisos.find(incluido.substr(0, barra));
        ASSERT_NE(propio, pisos.end()) << fichero << ": a module without a floor";
        ASSERT_NE(ajeno, pisos.end()) << fichero << " includes " << incluido;
        EXPECT_LE(ajeno->second, propio->second) << fichero << " includes " << incluido;
        ++vistas;
    });
    EXPECT_GT(vistas, 50);
}

TEST(Arquitectura, SoloUiConoceQt) {
    porInclusiones([](const std::string& modulo, const std::string& fichero, const std::string& incluido) {
        if (modulo == "ui") return;
        EXPECT_FALSE(incluido.starts_with("<Q") || incluido.starts_with("Q"))
            << fichero << " includes " << incluido;
    });
}

TEST(Arquitectura, LoIncluidoDeLaCasaExiste) {
    porInclusiones([](const std::string&, const std::string& fichero, const std::string& incluido) {
        if (!incluido.starts_with('<') && incluido.find('/') != std::string::npos) {
            EXPECT_TRUE(fs::exists(src / incluido)) << fichero << " includes " << incluido;
        }
    });
}
