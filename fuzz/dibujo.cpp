#include "apoyo/dibujo_guardado.h"
#include "carpeta.h"
#include "drawing/bosquel.h"
#include "exigir.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
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

/// Drawings of more elements than these are opened, drawn and zoomed, but not saved: the three files of one
/// of them, each of many megabytes, would take the place of a thousand others. Saving them is the tests'.
constexpr int muchos = 2000;

/// An outside that shows nothing, asks nobody and answers with one file.
class PlataformaMuda : public Plataforma {
  public:
    fs::path archivo;

    Respuesta mensaje(const Mensaje&) override { return Respuesta::aceptar; }
    void mostrar(Colores&) override {}
    void mostrar(ElectricoProp&) override {}
    void mostrar(Entrada&) override {}
    void mostrar(EscaleraProp&) override {}
    void mostrar(ImageCrop&) override {}
    void mostrar(MesaProp&) override {}
    void mostrar(MuebleProp&) override {}
    void mostrar(Opciones&) override {}
    void mostrar(ParedProp&) override {}
    void mostrar(PuertaProp&) override {}
    void mostrar(VentanaProp&) override {}
    void mostrar(Paralelas&) override {}
    std::optional<fs::path> elegirArchivo(const PeticionArchivo&) override { return archivo; }
    std::string pedirTexto(const PeticionTexto&) override { return {}; }
    Medida medirTexto(const std::string& texto, double FontSize) override {
        return {FontSize * static_cast<double>(texto.size()), FontSize};
    }
    void cederEventos(Espera) override {}
    void activar(Reloj, bool) override {}
    void ponerCursor(Cursor) override {}
    void ponerRelojDeArena(bool) override {}
    void ponerTitulo(const std::string&) override {}
    void vistaCambiada() override {}
    void repintar(const ZonaSucia&, const ZonaSucia&) override {}
    void mostrarAyuda(const fs::path&) override {}
    void terminar() override {}
};

int elementosDe(const Dibujo& dibujo) {
    int total = 0;
    for (const DatosClase& fila : todasLasClases())
        total += conColeccion(dibujo, fila.clase, [](const auto& una) { return una.ultimo(); });
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

    const Dibujo& dibujo() const { return bosquel_.sesion().dibujo; }
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
    PlataformaMuda plataforma_;
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
    Programa programa(carpeta.ruta());
    programa.abrir(entrada);
    for (int paso = 0; paso < 3; ++paso) {
        dibujar(programa.dibujo());
        programa.pulsar(Principal::Zoom);
    }

    if (elementosDe(programa.dibujo()) > muchos) return 0;

    // What does not read back as it was is settled the first time: from then on nothing changes.
    programa.guardar(salida);
    programa.abrir(salida);
    const apoyo::Lineas antes = programa.guardar(salida);
    programa.abrir(salida);
    fuzz::exigir(programa.guardar(salida) == apoyo::trasAbrir(antes), "what is saved comes back");
    return 0;
}
