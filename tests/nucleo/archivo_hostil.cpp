#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"
#include "apoyo/muestrario.h"
#include "apoyo/poca_memoria.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "model/windows1252.h"
#include "surface/fila.h"
#include "surface/medidora.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

using namespace bosquel;
using apoyo::Banco;
using apoyo::cabezas;
using apoyo::enLineas;
using apoyo::Idioma;
using apoyo::Lineas;
using apoyo::trasAbrir;
using apoyo::valor;

// Files that no program would write: they open fast, hurt nothing, and are saved as they were told.

namespace {

constexpr std::int16_t elMayor = std::numeric_limits<std::int16_t>::max();

/// The counters of all kinds, at one value.
Lineas contadores(const std::string& cuantos) {
    Lineas lineas{"[Cabecera]"};
    for (const DatosClase& fila : todasLasClases())
        lineas.push_back(aWindows1252(fila.contador) + "=" + cuantos);
    return lineas;
}

void abrir(Banco& banco, const Lineas& lineas) {
    banco.pon("hostil.bqr", enLineas(lineas));
    banco.abre("hostil.bqr");
}

/// Everything that is visible, as it goes to an output; what is not finite never gets there.
void dibujar(const Dibujo& dibujo) {
    Medidora medidora;
    DibujarTodo(salidaDe(dibujo, medidora, 1.1338582677), dibujo);
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [&](const auto& coleccion) {
            coleccion.recorrer([&](int indice, const auto&) {
                if (const auto caja = recuadroDe(dibujo, fila.clase, indice)) {
                    EXPECT_TRUE(std::isfinite(caja->Left) && std::isfinite(caja->Width)) << fila.nombre;
                }
            });
        });
}

/// A drawing with an element of every kind, in which all that is a number is this one.
Lineas todoA(const std::string& numero) {
    Lineas lineas = contadores("2");
    for (const char* clave :
         {"FactorZoomActual", "AnchoAreaDibujo", "AltoAreaDibujo", "Cuadricula", "DistParalela"})
        lineas.push_back(clave + ("=" + numero));
    lineas.emplace_back("VerCuadricula=Verdadero");
    for (const DatosClase& fila : todasLasClases()) {
        lineas.push_back("[" + aWindows1252(fila.seccion) + "(1)]");
        for (const char* clave :
             {"Left",        "Top",          "FactorZOOM",   "LineColor",      "BackColor",
              "AltoSilla",   "AnchoSilla",   "MesaDimX",     "MesaDimY",       "DimX",
              "DimY",        "AnchoAsiento", "FondoAsiento", "NumeroAsientos", "Longitud",
              "NumeroSenos", "AnchoMuro",    "AnchoTabique", "Angulo",         "InicialX",
              "InicialY",    "NumeroGrupo",  "Linea1X1",     "Linea1Y2",       "Linea3X2",
              "Linea3Y1",    "Distancia",    "Text",         "Angle",          "Stairs",
              "StairEye",    "WidthSteps",   "WidthStair1",  "WidthStair3",    "StepsStair1",
              "StepsStair2", "RailingSide1", "RectX",        "RectY"})
            lineas.push_back(clave + ("=" + numero));
        lineas.emplace_back("NumeroPared=1");
        lineas.emplace_back("Visible=Verdadero");
    }
    return lineas;
}

/// What a user does first, and saves of which the third has to follow from the second.
void usar(Banco& banco) {
    for (int i = 0; i < 3; ++i) {
        dibujar(banco.dibujo());
        banco.boton("Zoom");
    }
    banco.guarda("una.bqr");
    banco.abre("una.bqr");
    banco.guarda("dos.bqr");
    banco.abre("dos.bqr");
    banco.guarda("tres.bqr");
    EXPECT_EQ(banco.bytes("tres.bqr"), enLineas(trasAbrir(banco.lineas("dos.bqr"))));
}

}  // namespace

TEST(ArchivoHostil, ElContadorMasAltoDaElementosOcultosYHuecos) {
    Banco banco;
    abrir(banco, contadores("32767"));
    for (const DatosClase& fila : todasLasClases())
        conColeccion(banco.dibujo(), fila.clase, [&](const auto& coleccion) {
            EXPECT_EQ(coleccion.contador, elMayor) << fila.nombre;
            const bool huecos = fila.clase >= Clase::Pared && fila.clase <= Clase::TextoLibre;
            const bool suContador = fila.clase == Clase::Escalera || fila.clase == Clase::Electrico;
            EXPECT_EQ(coleccion.ultimo(), huecos ? 0 : elMayor - (suContador ? 0 : 1)) << fila.nombre;
        });
    EXPECT_FALSE(banco.dibujo().MblMesa.en(elMayor - 1)->Visible);
    EXPECT_FALSE(banco.dibujo().Electrico.en(elMayor)->Visible);
    banco.boton("Zoom");
    EXPECT_EQ(banco.dibujo().MblMesa.en(elMayor - 1)->FactorZOOM, 1);
    banco.abre("no existe.bqr");
    for (const DatosClase& fila : todasLasClases())
        if (fila.clase != Clase::Escalera && fila.clase != Clase::Electrico)
            conColeccion(banco.dibujo(), fila.clase, [&](const auto& una) { EXPECT_EQ(una.ultimo(), 0); });
}

TEST(ArchivoHostil, LoOcultoSeEscribeUnoAUno) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumDucha=32767", "[Ducha(7)]", "Left=7", "Visible=Verdadero"});
    banco.guarda("a.bqr");
    const Lineas lineas = banco.lineas("a.bqr");
    const Lineas todas = cabezas(lineas);
    EXPECT_EQ(std::count_if(todas.begin(), todas.end(),
                            [](const std::string& cabeza) { return cabeza.starts_with("[Ducha("); }),
              elMayor);
    EXPECT_EQ(valor(lineas, "Ducha(7)", "Left"), "7");
    EXPECT_EQ(valor(lineas, "Ducha(7)", "Visible"), "Verdadero");
    EXPECT_EQ(valor(lineas, "Ducha(32766)", "Visible"), "Falso");
    EXPECT_EQ(valor(lineas, "Ducha(32766)", "LineColor"), "0");
    EXPECT_EQ(valor(lineas, "Cabecera", "NumDucha"), "32767");
}

TEST(ArchivoHostil, UnContadorNegativoNoLeeNada) {
    for (const auto& [contador, simbolos] : {std::pair{"-5", "0"}, {"-1", "0"}, {"-32768", "0"}}) {
        Banco banco;
        Lineas texto = contadores(contador);
        for (const char* seccion : {"[Mesa(0)]", "[Mesa(1)]", "[Electrico(0)]", "[Escalera(0)]"}) {
            texto.emplace_back(seccion);
            texto.emplace_back("Left=7");
        }
        abrir(banco, texto);
        EXPECT_EQ(banco.dibujo().MblMesa.modelo().Left, 0.0F);
        EXPECT_EQ(banco.dibujo().Electrico.modelo().Left, 0.0F);
        EXPECT_EQ(banco.dibujo().Escalera.modelo().Left, 0.0F);
        banco.guarda("a.bqr");
        const Lineas lineas = banco.lineas("a.bqr");
        EXPECT_EQ(cabezas(lineas), (Lineas{"[Cabecera]", "[Colores]"}));
        EXPECT_EQ(valor(lineas, "Cabecera", "NumMesa"), contador);
        EXPECT_EQ(valor(lineas, "Cabecera", "NumEscalera"), contador);
        EXPECT_EQ(valor(lineas, "Cabecera", "NumElectrico"), simbolos);
    }
}

TEST(ArchivoHostil, UnContadorACeroLeeSoloLosModelosDeEscalerasYSimbolos) {
    Banco banco;
    Lineas texto = contadores("0");
    for (const char* seccion : {"[Mesa(0)]", "[Electrico(0)]", "[Escalera(0)]"}) {
        texto.emplace_back(seccion);
        texto.emplace_back("Left=7");
    }
    abrir(banco, texto);
    EXPECT_EQ(banco.dibujo().MblMesa.modelo().Left, 0.0F);
    EXPECT_EQ(banco.dibujo().Electrico.modelo().Left, 7.0F);
    EXPECT_EQ(banco.dibujo().Escalera.modelo().Left, 7.0F);
    EXPECT_EQ(banco.dibujo().Electrico.contador, 1);
    EXPECT_EQ(banco.dibujo().Electrico.ultimo(), 0);
}

TEST(ArchivoHostil, NumerosDescabelladosEnTodaClaveSeAguantan) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma idioma(nombre);
        for (const char* numero :
             {"1E+38", "-1E+38", "3.5E+38", "1E+308", "-1E+308",    "1E+999",      "1E-300",
              "0",     "-1",     "32767",   "-32768", "2147483647", "-2147483648", "NaN",
              "-NaN",  "Inf",    "1.#QNAN", "abc",    "9",          "0.0000001"}) {
            SCOPED_TRACE(numero);
            Banco banco;
            abrir(banco, todoA(numero));
            usar(banco);
        }
    }
}

TEST(ArchivoHostil, FilasSinFinNiSeAtascanAlMedirlasNiAlPintarlas) {
    constexpr int cuantos = 1000;
    Lineas lineas = {"[Cabecera]", "NumAsiento=1001", "NumFregadero=1001", "NumEscalera=1000"};
    const auto poner = [&](const char* clase, int i, const Lineas& claves) {
        lineas.push_back("[" + std::string(clase) + "(" + std::to_string(i) + ")]");
        lineas.insert(lineas.end(), claves.begin(), claves.end());
        lineas.emplace_back("Visible=Verdadero");
    };
    for (int i = 1; i <= cuantos; ++i) {
        poner("Asiento", i, {"NumeroAsientos=1E+38"});
        poner("Fregadero", i, {"NumeroSenos=1E+308"});
        poner("Escalera", i,
              {"Stairs=3", "StepsStair1=2147483647", "StepsStair2=2147483647", "StepsStair3=2147483647"});
    }
    Banco banco;
    abrir(banco, lineas);
    usar(banco);
    for (const Clase clase : {Clase::MblAsiento, Clase::MblFregadero, Clase::Escalera})
        EXPECT_LE(apoyo::trazosDe(banco.dibujo(), clase).size(), 3U * maximoEnFila + 20U);
}

TEST(ArchivoHostil, CienMegasDeNadaSonUnDibujoVacio) {
    Banco banco;
    banco.ponMuro();
    banco.pon("enorme.bqr", "");
    std::filesystem::resize_file(banco.ruta("enorme.bqr"), 100'000'000);
    banco.abre("enorme.bqr");
    EXPECT_EQ(banco.dibujo().Pared.ultimo(), 0);
    EXPECT_EQ(banco.plataforma.titulo(), "enorme.bqr - Bosquel Rapiz");
}

TEST(ArchivoHostil, UnDibujoEnMedioDeMillonesDeLineasSeEncuentra) {
    constexpr int muchas = 400'000;
    for (const char* relleno : {"\n", "=\n", "[a]\n", "[\n", "k=v\n"}) {
        std::string texto;
        const auto rellenar = [&] {
            for (int i = 0; i < muchas; ++i)
                texto += relleno;
        };
        rellenar();
        texto += "[Cabecera]\nNumMesa=2\n";
        rellenar();
        texto += "[Mesa(1)]\nVisible=Verdadero\n";
        rellenar();
        Banco banco;
        banco.pon("relleno.bqr", texto);
        banco.abre("relleno.bqr");
        ASSERT_TRUE(banco.dibujo().MblMesa.existe(1)) << relleno;
        EXPECT_TRUE(banco.dibujo().MblMesa.en(1)->Visible) << relleno;
    }
}

TEST(ArchivoHostil, LoQueCasiEsUnaCabeceraOUnaClaveNoAtasca) {
    constexpr int muchas = 400'000;
    for (const char* relleno : {"\r", " ", "[", "[ ", "]", "Left=\r", "=["}) {
        std::string casi;
        for (int i = 0; i < muchas; ++i)
            casi += relleno;
        Banco banco;
        banco.pon("casi.bqr", casi + "\n[Cabecera]\n" + casi + "\nNumMesa=2\n[Mesa(1)]\n" + casi +
                                  "\nMesaDimX=7\nVisible=Verdadero\n" + casi);
        banco.abre("casi.bqr");
        ASSERT_TRUE(banco.dibujo().MblMesa.existe(1)) << relleno;
        EXPECT_EQ(banco.dibujo().MblMesa.en(1)->MesaDimX, 7) << relleno;
        EXPECT_TRUE(banco.dibujo().MblMesa.en(1)->Visible) << relleno;
    }
}

TEST(ArchivoHostil, UnNombreQueSeRepiteTrasUnaLineaEnormeNoAtasca) {
    constexpr int muchas = 100'000;
    const std::string enorme(1'000'000, 'x');
    std::string texto = "[Cabecera]\nNumMesa=2\nOtra=" + enorme + "\n";
    for (int i = 0; i < muchas; ++i)
        texto += "Otra=\n";
    texto += "[Mesa(1)] " + enorme + "\nLeft=9\n";
    for (int i = 0; i < muchas; ++i)
        texto += "[Mesa(1)]\n";
    Banco banco;
    banco.pon("enorme.bqr", texto);
    banco.abre("enorme.bqr");
    ASSERT_TRUE(banco.dibujo().MblMesa.existe(1));
    EXPECT_EQ(banco.dibujo().MblMesa.en(1)->Left, 9.0F);
}

TEST(ArchivoHostil, NombresHechosParaConfundirseNoAtascan) {
    // Eight letters twice, with the highest bit of some of them turned round in both eights.
    const std::array<std::string, 2> bloques{"aaaaaaaaaaaaaaaa",
                                             "\xE1"
                                             "aaaaaaa\xE1"
                                             "aaa\xE1"
                                             "aaa"};
    constexpr unsigned nombres = 1U << 15U;
    std::string texto = "[Cabecera]\nNumMesa=2\n";
    for (unsigned i = 0; i < nombres; ++i) {
        texto += '[';
        for (unsigned bit = 0; bit < 15; ++bit)
            texto += bloques.at(i >> bit & 1U);
        texto += "]\n";
    }
    Banco banco;
    banco.pon("huellas.bqr", texto + "[Mesa(1)]\nLeft=9\n");
    banco.abre("huellas.bqr");
    ASSERT_TRUE(banco.dibujo().MblMesa.existe(1));
    EXPECT_EQ(banco.dibujo().MblMesa.en(1)->Left, 9.0F);
}

TEST(ArchivoHostil, DeUnaClaveRepetidaCuentaLaPrimeraEnCualquierOrden) {
    Banco banco;
    abrir(banco, {"[Cabecera]", "NumMesa=2", "NumPared=2", "[Mesa(1)]", "Visible=Verdadero", "MESADIMX=11",
                  "Top=2", "Left=3", "Visible=Falso", "MesaDimX=12", "Left=4", "[Mesa(1)]", "MesaDimY=13",
                  "[Pared(1)]", "Longitud=", "AnchoMuro=150", "Longitud=9", "AnchoMuro=-1000", "Tipo=Muro"});
    const MblMesa& mesa = *banco.dibujo().MblMesa.en(1);
    EXPECT_TRUE(mesa.Visible);
    EXPECT_EQ(mesa.MesaDimX, 11);
    EXPECT_EQ(mesa.MesaDimY, 1000);
    EXPECT_EQ(mesa.Left, 3);
    ASSERT_TRUE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.dibujo().Pared.en(1)->AnchoMuro, 150);
    EXPECT_EQ(banco.dibujo().Pared.en(1)->Longitud, banco.dibujo().Pared.modelo().Longitud);
}

TEST(ArchivoHostil, UnArchivoDeNombresDistintosOcupaLoSuyoYSesentaYCuatroBytesMasPorNombre) {
    if (apoyo::memoriaSinLimite) GTEST_SKIP() << "the sanitizer takes room of its own";
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // a new process, with no room left by other tests
    Banco banco;
    std::ostringstream texto;
    constexpr std::size_t nombres = 540'000;
    for (std::size_t i = 0; i < nombres; ++i)
        texto << '[' << i << "]\n";
    texto << "[Cabecera]\nAnchoAreaDibujo=123\n";
    const std::string bytes = texto.str();
    banco.pon("nombres.bqr", bytes);
    const auto abrirConPocaMemoria = [&] {
        constexpr std::size_t loDemas = 1'000'000;
        apoyo::limitarMemoria(bytes.size() + 64 * nombres + loDemas);
        banco.abre("nombres.bqr");
        apoyo::terminar(banco.hoja().Width == 123.0F);
    };
    EXPECT_EXIT(abrirConPocaMemoria(), testing::ExitedWithCode(0), "");
}

TEST(ArchivoHostil, SeccionesYClavesDistintasPorMillaresNoSePierden) {
    std::ostringstream texto;
    texto << "[Cabecera]\n";
    for (int i = 0; i < 60'000; ++i)
        texto << "Clave" << i << "=" << i << '\n';
    texto << "NumMesa=2\n";
    for (int i = 0; i < 60'000; ++i)
        texto << "[Otra(" << i << ")]\n";
    texto << "[Mesa(1)]\nLeft=9\n";
    Banco banco;
    banco.pon("millares.bqr", texto.str());
    banco.abre("millares.bqr");
    ASSERT_TRUE(banco.dibujo().MblMesa.existe(1));
    EXPECT_EQ(banco.dibujo().MblMesa.en(1)->Left, 9.0F);
}
