#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "drawing/archivo.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Idioma;

TEST(Arranque, SinAjustesEmpiezaConLosDeSiempre) {
    Banco banco;
    const Dibujo& dibujo = banco.dibujo();
    EXPECT_EQ(dibujo.AreaHight, 20000);
    EXPECT_EQ(dibujo.AreaWidth, 20000);
    EXPECT_EQ(dibujo.Cuadricula, 100.0);
    EXPECT_FALSE(dibujo.Iman);
    EXPECT_FALSE(dibujo.VerCuadricula);
    EXPECT_EQ(dibujo.AutoSave, 5);
    EXPECT_TRUE(banco.plataforma.autoSaveActivo());
    EXPECT_EQ(dibujo.FactorZoomActual, 0.5);
    EXPECT_EQ(dibujo.RelacionZoom, 1.0);
    EXPECT_EQ(dibujo.TotalGrupos, 0);
    EXPECT_EQ(dibujo.DistParalela, 1.0);
    EXPECT_EQ(dibujo.ModoActual, Modo::Aspa);
    EXPECT_EQ(dibujo.ElementoActual, std::nullopt);
    EXPECT_EQ(dibujo.Esquema, "Blanco y Negro");
    EXPECT_EQ(dibujo.Perfil, "");
    EXPECT_EQ(dibujo.Hoja.Width, 10000.0F);
    EXPECT_EQ(dibujo.Hoja.Height, 10000.0F);
    EXPECT_EQ(banco.plataforma.titulo(), "Nuevo.bqr - Bosquel Rapiz");
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
}

TEST(Arranque, LaPortadaSaleAntesDeQueSeLeanLosAjustes) {
    apoyo::CarpetaTemporal carpeta;
    apoyo::ponerBytes(carpeta / "Bqr.ini", "[PaperSize]\r\nAreaWidth=7000\r\n");
    apoyo::PlataformaFalsa plataforma;
    Bosquel bosquel(plataforma, carpeta.ruta());
    plataforma.alAbrirEntrada = [&](Entrada&) {
        EXPECT_EQ(plataforma.titulo(), "Nuevo.bqr - Bosquel Rapiz");
        EXPECT_EQ(bosquel.sesion().dibujo.AreaWidth, 20000);
    };
    bosquel.cargar();
    EXPECT_EQ(plataforma.entradas, 1);
    EXPECT_EQ(bosquel.sesion().dibujo.AreaWidth, 7000);
}

TEST(Arranque, TodosLosContadoresSonUnoYNoHayMasQueModelos) {
    Banco banco;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(banco.dibujo(), fila.clase, [&](const auto& coleccion) {
            EXPECT_EQ(coleccion.contador, 1) << fila.nombre;
            EXPECT_EQ(coleccion.ultimo(), 0) << fila.nombre;
        });
}

TEST(Ajustes, SeLeenDelFicheroSegunElIdioma) {
    const std::string ajustes =
        "[PaperSize]\r\nAreaHight=12000\r\nAreaWidth=8000\r\n\r\n"
        "[Smart]\r\nGrid=62,5\r\nSnap=Verdadero\r\nGridView=Verdadero\r\nAutoSave=3\r\n";
    const Idioma idioma(Idioma::espanol);
    Banco banco(ajustes);
    EXPECT_EQ(banco.dibujo().AreaHight, 12000);
    EXPECT_EQ(banco.dibujo().AreaWidth, 8000);
    EXPECT_EQ(banco.hoja().Width, 4000.0F);
    EXPECT_EQ(banco.hoja().Height, 6000.0F);
    EXPECT_EQ(banco.dibujo().Cuadricula, 62.5);
    EXPECT_TRUE(banco.dibujo().Iman);
    EXPECT_TRUE(banco.dibujo().VerCuadricula);
    EXPECT_EQ(banco.sesion().cuadricula.paso, 31);
    EXPECT_EQ(banco.dibujo().AutoSave, 3);
    const Idioma otro(Idioma::ingles);
    EXPECT_EQ(Banco(ajustes).dibujo().Cuadricula, 625.0);
}

TEST(Ajustes, SoloLaPalabraExactaEsVerdad) {
    for (const char* palabra : {"verdadero", "VERDADERO", "True", "1", "-1", "Verdadero.", "Falso", ""})
        EXPECT_FALSE(Banco("[Smart]\r\nSnap=" + std::string(palabra) + "\r\n").dibujo().Iman) << palabra;
    EXPECT_TRUE(Banco("[Smart]\r\nSnap= Verdadero \r\n").dibujo().Iman);
}

TEST(Ajustes, LoQueNoSePuedeLeerDejaElValorQueHabia) {
    Banco banco;
    banco.dibujo().AreaWidth = 7000;
    banco.dibujo().AutoSave = 2;
    banco.pon("Bqr.ini",
              "[PaperSize]\r\nAreaHight=\r\nAreaWidth=abc\r\n[Smart]\r\nAutoSave=40000\r\nGrid=x\r\n");
    ResetearDibujo(banco.sesion());
    EXPECT_EQ(banco.dibujo().AreaWidth, 7000);
    EXPECT_EQ(banco.dibujo().AreaHight, 20000);
    EXPECT_EQ(banco.dibujo().AutoSave, 2);
    EXPECT_EQ(banco.dibujo().Cuadricula, 100.0);
}

TEST(Ajustes, ElSalvadoACeroApagaSuReloj) {
    Banco banco("[Smart]\r\nAutoSave=0\r\n");
    EXPECT_FALSE(banco.plataforma.autoSaveActivo());
    banco.pon("Bqr.ini", "[Smart]\r\nAutoSave=1\r\n");
    ResetearDibujo(banco.sesion());
    EXPECT_TRUE(banco.plataforma.autoSaveActivo());
}

TEST(Resetear, LosModelosVuelvenASusValores) {
    Banco banco;
    Dibujo& dibujo = banco.dibujo();
    dibujo.Pared.modelo().Angulo = 9;
    dibujo.Pared.modelo().Tipo = "Muro";
    dibujo.Ventana.modelo().Longitud = 9;
    dibujo.Puerta.modelo().Longitud = 9;
    dibujo.Escalera.modelo().StepsStair = {9, 9, 9};
    dibujo.MblMesa.modelo().MesaDimX = 77;
    dibujo.IndiceActual = 12;
    dibujo.ParedUno = 3;
    dibujo.arrastre.ArrastreAnclaAX = 5;
    dibujo.RelacionZoom = 1.5;
    ResetearDibujo(banco.sesion());
    const Pared& pared = dibujo.Pared.modelo();
    EXPECT_EQ(pared.AnchoMuro, 200.0);
    EXPECT_EQ(pared.AnchoTabique, 100.0);
    EXPECT_EQ(pared.Angulo, 0);
    EXPECT_EQ(pared.Longitud, 4000.0);
    EXPECT_EQ(pared.Tipo, "Tabique");
    EXPECT_EQ(pared.Estado, "Nuevo");
    EXPECT_EQ(dibujo.Ventana.modelo().Longitud, 1000.0);
    EXPECT_EQ(dibujo.Ventana.modelo().Tipo, "Tabique");
    EXPECT_EQ(dibujo.Puerta.modelo().Longitud, 720.0);
    EXPECT_EQ(dibujo.Puerta.modelo().Alineacion, "Izquierda");
    const Escalera& escalera = dibujo.Escalera.modelo();
    EXPECT_EQ(escalera.LineColor, negro);
    EXPECT_EQ(escalera.Orientacion, "D");
    EXPECT_EQ(escalera.StairEye, 150);
    EXPECT_EQ(escalera.Stairs, 1);
    EXPECT_EQ(escalera.StepsStair, (std::array<std::int32_t, 3>{8, 2, 6}));
    EXPECT_EQ(escalera.WidthStair, (std::array<std::int32_t, 3>{1000, 1000, 1000}));
    EXPECT_EQ(escalera.WidthSteps, 280);
    EXPECT_EQ(dibujo.MblMesa.modelo().MesaDimX, 77.0) << "the user's own models stay";
    EXPECT_EQ(dibujo.IndiceActual, 12);
    EXPECT_EQ(dibujo.ParedUno, 3);
    EXPECT_EQ(dibujo.arrastre.ArrastreAnclaAX, 5);
    EXPECT_EQ(dibujo.RelacionZoom, 1.5);
}

TEST(Portada, EscribeSuVersionLetraALetraYSeCierra) {
    Entrada entrada;
    std::string_view antes;
    for (int letra = 1; letra <= 15; ++letra) {
        entrada.tic();
        EXPECT_GT(entrada.lblVersion().size(), antes.size());
        EXPECT_EQ(entrada.intervalo(), 100);
        EXPECT_FALSE(entrada.cerrada());
        antes = entrada.lblVersion();
    }
    EXPECT_EQ(antes, "Versión 2.5.0.5");
    entrada.tic();
    EXPECT_EQ(entrada.intervalo(), 3500);
    EXPECT_FALSE(entrada.cerrada());
    entrada.tic();
    EXPECT_TRUE(entrada.cerrada());
}

TEST(Portada, NuncaEnsenaMediaLetra) {
    Entrada entrada;
    for (int i = 0; i < 7; ++i)
        entrada.tic();
    EXPECT_EQ(entrada.lblVersion(), "Versión");
}
