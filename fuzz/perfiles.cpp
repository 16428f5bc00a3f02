#include "persistence/perfiles.h"

#include "apoyo/perfil_ingenuo.h"
#include "carpeta.h"
#include "exigir.h"
#include "model/windows1252.h"
#include "persistence/lineas_perfil.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

// Reads and writes arbitrary keys of a profile file of arbitrary bytes, value by value and as a batch, and
// holds both against the plain way of doing it. The bytes are parted by 0x1F: the file, and then section, key
// and value of one operation after the other; where the last one has no value, the key is only read.

using namespace bosquel;
using apoyo::PerfilIngenuo;
using fuzz::exigir;

namespace {

namespace fs = std::filesystem;

constexpr char separador = '\x1F';
constexpr std::size_t muchas = 12;  ///< operations: each of them goes to disk
const std::string nada = "-";

std::vector<std::string> partir(const std::string& bytes) {
    std::vector<std::string> partes(1);
    for (const char c : bytes)
        if (c == separador)
            partes.emplace_back();
        else
            partes.back() += c;
    return partes;
}

void poner(const fs::path& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string bytesDe(const fs::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

/// The same keys, as far as they are plain, all at once into the section that the bytes begin with.
void comprobarVarias(const std::vector<std::string>& partes, PerfilIngenuo& modelo, const fs::path& una,
                     ArchivoPerfil& tanda) {
    const std::string& seccion = partes[0];
    std::vector<std::string_view> claves;
    std::vector<ValorPerfil> valores;
    for (std::size_t i = 1; i + 2 < partes.size() && i < 3 * muchas; i += 3) {
        claves.push_back(partes[i + 1]);
        if (sonLlanas(claves))
            valores.push_back({partes[i + 1], aUtf8(partes[i + 2])});
        else
            claves.pop_back();
    }
    for (const auto& [clave, valor] : valores) {
        modelo.guardar(seccion, std::string(clave), aWindows1252(valor));
        GuardarIni(una, aUtf8(seccion), clave, valor);
    }
    tanda.guardar(aUtf8(seccion), valores);
    std::vector<std::optional<std::string_view>> leidos(claves.size());
    tanda.buscar(aUtf8(seccion), claves, leidos);
    for (std::size_t i = 0; i < claves.size(); ++i)
        exigir(aWindows1252(leidos[i].value_or(nada)) == modelo.leer(seccion, std::string(claves[i]), nada),
               "several values are read at once");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t cuantos) {
    static const fuzz::Carpeta carpeta;
    const fs::path una = carpeta / "una.ini";
    const fs::path otra = carpeta / "otra.ini";
    const std::vector<std::string> partes = partir(std::string(datos, datos + cuantos));
    poner(una, partes[0]);
    poner(otra, partes[0]);

    PerfilIngenuo modelo(partes[0]);
    ArchivoPerfil tanda(otra);
    for (std::size_t i = 1; i + 1 < partes.size() && i < 3 * muchas; i += 3) {
        const std::string& seccion = partes[i];
        const std::string& clave = partes[i + 1];
        const auto comprobar = [&](const char* cuando) {
            const std::string esperado = modelo.leer(seccion, clave, nada);
            exigir(aWindows1252(LeerIni(una, aUtf8(seccion), aUtf8(clave), nada)) == esperado, cuando);
            exigir(aWindows1252(tanda.leer(aUtf8(seccion), aUtf8(clave), nada)) == esperado, cuando);
        };
        comprobar("a value is read");
        if (i + 2 == partes.size()) break;
        modelo.guardar(seccion, clave, partes[i + 2]);
        GuardarIni(una, aUtf8(seccion), aUtf8(clave), aUtf8(partes[i + 2]));
        tanda.guardar(aUtf8(seccion), aUtf8(clave), aUtf8(partes[i + 2]));
        comprobar("a value is read after it was written");
    }
    comprobarVarias(partes, modelo, una, tanda);
    tanda.volcar();
    exigir(bytesDe(una) == modelo.bytes(), "value by value gives the same bytes");
    exigir(bytesDe(otra) == modelo.bytes(), "a batch gives the same bytes");
    return 0;
}
