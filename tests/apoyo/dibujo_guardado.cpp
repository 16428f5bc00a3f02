#include "apoyo/dibujo_guardado.h"

#include "model/clases.h"
#include "model/textos_numero.h"
#include "model/windows1252.h"

#include <algorithm>
#include <map>
#include <utility>

namespace bosquel::apoyo {

namespace {

/// The keys of a section in their order, with their values.
using Claves = std::vector<std::pair<std::string, std::string>>;
using Secciones = std::map<std::string, Claves>;

const std::string* valorDe(const Claves& claves, const std::string& clave) {
    const auto par =
        std::find_if(claves.begin(), claves.end(), [&](const auto& uno) { return uno.first == clave; });
    return par == claves.end() ? nullptr : &par->second;
}

/// Replaces the value of a key that is there.
void poner(Claves& claves, const std::string& clave, const std::string& valor) {
    for (auto& [una, suyo] : claves)
        if (una == clave) suyo = valor;
}

bool conservaHuecos(Clase clase) {
    return clase >= Clase::Pared && clase <= Clase::TextoLibre;
}

/// The last index that opening reads: for stairs and symbols that of the counter, for all others the one
/// before.
int ultimoLeido(const DatosClase& fila, const Claves& cabecera) {
    const bool suContador = fila.clase == Clase::Escalera || fila.clase == Clase::Electrico;
    return std::stoi(*valorDe(cabecera, aWindows1252(fila.contador))) - (suContador ? 0 : 1);
}

/// A text as it comes back: without a pair of quotes, and no longer than 254 characters.
std::string leido(std::string valor) {
    const bool comillas =
        valor.size() > 1 && valor.front() == valor.back() && (valor.front() == '"' || valor.front() == '\'');
    return (comillas ? valor.substr(1, valor.size() - 2) : valor).substr(0, 254);
}

/// The sections of a saved drawing with the values that opening takes out of them.
Secciones leidas(const Lineas& guardado) {
    Secciones todas;
    std::string nombre;
    for (const std::string& linea : guardado) {
        if (linea.starts_with('[')) nombre = linea.substr(1, linea.size() - 2);
        const auto igual = linea.find('=');
        if (linea.starts_with('[') || igual == std::string::npos) continue;
        todas[nombre].emplace_back(linea.substr(0, igual), leido(linea.substr(igual + 1)));
    }
    for (auto& [seccion, claves] : todas) {
        // Written with a point, read as the locale has it.
        const std::string* angulo = seccion.starts_with("Electrico(") ? valorDe(claves, "Angle") : nullptr;
        if (angulo) poner(claves, "Angle", UnificarFormato(textoReal(realDeTexto(*angulo).value())));
    }
    return todas;
}

/// What opening makes of an index without a section, of a kind that keeps no gaps: the model's like, hidden.
Claves oculta(const Secciones& antes, const std::string& clase) {
    Claves claves = antes.at(clase + "(0)");
    for (const auto& [clave, valor] : {std::pair{"Visible", "Falso"},
                                       {"LineColor", "0"},
                                       {"BackColor", "16777215"},
                                       {"Escurridor", "Verdadero"}})
        poner(claves, clave, valor);
    if (clase != "Mesa") return claves;
    for (const auto& [clave, valor] : {std::pair{"Left", "0"},
                                       {"Top", "0"},
                                       {"AltoSilla", "300"},
                                       {"AnchoSilla", "400"},
                                       {"ColocacionSillas", "4RLUD"},
                                       {"MesaDimX", "1000"},
                                       {"MesaDimY", "1000"}})
        poner(claves, clave, valor);
    poner(claves, "FactorZOOM", *valorDe(antes.at("Cabecera"), "FactorZoomActual"));
    return claves;
}

}  // namespace

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

Lineas trasAbrir(const Lineas& guardado) {
    const Secciones antes = leidas(guardado);
    Secciones despues{{"Cabecera", antes.at("Cabecera")}};
    Lineas orden{"Cabecera", "Colores"};
    for (const DatosClase& fila : todasLasClases()) {
        const std::string clase = aWindows1252(fila.seccion);
        for (int i = 0; i <= ultimoLeido(fila, antes.at("Cabecera")); ++i) {
            const std::string nombre = clase + "(" + std::to_string(i) + ")";
            const auto hallada = antes.find(nombre);
            if (hallada == antes.end() && (i == 0 || conservaHuecos(fila.clase))) continue;
            orden.push_back(nombre);
            despues[nombre] = hallada != antes.end() ? hallada->second : oculta(antes, clase);
        }
    }
    despues["Colores"] = antes.at("Colores");
    poner(despues["Cabecera"], "NumElectrico",
          std::to_string(ultimoLeido(datos(Clase::Electrico), antes.at("Cabecera")) + 1));

    Lineas lineas;
    for (const std::string& nombre : orden) {
        if (!lineas.empty()) lineas.emplace_back();
        lineas.push_back("[" + nombre + "]");
        for (const auto& [clave, valor] : despues[nombre])
            lineas.emplace_back(clave).append("=").append(valor);
    }
    return lineas;
}

}  // namespace bosquel::apoyo
