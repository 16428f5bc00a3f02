#include "apoyo/banco.h"
#include "apoyo/idioma.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace bosquel;
using apoyo::Banco;
using apoyo::enLineas;
using apoyo::Idioma;

namespace {

/// Opens a drawing that is given as its text.
void abrir(Banco& banco, std::string_view texto) {
    banco.pon("leido.bqr", texto);
    banco.abre("leido.bqr");
}

constexpr std::string_view tresMuros =
    "[Cabecera]\r\nNumPared=4\r\n\r\n[Pared(1)]\r\nAnchoMuro=200\r\nInicialX=3000\r\nInicialY=2000\r\n\r\n"
    "[Pared(3)]\r\nAnchoMuro=150\r\nTipo=Muro\r\nAngulo=-45\r\nInicialX=3000\r\nInicialY=5000\r\n";

}  // namespace

TEST(Lectura, UnHuecoEntreParedesSigueSiendoHueco) {
    Banco banco;
    abrir(banco, tresMuros);
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
    EXPECT_FALSE(banco.dibujo().Pared.existe(2));
    EXPECT_EQ(banco.pared(3).Tipo, "Muro");
    EXPECT_EQ(banco.pared(3).Angulo, -45);
    EXPECT_EQ(banco.ponMuro({.inicio = {7000, 8000}}), 4);
}

TEST(Lectura, LoQueFaltaTomaElValorDelModeloYLasLineasSeConstruyen) {
    Banco banco;
    abrir(banco,
          "[Cabecera]\r\nNumPared=2\r\n[Pared(0)]\r\nAnchoMuro=250\r\nLongitud=1000\r\nTipo=Muro\r\n"
          "[Pared(1)]\r\nAnchoMuro=150\r\nInicialX=100\r\n");
    EXPECT_EQ(banco.dibujo().Pared.modelo().AnchoMuro, 250.0);
    const Pared& pared = banco.pared(1);
    EXPECT_EQ(pared.Longitud, 1000.0);
    EXPECT_EQ(pared.Tipo, "Muro");
    EXPECT_EQ(pared.AnchoMuro, 150.0);
    EXPECT_EQ(pared.lineas[0], (Segmento{100, 0, 600, 0, true}));
    EXPECT_EQ(pared.lineas[2], (Segmento{100, 75, 600, 75, true}));
    for (const Segmento& linea : pared.lineas)
        EXPECT_TRUE(linea.Visible);
    EXPECT_EQ(pared.ParedPick.BackColor, blanco);
}

TEST(Lectura, LosLadosDelArchivoMandanSobreElRectangulo) {
    Banco banco;
    abrir(banco,
          "[Cabecera]\r\nNumPared=2\r\n[Pared(1)]\r\nAnchoMuro=200\r\nInicialX=100\r\nLinea1X1=120\r\n"
          "Linea1X2=900\r\nLinea3X1=150\r\nLinea3Y1=60\r\nVisible1=Falso\r\nVisible2=otra\r\n");
    const Pared& pared = banco.pared(1);
    EXPECT_EQ(pared.lineas[0], (Segmento{120, 0, 900, 0, true}));
    EXPECT_EQ(pared.lineas[2], (Segmento{150, 60, 2100, 50, true}));
    EXPECT_EQ(pared.lineas[1], (Segmento{120, 0, 150, 60, false}));
    EXPECT_EQ(pared.lineas[3], (Segmento{900, 0, 2100, 50, false}));
    EXPECT_EQ(pared.InicialX, 120.0F);
    EXPECT_EQ(pared.Longitud, 4000.0);
}

TEST(Lectura, UnaParedDeAnchoMenosMilCuentaComoAusente) {
    for (const char* ancho : {"-1000", " -1000 ", "-1E+03", "\"-1000\"", ""}) {
        Banco banco;
        abrir(banco, enLineas({"[Cabecera]", "NumPared=2", "[Pared(1)]", "AnchoMuro=" + std::string(ancho),
                               "Tipo=Muro"}));
        EXPECT_FALSE(banco.dibujo().Pared.existe(1)) << ancho;
        EXPECT_EQ(banco.dibujo().Pared.contador, 2);
    }
    Banco banco;
    abrir(banco, "[Cabecera]\r\nNumPared=2\r\n[Pared(0)]\r\nAnchoMuro=-1000\r\nAngulo=8\r\n");
    EXPECT_EQ(banco.dibujo().Pared.modelo().Angulo, 0);
}

TEST(Lectura, LoQueHayPorEncimaDelContadorNoSeLee) {
    Banco banco;
    abrir(banco, "[Cabecera]\r\nNumPared=1\r\n[Pared(1)]\r\nAnchoMuro=200\r\n");
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
}

TEST(Lectura, LaCabeceraVaciaTieneSusValores) {
    Banco banco("[Smart]\r\nGrid=300\r\nAutoSave=2\r\n[PaperSize]\r\nAreaWidth=40000\r\n");
    banco.boton("Zoom");
    abrir(banco, "");
    const Dibujo& dibujo = banco.dibujo();
    EXPECT_EQ(dibujo.FactorZoomActual, 0.5);
    EXPECT_EQ(dibujo.Hoja.Width, 10000.0F);
    EXPECT_EQ(dibujo.Hoja.Height, 10000.0F);
    EXPECT_EQ(dibujo.Cuadricula, 100.0);
    EXPECT_TRUE(dibujo.Iman);
    EXPECT_TRUE(dibujo.VerCuadricula);
    EXPECT_EQ(banco.sesion().cuadricula.paso, 50);
    EXPECT_EQ(dibujo.TotalGrupos, 0);
    EXPECT_EQ(dibujo.DistParalela, 1.0);
    EXPECT_EQ(dibujo.AutoSave, 2) << "the file does not hold it: the settings stand";
    EXPECT_EQ(dibujo.AreaWidth, 40000);
    for (const DatosClase& fila : todasLasClases())
        if (fila.clase != Clase::Electrico)
            conColeccion(banco.dibujo(), fila.clase,
                         [&](const auto& coleccion) { EXPECT_EQ(coleccion.contador, 1) << fila.nombre; });
    EXPECT_EQ(dibujo.Pared.modelo().LineColor, negro);
    EXPECT_EQ(dibujo.Puerta.modelo().LineColor, negro);
    EXPECT_EQ(dibujo.Ventana.modelo().LineColor, negro);
    EXPECT_EQ(dibujo.TextoLibre.modelo().ForeColor, negro);
}

TEST(Lectura, LaCabeceraLlegaAlDibujoYALaVista) {
    const Idioma idioma(Idioma::espanol);
    Banco banco("[Smart]\r\nGridView=Verdadero\r\n");
    banco.bosquel.cambiarVScroll1(100);
    abrir(banco,
          "[Cabecera]\r\nFactorZoomActual=1.5\r\nAnchoAreaDibujo=15000,5\r\nAltoAreaDibujo=200\r\n"
          "Cuadricula=62,5\r\nIman=Falso\r\nVerCuadricula=Falso\r\nTotalGrupos=7\r\nDistParalela=0,25\r\n"
          "NumMesa=1\r\nColorParedes=255\r\nColorCarpinteria=-2147483643\r\nColorTextos=16711680\r\n"
          "[Colores]\r\nEsquema=Colores Personalizados\r\nPerfil=Mío\r\n");
    const Dibujo& dibujo = banco.dibujo();
    EXPECT_EQ(dibujo.FactorZoomActual, 1.5);
    EXPECT_EQ(banco.sesion().regla.FactorZoom, 1.5);
    EXPECT_EQ(dibujo.Hoja.Width, 15000.5F);
    EXPECT_EQ(dibujo.Hoja.Height, 200.0F);
    EXPECT_EQ(dibujo.Hoja.Top, 0.0F);
    EXPECT_TRUE(banco.sesion().HScroll1.activa);
    EXPECT_FALSE(banco.sesion().VScroll1.activa);
    EXPECT_EQ(dibujo.Cuadricula, 62.5);
    EXPECT_FALSE(dibujo.Iman);
    EXPECT_FALSE(dibujo.VerCuadricula);
    EXPECT_EQ(dibujo.TotalGrupos, 7);
    EXPECT_EQ(dibujo.DistParalela, 0.25);
    EXPECT_EQ(dibujo.Pared.modelo().LineColor, rojo);
    EXPECT_EQ(dibujo.Puerta.modelo().LineColor, colorFondoVentana);
    EXPECT_EQ(dibujo.Ventana.modelo().LineColor, colorFondoVentana);
    EXPECT_EQ(dibujo.TextoLibre.modelo().ForeColor, 16711680);
    EXPECT_EQ(dibujo.Esquema, "Colores Personalizados");
}

TEST(Lectura, UnaComaEnElFactorAgrupaDondeElIdiomaPonePunto) {
    for (const auto& [idioma, factor] : {std::pair{Idioma::espanol, 1.5}, {Idioma::ingles, 15.0}}) {
        const Idioma puesto(idioma);
        Banco banco;
        abrir(banco, "[Cabecera]\r\nFactorZoomActual=1,5\r\n");
        EXPECT_EQ(banco.dibujo().FactorZoomActual, factor);
    }
}

TEST(Lectura, LoQueNoSePuedeConvertirDejaElValorYSigue) {
    Banco banco;
    abrir(banco,
          "[Cabecera]\r\nFactorZoomActual=abc\r\nAnchoAreaDibujo=x\r\nCuadricula=--\r\nIman=1\r\n"
          "TotalGrupos=99999\r\nNumMesa=abc\r\nNumPared=2\r\nColorParedes=rojo\r\n"
          "[Pared(1)]\r\nAnchoMuro=abc\r\nAngulo=40000\r\nLongitud=1e999\r\nInicialX=1e39\r\nNumeroGrupo=2,"
          "5x\r\n"
          "Linea1X2=1e39\r\nLinea3X2=nan\r\n");
    const Dibujo& dibujo = banco.dibujo();
    EXPECT_EQ(dibujo.FactorZoomActual, 0.5);
    EXPECT_EQ(dibujo.Hoja.Width, 10000.0F);
    EXPECT_EQ(dibujo.Cuadricula, 100.0);
    EXPECT_FALSE(dibujo.Iman);
    EXPECT_EQ(dibujo.TotalGrupos, 0);
    EXPECT_EQ(dibujo.MblMesa.contador, 1);
    const Pared& pared = banco.pared(1);
    EXPECT_EQ(pared.AnchoMuro, 200.0);
    EXPECT_EQ(pared.Angulo, 0);
    EXPECT_EQ(pared.Longitud, 4000.0);
    EXPECT_EQ(pared.InicialX, 0.0F);
    EXPECT_EQ(pared.NumeroGrupo, 0);
    EXPECT_EQ(pared.Linea1X2, 2000.0F);
    EXPECT_EQ(pared.Linea3X2, 2000.0F);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST(Lectura, LosSaltosSolosSeLeenIgual) {
    std::string texto(tresMuros);
    std::erase(texto, '\r');
    Banco banco, otro;
    abrir(banco, tresMuros);
    abrir(otro, texto);
    banco.guarda("a.bqr");
    otro.guarda("a.bqr");
    EXPECT_EQ(banco.bytes("a.bqr"), otro.bytes("a.bqr"));
    EXPECT_TRUE(otro.dibujo().Pared.existe(3));
}

TEST(Lectura, ContadoresDescabelladosNoEstropeanNada) {
    for (const char* contador : {"32767", "-5", "-32768", "0"}) {
        Banco banco;
        abrir(banco, enLineas({"[Cabecera]", "NumPared=" + std::string(contador),
                               "NumVentana=" + std::string(contador), "NumElectrico=" + std::string(contador),
                               "[Pared(1)]", "AnchoMuro=200", "InicialX=1"}));
        EXPECT_EQ(banco.dibujo().Pared.existe(1), std::string(contador) == "32767");
        banco.guarda("a.bqr");
        for (const char* boton : {"Muro", "Tabique", "Pilar"}) {
            banco.boton(boton);
            banco.clic({7000, 7000});
            banco.boton("Zoom");
        }
        EXPECT_TRUE(banco.dibujo().Pared.existe(0)) << contador;
        banco.plataforma.respuestas = {Respuesta::si};
        banco.boton("Nuevo");
        EXPECT_EQ(banco.dibujo().Pared.contador, 1);
        EXPECT_EQ(banco.dibujo().Pared.ultimo(), 0);
    }
}

TEST(Lectura, TamanosEnormesQuedanFinitos) {
    for (const char* tamano : {"1E+38", "-1E+38", "1E+300", "1E-300"}) {
        Banco banco;
        abrir(banco,
              enLineas({"[Cabecera]", "NumPared=2", "AnchoAreaDibujo=" + std::string(tamano),
                        "AltoAreaDibujo=3E+38", "FactorZoomActual=1.5", "Cuadricula=" + std::string(tamano),
                        "[Pared(1)]", "AnchoMuro=" + std::string(tamano), "Tipo=Muro",
                        "Longitud=" + std::string(tamano), "InicialX=3E+38", "InicialY=-3E+38",
                        "Angulo=30000", "Linea1X2=3E+38"}));
        for (int i = 0; i < 4; ++i) {
            banco.boton("Zoom");
            banco.arrastra({3, 3}, {-4000, -4000});
            const auto pinza = banco.inicial(1);
            banco.arrastra(pinza, {pinza.x + 50, pinza.y + 50});
        }
        for (const Segmento& linea : banco.pared(1).lineas)
            for (const float valor : {linea.X1, linea.Y1, linea.X2, linea.Y2})
                EXPECT_LE(std::abs(valor), std::numeric_limits<float>::max()) << tamano;
        EXPECT_LE(std::abs(banco.hoja().Width), std::numeric_limits<float>::max());
        EXPECT_LE(std::abs(banco.hoja().Left), std::numeric_limits<float>::max());
    }
}

TEST(Lectura, BytesAlAzarDanUnDibujoCualquieraSinMensajes) {
    std::mt19937 azar(6);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<std::size_t> lugar(0, tresMuros.size() - 1);
    Banco banco;
    for (int vuelta = 0; vuelta < 60; ++vuelta) {
        std::string bytes(vuelta % 2 == 0 ? std::string(2000, ' ') : std::string(tresMuros));
        if (vuelta % 2 == 0)
            for (char& c : bytes)
                c = static_cast<char>(byte(azar));
        else
            for (int i = 0; i < 12; ++i)
                bytes[lugar(azar)] = static_cast<char>(byte(azar));
        abrir(banco, bytes);
        EXPECT_EQ(banco.modo(), Modo::Aspa);
    }
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}
