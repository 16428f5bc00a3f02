#include "apoyo/dibujo_guardado.h"
#include "apoyo/plataforma_muda.h"
#include "carpeta.h"
#include "drawing/bosquel.h"
#include "exigir.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "persistence/archivo_dibujo.h"
#include "surface/medidora.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// Opens arbitrary bytes as a drawing and does with it what a user does first: sees it, zooms it, sends it out
// and saves it; and what was saved has to come back as it was. Any fault ends the program.

using namespace bosquel;

namespace {

namespace fs = std::filesystem;

/// Drawings that promise more elements than these are left to the tests, since each would take the place of
/// hundreds of others. One kind may promise all that it can.
constexpr int demasiados = 40'000;
/// With more than these a drawing is opened, drawn and zoomed, but not saved, in three files of many
/// megabytes.
constexpr int muchos = 2'000;

/// An outside that shows nothing, asks nobody and answers with one file.
class PlataformaDeUnFichero : public apoyo::PlataformaMuda {
  public:
    fs::path archivo;

    Respuesta mensaje(const Mensaje&) override { return Respuesta::aceptar; }
    std::optional<fs::path> elegirArchivo(const PeticionArchivo&) override { return archivo; }
    Medida medirTexto(const std::string& texto, double FontSize) override {
        return {FontSize * static_cast<double>(texto.size()), FontSize};
    }
};

int elementosQuePromete(const fs::path& ruta) {
    Dibujo dibujo;
    leerCabecera(ArchivoPerfil(ruta), dibujo);
    int total = 0;
    for (const DatosClase& fila : todasLasClases())
        total +=
            conColeccion(dibujo, fila.clase, [](const auto& una) { return std::max<int>(una.contador, 0); });
    return total;
}

void dibujar(const Dibujo& dibujo) {
    Medidora medidora;
    DibujarTodo(salidaDe(dibujo, medidora, 1.1338582677), dibujo);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer([&](int indice, const auto&) {
                recuadroDe(dibujo, fila.clase, indice);
                extensionDe(dibujo, fila.clase, indice);
            });
        });
}

/// The program, with one file to open and to save.
class Programa {
  public:
    explicit Programa(const fs::path& carpeta) : bosquel_(plataforma_, carpeta) { bosquel_.cargar(); }

    const Dibujo& dibujo() { return bosquel_.sesion().dibujo; }
    void pulsar(Principal boton) { bosquel_.pulsarPrincipal(boton); }

    void abrir(const fs::path& ruta) {
        plataforma_.archivo = ruta;
        pulsar(Principal::Abrir);
    }
    /// The lines of what was saved.
    apoyo::Lineas guardar(const fs::path& ruta) {
        plataforma_.archivo = ruta;
        pulsar(Principal::Guardar);
        std::ifstream archivo(ruta, std::ios::binary);
        apoyo::Lineas lineas;
        for (std::string linea; std::getline(archivo, linea);)
            lineas.push_back(linea.substr(0, linea.find_last_not_of('\r') + 1));
        return lineas;
    }

  private:
    PlataformaDeUnFichero plataforma_;
    Bosquel bosquel_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    static const fuzz::Carpeta carpeta;
    const fs::path entrada = carpeta / "entrada.bqr";
    const fs::path salida = carpeta / "salida.bqr";
    {
        std::ofstream archivo(entrada, std::ios::binary);
        std::copy_n(datos, cuantos, std::ostreambuf_iterator<char>(archivo));
    }
    const int prometidos = elementosQuePromete(entrada);
    if (prometidos > demasiados) return 0;

    Programa programa(carpeta.ruta());
    programa.abrir(entrada);
    for (int paso = 0; paso < 3; ++paso) {
        dibujar(programa.dibujo());
        programa.pulsar(Principal::Zoom);
    }

    if (prometidos > muchos) return 0;

    // What does not read back as it was is settled the first time: from then on nothing changes.
    programa.guardar(salida);
    programa.abrir(salida);
    const apoyo::Lineas antes = programa.guardar(salida);
    programa.abrir(salida);
    fuzz::exigir(programa.guardar(salida) == apoyo::trasAbrir(antes), "what is saved comes back");
    return 0;
}
