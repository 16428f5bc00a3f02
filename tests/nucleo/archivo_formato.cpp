#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/idioma.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::cabezas;
using apoyo::Idioma;
using apoyo::Lineas;
using apoyo::seccion;

namespace {

/// A name in the file's own coding.
const std::string numBañera =
    "NumBa\xF1"
    "era=1";

const Lineas cabeceraNueva{"FactorZoomActual=0.5",
                           "AnchoAreaDibujo=10000",
                           "AltoAreaDibujo=10000",
                           "Cuadricula=100",
                           "Iman=Falso",
                           "VerCuadricula=Falso",
                           "TotalGrupos=0",
                           "DistParalela=1",
                           "NumMesa=1",
                           "NumSilla=1",
                           "NumCama90=1",
                           "NumCama130=1",
                           "NumArmario=1",
                           "NumAsiento=1",
                           "NumInodoro=1",
                           "NumBidet=1",
                           "NumLavabo=1",
                           numBañera,
                           "NumDucha=1",
                           "NumUrinario=1",
                           "NumCocina=1",
                           "NumNevera=1",
                           "NumFregadero=1",
                           "NumLavadora=1",
                           "NumLavadero=1",
                           "NumVertedero=1",
                           "NumPared=1",
                           "NumVentana=1",
                           "NumPuerta=1",
                           "NumTexto=1",
                           "NumEscalera=1",
                           "NumElectrico=1",
                           "ColorParedes=-2147483640",
                           "ColorCarpinteria=-2147483640",
                           "ColorTextos=-2147483640"};

const Lineas paredModelo{"AnchoMuro=200", "AnchoTabique=100",   "Angulo=0",          "InicialX=0",
                         "InicialY=0",    "Longitud=4000",      "NumeroGrupo=0",     "Tipo=Tabique",
                         "Estado=Nuevo",  "Linea1X1=0",         "Linea1Y1=0",        "Linea1X2=0",
                         "Linea1Y2=0",    "Linea3X1=0",         "Linea3Y1=0",        "Linea3X2=0",
                         "Linea3Y2=0",    "Visible1=Verdadero", "Visible2=Verdadero"};

}  // namespace

TEST(Archivo, UnDibujoNuevoTieneTodosLosContadoresAUnoYElModelo) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    banco.guarda("nuevo.bqr");
    const Lineas lineas = banco.lineas("nuevo.bqr");
    EXPECT_EQ(seccion(lineas, "Cabecera"), cabeceraNueva);
    EXPECT_EQ(seccion(lineas, "Colores"), (Lineas{"Esquema=Blanco y Negro", "Perfil="}));
    EXPECT_EQ(seccion(lineas, "Pared(0)"), paredModelo);
    const Lineas halladas = cabezas(lineas);
    EXPECT_EQ(halladas[0], "[Cabecera]");
    EXPECT_EQ(halladas[1], "[Colores]");
}

TEST(Archivo, LasLineasAcabanEnRetornoYSaltoYLasSeccionesSeSeparanConUnaEnBlanco) {
    Banco banco;
    banco.ponMuro();
    banco.guarda("a.bqr");
    const std::string bytes = banco.bytes("a.bqr");
    EXPECT_EQ(bytes, apoyo::enLineas(banco.lineas("a.bqr")));
    EXPECT_TRUE(bytes.starts_with("[Cabecera]\r\n"));
    EXPECT_NE(bytes.find("\r\n\r\n[Colores]\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("\r\n\r\n[Pared(1)]\r\n"), std::string::npos);
}

TEST(Archivo, UnMuroLlevaSusDosLadosEnterosSegunElIdioma) {
    for (const auto& [idioma, coma] : {std::pair{Idioma::espanol, ","}, {Idioma::ingles, "."}}) {
        const Idioma puesto(idioma);
        Banco banco;
        const int muro = banco.ponMuro({.inicio = {3000.5F, 4000.25F}, .longitud = "2,5", .ancho = "0,333"});
        banco.pared(muro).Visible2 = false;
        banco.pared(muro).NumeroGrupo = 3;
        banco.guarda("a.bqr");
        const std::string x = "3000" + std::string(coma) + "5", y = "4000" + std::string(coma) + "25";
        const std::string x2 = "4250" + std::string(coma) + "5", y3 = "4166" + std::string(coma) + "75";
        EXPECT_EQ(
            seccion(banco.lineas("a.bqr"), "Pared(1)"),
            (Lineas{"AnchoMuro=333", "AnchoTabique=100", "Angulo=0", "InicialX=" + x, "InicialY=" + y,
                    "Longitud=2500", "NumeroGrupo=3", "Tipo=Muro", "Estado=Edicion", "Linea1X1=" + x,
                    "Linea1Y1=" + y, "Linea1X2=" + x2, "Linea1Y2=" + y, "Linea3X1=" + x, "Linea3Y1=" + y3,
                    "Linea3X2=" + x2, "Linea3Y2=" + y3, "Visible1=Verdadero", "Visible2=Falso"}));
    }
}

TEST(Archivo, SoloElFactorLlevaPuntoEnCualquierIdioma) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    banco.boton("Zoom");
    banco.boton("Zoom");
    banco.dibujo().Cuadricula = 12.5;
    banco.dibujo().DistParalela = 0.25;
    banco.guarda("a.bqr");
    const Lineas cabecera = seccion(banco.lineas("a.bqr"), "Cabecera");
    EXPECT_EQ(cabecera[0], "FactorZoomActual=1.5");
    EXPECT_EQ(cabecera[1], "AnchoAreaDibujo=30000");
    EXPECT_EQ(cabecera[3], "Cuadricula=12,5");
    EXPECT_EQ(cabecera[7], "DistParalela=0,25");
}

TEST(Archivo, UnMuroSinLugarSeEscribeDeSusCampos) {
    Banco banco;
    banco.boton("Muro");
    banco.boton("Muro");
    banco.guarda("a.bqr");  // the second one goes
    const Lineas muro = seccion(banco.lineas("a.bqr"), "Pared(1)");
    Lineas esperado = paredModelo;
    esperado[7] = "Tipo=Muro";
    EXPECT_EQ(muro, esperado);
}

TEST(Archivo, LosHuecosNoSeEscribenYElContadorSi) {
    Banco banco;
    for (const float y : {2000.0F, 4000.0F, 6000.0F})
        banco.ponMuro({.inicio = {3000, y}});
    banco.clic(banco.inicial(2));
    banco.boton("Eliminar");
    banco.guarda("a.bqr");
    const Lineas lineas = banco.lineas("a.bqr");
    const Lineas halladas = cabezas(lineas);
    EXPECT_EQ(std::count(halladas.begin(), halladas.end(), "[Pared(2)]"), 0);
    EXPECT_EQ(std::count(halladas.begin(), halladas.end(), "[Pared(3)]"), 1);
    const Lineas cabecera = seccion(lineas, "Cabecera");
    EXPECT_EQ(std::count(cabecera.begin(), cabecera.end(), "NumPared=4"), 1);
}

TEST(Archivo, UnMuroQueEsperabaDejaSuHuecoEnElContador) {
    Banco banco;
    banco.ponMuro();
    banco.boton("Muro");
    banco.guarda("a.bqr");
    EXPECT_FALSE(banco.dibujo().Pared.existe(2));
    const Lineas cabecera = seccion(banco.lineas("a.bqr"), "Cabecera");
    EXPECT_EQ(std::count(cabecera.begin(), cabecera.end(), "NumPared=3"), 1);
}

TEST(Archivo, ElCeroNegativoSeEscribeSinSigno) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.pared(muro).InicialX = -0.0F;
    banco.guarda("a.bqr");
    EXPECT_EQ(seccion(banco.lineas("a.bqr"), "Pared(1)")[3], "InicialX=0");
}
