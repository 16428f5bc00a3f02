// The drawing file: opening and saving, against the same bytes read and written in one go, and against GLib.

#include "puesto.h"

#include <benchmark/benchmark.h>
#include <fstream>
#include <glib.h>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace bosquel::bench {

namespace {

namespace fs = std::filesystem;

using Secciones =
    std::unordered_map<std::string_view, std::unordered_map<std::string_view, std::string_view>>;

std::string leerEntero(const fs::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

/// The lines of a profile file as a table, in one pass.
Secciones separar(std::string_view texto) {
    Secciones secciones;
    auto* actual = &secciones[""];
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find("\r\n"), texto.size());
        const std::string_view linea = texto.substr(0, fin);
        texto.remove_prefix(std::min(fin + 2, texto.size()));
        if (linea.empty()) continue;
        if (linea.front() == '[') {
            actual = &secciones[linea.substr(1, linea.size() - 2)];
            continue;
        }
        const std::size_t igual = linea.find('=');
        if (igual != std::string_view::npos) actual->emplace(linea.substr(0, igual), linea.substr(igual + 1));
    }
    return secciones;
}

/// Every section and key of a file, in its order.
std::vector<std::pair<std::string, std::string>> clavesDe(std::string_view texto) {
    std::vector<std::pair<std::string, std::string>> claves;
    for (const auto& [seccion, valores] : separar(texto))
        for (const auto& [clave, valor] : valores)
            claves.emplace_back(seccion, clave);
    return claves;
}

/// A drawing of so many elements, saved.
struct Guardado {
    Puesto puesto;
    std::string texto;

    explicit Guardado(int elementos) : puesto(elementos) {
        puesto.bosquel().pulsarPrincipal(Principal::Guardar);
        texto = leerEntero(puesto.archivo());
    }
};

void contar(benchmark::State& estado, const std::string& texto) {
    estado.SetBytesProcessed(static_cast<std::int64_t>(estado.iterations() * texto.size()));
}

void abrir(benchmark::State& estado) {
    Guardado guardado(static_cast<int>(estado.range(0)));
    for (auto _ : estado)
        guardado.puesto.bosquel().pulsarPrincipal(Principal::Abrir);
    contar(estado, guardado.texto);
}

void sueloAbrir(benchmark::State& estado) {
    const Guardado guardado(static_cast<int>(estado.range(0)));
    const auto claves = clavesDe(guardado.texto);
    for (auto _ : estado) {
        const std::string texto = leerEntero(guardado.puesto.archivo());
        const Secciones secciones = separar(texto);
        std::size_t largo = 0;
        for (const auto& [seccion, clave] : claves)
            largo += secciones.at(seccion).at(clave).size();
        benchmark::DoNotOptimize(largo);
    }
    contar(estado, guardado.texto);
}

void glibAbrir(benchmark::State& estado) {
    const Guardado guardado(static_cast<int>(estado.range(0)));
    const auto claves = clavesDe(guardado.texto);
    for (auto _ : estado) {
        const std::string texto = leerEntero(guardado.puesto.archivo());
        const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> fichero(g_key_file_new(),
                                                                            g_key_file_free);
        g_key_file_load_from_data(fichero.get(), texto.data(), texto.size(), G_KEY_FILE_NONE, nullptr);
        for (const auto& [seccion, clave] : claves)
            g_free(g_key_file_get_value(fichero.get(), seccion.c_str(), clave.c_str(), nullptr));
    }
    contar(estado, guardado.texto);
}

void guardar(benchmark::State& estado) {
    Guardado guardado(static_cast<int>(estado.range(0)));
    for (auto _ : estado)
        guardado.puesto.bosquel().pulsarPrincipal(Principal::Guardar);
    contar(estado, guardado.texto);
}

void sueloGuardar(benchmark::State& estado) {
    const Guardado guardado(static_cast<int>(estado.range(0)));
    const Secciones secciones = separar(guardado.texto);
    for (auto _ : estado) {
        std::string texto;
        for (const auto& [seccion, valores] : secciones) {
            texto += '[';
            texto += seccion;
            texto += "]\r\n";
            for (const auto& [clave, valor] : valores) {
                texto += clave;
                texto += '=';
                texto += valor;
                texto += "\r\n";
            }
        }
        std::ofstream(guardado.puesto.archivo(), std::ios::binary) << texto;
    }
    contar(estado, guardado.texto);
}

void glibGuardar(benchmark::State& estado) {
    const Guardado guardado(static_cast<int>(estado.range(0)));
    const Secciones secciones = separar(guardado.texto);
    std::vector<std::array<std::string, 3>> lineas;
    for (const auto& [seccion, valores] : secciones)
        for (const auto& [clave, valor] : valores)
            lineas.push_back({std::string(seccion), std::string(clave), std::string(valor)});
    for (auto _ : estado) {
        const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> fichero(g_key_file_new(),
                                                                            g_key_file_free);
        for (const auto& [seccion, clave, valor] : lineas)
            g_key_file_set_value(fichero.get(), seccion.c_str(), clave.c_str(), valor.c_str());
        g_key_file_save_to_file(fichero.get(), guardado.puesto.archivo().c_str(), nullptr);
    }
    contar(estado, guardado.texto);
}

void tamanos(benchmark::internal::Benchmark* una) {
    una->Arg(100)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(sueloAbrir)->Apply(tamanos);
BENCHMARK(glibAbrir)->Apply(tamanos);
BENCHMARK(abrir)->Apply(tamanos);
BENCHMARK(sueloGuardar)->Apply(tamanos);
BENCHMARK(glibGuardar)->Apply(tamanos);
BENCHMARK(guardar)->Apply(tamanos);

}  // namespace

}  // namespace bosquel::bench
