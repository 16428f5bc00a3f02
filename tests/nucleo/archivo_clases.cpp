#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"
#include "model/textos_numero.h"
#include "model/windows1252.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <tuple>

using namespace bosquel;
using apoyo::Banco;
using apoyo::enLineas;
using apoyo::Idioma;
using apoyo::Lineas;
using apoyo::seccion;

namespace {

/// What a key is left with by a text that is none of its form.
enum class TrasUnoMalo : std::uint8_t { loQueTenia, Falso, elTexto };

constexpr auto loQueTenia = TrasUnoMalo::loQueTenia;
constexpr auto Falso = TrasUnoMalo::Falso;
constexpr auto elTexto = TrasUnoMalo::elTexto;

/// A key of a section, with values no two of which are alike. "~" stands for the decimal separator of plain
/// reals, "@" before a word for the language of the locale.
struct Clave {
    std::string nombre, valor, delModelo;
    std::string predeterminado;  ///< where the key is missing; empty where the model's value stands
    TrasUnoMalo trasUnoMalo = loQueTenia;
};

struct ClaseGuardada {
    Clase clase;
    std::vector<Clave> claves;
};

// clang-format off
const Clave Left{"Left", "1440~5", "15~25", "", loQueTenia};
const Clave Top{"Top", "-720~125", "30", "", loQueTenia};
const Clave FactorZOOM{"FactorZOOM", "1.5", "0.75", "", loQueTenia};
const Clave Visible{"Visible", "Verdadero", "Falso", "", Falso};
const Clave LineColor{"LineColor", "255", "65280", "0", loQueTenia};
const Clave BackColor{"BackColor", "-2147483643", "8421504", "16777215", loQueTenia};
const Clave Orientacion{"Orientacion", "Ñú", "Lado €", "", elTexto};

const std::vector<Clave> sinFondo{Left, Top, FactorZOOM, Orientacion, Visible, LineColor};
const std::vector<Clave> conFondo{Left, Top, FactorZOOM, Orientacion, Visible, LineColor, BackColor};

std::vector<Clave> deAbertura(const Clave& propia) {
    return {{"Alineacion", "Derecha", "Centro", "", elTexto},
            {"AnchoMuro", "212~5", "300", "", loQueTenia},
            {"AnchoTabique", "90~25", "80", "", loQueTenia},
            {"Angulo", "-30", "45", "", loQueTenia},
            {"Distancia", "333~75", "12~5", "", loQueTenia},
            {"Estado", "Edicion", "Nuevo", "", elTexto},
            {"GrupoInicialPared", "5", "6", "", loQueTenia},
            {"Longitud", "1234~5", "700", "", loQueTenia},
            {"NumeroPared", "9", "8", "", loQueTenia},
            {"Orientacion", "Abajo", "Arriba", "", elTexto},
            propia};
}

const std::vector<ClaseGuardada> clases{
    {Clase::MblMesa, {{"Left", "1440~5", "15~25", "0", loQueTenia},
                      {"Top", "-720~125", "30", "0", loQueTenia},
                      {"AltoSilla", "310~5", "320", "300", loQueTenia},
                      {"AnchoSilla", "410", "420~5", "400", loQueTenia},
                      {"ColocacionSillas", "2UD", "0", "4RLUD", elTexto},
                      {"FactorZOOM", "1.5", "0.75", "1.25", loQueTenia},
                      {"MesaDimX", "1800", "900", "1000", loQueTenia},
                      {"MesaDimY", "850~5", "950", "1000", loQueTenia},
                      Visible, LineColor, BackColor}},
    {Clase::MblSilla, {Left, Top, {"AnchoSilla", "460~5", "500", "", loQueTenia}, FactorZOOM, Orientacion,
                       Visible, LineColor, BackColor}},
    {Clase::MblCama90, conFondo},
    {Clase::MblCama130, conFondo},
    {Clase::MblArmario, {Left, Top, FactorZOOM, {"DimX", "2100~5", "1200", "", loQueTenia},
                         {"DimY", "650", "550~5", "", loQueTenia}, Visible, LineColor, BackColor}},
    {Clase::MblAsiento, {Left, Top, FactorZOOM, {"AnchoAsiento", "610~5", "580", "", loQueTenia},
                         {"FondoAsiento", "700", "720~25", "", loQueTenia},
                         {"NumeroAsientos", "2", "2~5", "", loQueTenia},
                         Orientacion, Visible, LineColor, BackColor}},
    {Clase::MblInodoro, sinFondo},
    {Clase::MblLavabo, sinFondo},
    {Clase::MblBidet, sinFondo},
    {Clase::MblBañera, {Left, Top, FactorZOOM, {"Longitud", "1700~5", "1500", "", loQueTenia}, Orientacion,
                        Visible, LineColor}},
    {Clase::MblDucha, sinFondo},
    {Clase::MblUrinario, sinFondo},
    {Clase::MblCocina, conFondo},
    {Clase::MblNevera, conFondo},
    {Clase::MblFregadero, {Left, Top, FactorZOOM, Orientacion, {"Escurridor", "Verdadero", "Falso", "Verdadero", Falso},
                           {"NumeroSenos", "2", "1~5", "", loQueTenia}, Visible, LineColor, BackColor}},
    {Clase::MblLavadora, conFondo},
    {Clase::MblLavadero, conFondo},
    {Clase::MblVertedero, conFondo},
    {Clase::Pared, {{"AnchoMuro", "212~5", "300", "", loQueTenia},
                    {"AnchoTabique", "90~25", "80", "", loQueTenia},
                    {"Angulo", "-30", "45", "", loQueTenia},
                    {"InicialX", "1000~5", "20", "", loQueTenia},
                    {"InicialY", "2000", "40~25", "", loQueTenia},
                    {"Longitud", "2345~5", "1500", "", loQueTenia},
                    {"NumeroGrupo", "3", "4", "", loQueTenia},
                    {"Tipo", "Muro", "Pilar", "", elTexto},
                    {"Estado", "Edicion", "Nuevo", "", elTexto}}},
    {Clase::Ventana, deAbertura({"Tipo", "Muro", "Tabique", "", elTexto})},
    {Clase::Puerta, deAbertura({"OrientacionLateral", "Doble", "Derecha", "", elTexto})},
    {Clase::TextoLibre, {Left, Top, {"Text", "Salón", "Texto", "", elTexto}}},
    {Clase::Escalera, {Left, Top, FactorZOOM, Orientacion, Visible, LineColor,
                       {"Angle", "270", "90", "", loQueTenia},
                       {"Stairs", "3", "2", "", loQueTenia},
                       {"StairEye", "160", "170", "", loQueTenia},
                       {"WidthSteps", "290", "300", "", loQueTenia},
                       {"WidthStair1", "1100", "900", "", loQueTenia},
                       {"WidthStair2", "1200", "800", "", loQueTenia},
                       {"WidthStair3", "1300", "700", "", loQueTenia},
                       {"StepsStair1", "9", "19", "", loQueTenia},
                       {"StepsStair2", "3", "13", "", loQueTenia},
                       {"StepsStair3", "7", "17", "", loQueTenia},
                       {"RailingSide1", "@Verdadero", "@Falso", "", loQueTenia},
                       {"RailingSide2", "@Falso", "@Verdadero", "", loQueTenia},
                       {"RailingSide3", "@Verdadero", "@Verdadero", "", loQueTenia}}},
    {Clase::Electrico, {Left, Top, {"ObjectType", "Enchufe", "Pulsador", "", elTexto},
                        {"RectX", "160~5", "200", "", loQueTenia},
                        {"RectY", "180", "210~5", "", loQueTenia},
                        FactorZOOM, Visible, LineColor,
                        {"Angle", "45", "90", "", loQueTenia}}},
};
// clang-format on

/// A value as the locale has it.
std::string segunIdioma(std::string texto) {
    const bool espanol = idiomaEspanol();
    std::replace(texto.begin(), texto.end(), '~', espanol ? ',' : '.');
    if (texto == "@Verdadero") return espanol ? "Verdadero" : "True";
    if (texto == "@Falso") return espanol ? "Falso" : "False";
    return aWindows1252(texto);
}

std::string nombreDe(const ClaseGuardada& clase, int indice) {
    return aWindows1252(datos(clase.clase).seccion) + "(" + std::to_string(indice) + ")";
}

/// A section of this kind, written by `linea(clave)`; nothing leaves the key out.
template <class Linea>
std::string seccionCon(const ClaseGuardada& clase, int indice, Linea linea) {
    Lineas lineas{"[" + nombreDe(clase, indice) + "]"};
    for (const Clave& clave : clase.claves)
        if (const std::optional<std::string> texto = linea(clave))
            lineas.push_back(clave.nombre + "=" + *texto);
    return enLineas(lineas);
}

/// A drawing with a model of the kind and so many elements, of which `linea(i, clave)` says the keys.
template <class Linea>
std::string dibujoCon(const ClaseGuardada& clase, int cuantos, Linea linea) {
    std::string texto = "[Cabecera]\r\nFactorZoomActual=1.25\r\n" +
                        aWindows1252(datos(clase.clase).contador) + "=" + std::to_string(cuantos + 1) +
                        "\r\n";
    texto +=
        seccionCon(clase, 0, [](const Clave& clave) { return std::optional(segunIdioma(clave.delModelo)); });
    for (int i = 1; i <= cuantos; ++i)
        texto += seccionCon(clase, i, [&](const Clave& clave) { return linea(i, clave); });
    return texto;
}

bool conservaHuecos(Clase clase) {
    return clase == Clase::Pared || clase == Clase::Ventana || clase == Clase::Puerta ||
           clase == Clase::TextoLibre;
}

/// The key by which a section of a kind that keeps its gaps is known to be there.
bool esLaPrueba(Clase clase, const Clave& clave) {
    return conservaHuecos(clase) && clave.nombre == (clase == Clase::TextoLibre ? "Left" : "AnchoMuro");
}

std::string sinClave(const Clave& clave) {
    return segunIdioma(clave.predeterminado.empty() ? clave.delModelo : clave.predeterminado);
}

std::string tras(const Clave& clave, const std::string& malo) {
    if (clave.trasUnoMalo == Falso) return "Falso";
    return clave.trasUnoMalo == elTexto ? malo : segunIdioma(clave.delModelo);
}

/// All kinds under both locales.
class ArchivoClases : public testing::TestWithParam<std::tuple<std::size_t, const char*>> {
  protected:
    const ClaseGuardada& clase() const { return clases[std::get<0>(GetParam())]; }

    /// What a text becomes when it is opened and saved.
    Lineas abrirYGuardar(const std::string& texto) {
        banco_.pon("antes.bqr", texto);
        banco_.abre("antes.bqr");
        banco_.guarda("despues.bqr");
        return banco_.lineas("despues.bqr");
    }

    /// The section of an element holds these values, key by key in this order. A wall goes on with its lines.
    template <class Valor>
    void esperar(const Lineas& lineas, int indice, Valor valor) const {
        Lineas esperadas;
        for (const Clave& clave : clase().claves)
            esperadas.push_back(clave.nombre + "=" + valor(clave));
        Lineas halladas = seccion(lineas, nombreDe(clase(), indice));
        if (clase().clase == Clase::Pared && !halladas.empty()) {
            EXPECT_EQ(halladas.size(), esperadas.size() + 10);
            halladas.resize(esperadas.size());
        }
        EXPECT_EQ(halladas, esperadas) << nombreDe(clase(), indice);
    }

    Idioma idioma_{std::get<1>(GetParam())};
    Banco banco_;
};

}  // namespace

TEST_P(ArchivoClases, CadaSeccionVuelveConSusClavesEnSuOrden) {
    const auto valor = [](const Clave& clave) { return segunIdioma(clave.valor); };
    const Lineas lineas = abrirYGuardar(
        dibujoCon(clase(), 1, [&](int, const Clave& clave) { return std::optional(valor(clave)); }));
    esperar(lineas, 0, [](const Clave& clave) { return segunIdioma(clave.delModelo); });
    esperar(lineas, 1, valor);
}

TEST_P(ArchivoClases, CadaClaveQueFaltaTomaSuPredeterminado) {
    const auto& claves = clase().claves;
    const auto falta = [&](int i, const Clave& clave) {
        return &clave == &claves[static_cast<std::size_t>(i) - 1] && !esLaPrueba(clase().clase, clave);
    };
    const int cuantos = static_cast<int>(claves.size());
    const Lineas lineas = abrirYGuardar(dibujoCon(clase(), cuantos, [&](int i, const Clave& clave) {
        return falta(i, clave) ? std::nullopt : std::optional(segunIdioma(clave.valor));
    }));
    for (int i = 1; i <= cuantos; ++i)
        esperar(lineas, i, [&](const Clave& clave) {
            if (!falta(i, clave)) return segunIdioma(clave.valor);
            return clave.nombre == "Visible" ? "Falso" : sinClave(clave);
        });
}

TEST_P(ArchivoClases, LoQueNoSeConvierteDejaElValorQueHabia) {
    for (const std::string malo : {"abc", "NaN", "1E+999", "--1", "0x10", "Inf"}) {
        const auto& claves = clase().claves;
        const auto esMala = [&](int i, const Clave& clave) {
            return &clave == &claves[static_cast<std::size_t>(i) - 1];
        };
        const int cuantos = static_cast<int>(claves.size());
        const Lineas lineas = abrirYGuardar(dibujoCon(clase(), cuantos, [&](int i, const Clave& clave) {
            return std::optional(esMala(i, clave) ? malo : segunIdioma(clave.valor));
        }));
        for (int i = 1; i <= cuantos; ++i)
            esperar(lineas, i, [&](const Clave& clave) {
                return esMala(i, clave) ? tras(clave, malo) : segunIdioma(clave.valor);
            });
        EXPECT_EQ(banco_.plataforma.mensajes.size(), 1U) << "that of saving";
        banco_.plataforma.mensajes.clear();
    }
}

TEST_P(ArchivoClases, UnaSeccionQueFaltaEsUnHuecoOUnElementoOculto) {
    const auto valor = [](const Clave& clave) { return segunIdioma(clave.valor); };
    std::string texto = dibujoCon(clase(), 5, [&](int i, const Clave& clave) {
        return i % 2 == 0 ? std::nullopt : std::optional(valor(clave));
    });
    for (const int hueco : {2, 4}) {
        const std::string cabeza = "[" + nombreDe(clase(), hueco) + "]\r\n";
        texto.erase(texto.find(cabeza), cabeza.size());
    }
    const Lineas lineas = abrirYGuardar(texto);
    for (const int i : {1, 3, 5})
        esperar(lineas, i, valor);
    for (const int hueco : {2, 4})
        if (conservaHuecos(clase().clase))
            EXPECT_TRUE(seccion(lineas, nombreDe(clase(), hueco)).empty());
        else
            esperar(lineas, hueco, [&](const Clave& clave) {
                return clave.nombre == "Visible" ? "Falso" : sinClave(clave);
            });
}

TEST_P(ArchivoClases, LoAjenoNiEstorbaNiSeVuelveAEscribir) {
    const auto valor = [](const Clave& clave) { return segunIdioma(clave.valor); };
    std::string texto =
        dibujoCon(clase(), 1, [&](int, const Clave& clave) { return std::optional(valor(clave)); });
    texto += "Ajena=1\r\nsuelta\r\n[Otra(1)]\r\nLeft=5\r\n[" + nombreDe(clase(), 99) +
             "]\r\nLeft=5\r\nAnchoMuro=5\r\n";
    const Lineas lineas = abrirYGuardar(texto);
    esperar(lineas, 1, valor);
    EXPECT_TRUE(seccion(lineas, nombreDe(clase(), 99)).empty());
    EXPECT_TRUE(seccion(lineas, "Otra(1)").empty());
}

INSTANTIATE_TEST_SUITE_P(Todas, ArchivoClases,
                         testing::Combine(testing::Range<std::size_t>(0, numeroDeClases),
                                          testing::Values(Idioma::espanol, Idioma::ingles)),
                         [](const auto& caso) {
                             const std::string nombre(datos(clases[std::get<0>(caso.param)].clase).contador);
                             return (nombre == "NumBañera" ? "NumBannera" : nombre) +
                                    (std::get<1>(caso.param) == Idioma::espanol ? "Espanol" : "Ingles");
                         });

TEST(ArchivoClase, EstanTodas) {
    for (std::size_t i = 0; i < numeroDeClases; ++i)
        EXPECT_EQ(clases.at(i).clase, todasLasClases()[i].clase);
}
