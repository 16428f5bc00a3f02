#include "output/recuadro_seleccion.h"

#include "output/escala.h"

#include <gtest/gtest.h>

using namespace bosquel;
using enum EstadoRecuadro;

namespace {

/// 600 by 400 pixels.
const Recuadro hoja{0, 0, 9000, 6000};

/// A frame from one point to another, drawn in one stroke.
RecuadroSeleccion trazado(double x1, double y1, double x2, double y2) {
    RecuadroSeleccion recuadro;
    recuadro.pulsar(x1, y1);
    recuadro.empezar();
    recuadro.seguir(x2, y2);
    recuadro.terminar();
    return recuadro;
}

void mover(RecuadroSeleccion& recuadro, double x1, double y1, double x2, double y2) {
    recuadro.pulsar(x1, y1);
    recuadro.llevar(x1, y1);
    recuadro.llevar(x2, y2);
    recuadro.terminar();
}

}  // namespace

TEST(RecuadroSeleccion, AlPrincipioEstaVacioEscondidoYSinEstado) {
    const RecuadroSeleccion recuadro;
    EXPECT_EQ(recuadro.estado(), ninguno);
    EXPECT_FALSE(recuadro.Visible());
    EXPECT_EQ(recuadro.forma(), Recuadro());
    EXPECT_EQ(recuadro.area(hoja), AreaSalida());
}

TEST(RecuadroSeleccion, ElPrimerToqueEstaFueraOEnElRecuadroVacioDeLaEsquina) {
    RecuadroSeleccion fuera;
    fuera.pulsar(300, 300);
    EXPECT_EQ(fuera.estado(), Nuevo);
    EXPECT_TRUE(fuera.Visible());
    RecuadroSeleccion esquina;
    esquina.pulsar(0, 0);
    EXPECT_EQ(esquina.estado(), Mover);
    EXPECT_TRUE(esquina.Visible());
}

TEST(RecuadroSeleccion, LosBordesSonDeDentro) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    for (const auto& [x, y, dentro] : {std::tuple{1500.0, 1500.0, true},
                                       {4500.0, 3000.0, true},
                                       {1499.0, 2000.0, false},
                                       {4501.0, 2000.0, false},
                                       {3000.0, 1499.0, false},
                                       {3000.0, 3001.0, false}}) {
        EXPECT_EQ(recuadro.contiene(x, y), dentro) << x << " " << y;
        RecuadroSeleccion copia = recuadro;
        copia.pulsar(x, y);
        EXPECT_EQ(copia.estado(), dentro ? Mover : Nuevo) << x << " " << y;
    }
}

TEST(RecuadroSeleccion, UnoNuevoSeEncogeDondeEstabaHastaQueSeMueveElPuntero) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    recuadro.pulsar(6000, 4500);
    EXPECT_EQ(recuadro.forma(), (Recuadro{1500, 1500, 0, 0}));
    recuadro.empezar();
    EXPECT_EQ(recuadro.estado(), Seguir);
    EXPECT_EQ(recuadro.forma(), (Recuadro{6000, 4500, 0, 0}));
    EXPECT_TRUE(recuadro.seguir(6600, 4800));
    EXPECT_EQ(recuadro.forma(), (Recuadro{6000, 4500, 600, 300}));
}

TEST(RecuadroSeleccion, SoloCreceHaciaLaDerechaYHaciaAbajo) {
    RecuadroSeleccion recuadro;
    recuadro.pulsar(3000, 3000);
    recuadro.empezar();
    for (const auto& [x, y] :
         {std::pair{1500.0, 1500.0}, {4500.0, 1500.0}, {1500.0, 4500.0}, {3000.0, 4500.0}, {4500.0, 3000.0}})
        EXPECT_FALSE(recuadro.seguir(x, y)) << x << " " << y;
    EXPECT_EQ(recuadro.forma(), (Recuadro{3000, 3000, 0, 0}));
    EXPECT_TRUE(recuadro.seguir(4500, 3600));
    EXPECT_FALSE(recuadro.seguir(1500, 1500));
    EXPECT_EQ(recuadro.forma(), (Recuadro{3000, 3000, 1500, 600}));
}

TEST(RecuadroSeleccion, PulsarFueraSinMoverDaUnoDeCeroPorCeroQueCuentaComoElegido) {
    RecuadroSeleccion recuadro;
    recuadro.pulsar(3000, 3000);
    recuadro.terminar();
    EXPECT_TRUE(recuadro.Visible());
    EXPECT_EQ(recuadro.forma().Width, 0);
    EXPECT_EQ(recuadro.forma().Height, 0);
    EXPECT_EQ(recuadro.area(hoja).ancho, 0);
    EXPECT_EQ(recuadro.area(hoja).alto, 0);
}

TEST(RecuadroSeleccion, PulsarDentroSinMoverLoDejaDondeEstaba) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    const AreaSalida antes = recuadro.area(hoja);
    recuadro.pulsar(3000, 2000);
    recuadro.terminar();
    EXPECT_EQ(recuadro.estado(), Terminado);
    EXPECT_EQ(recuadro.forma(), (Recuadro{1500, 1500, 3000, 1500}));
    EXPECT_EQ(recuadro.area(hoja), antes);
}

TEST(RecuadroSeleccion, SigueAlPunteroPorDondeSeCogioDesdeElSegundoMovimiento) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    recuadro.pulsar(2000, 2000);
    recuadro.llevar(2100, 2050);
    EXPECT_EQ(recuadro.forma(), (Recuadro{1500, 1500, 3000, 1500}));
    recuadro.llevar(2400, 2650);
    EXPECT_EQ(recuadro.forma(), (Recuadro{1800, 2100, 3000, 1500}));
    EXPECT_EQ(recuadro.estado(), Mover);
}

TEST(RecuadroSeleccion, ElAgarreVerticalSeGuardaEnTwipsEnteros) {
    RecuadroSeleccion recuadro = trazado(1500.5, 1500.5, 4500, 3000);
    recuadro.pulsar(2000, 2000);
    recuadro.llevar(2000, 2000);
    recuadro.llevar(3000, 3000);
    EXPECT_EQ(recuadro.forma().Left, 2500.5);
    EXPECT_EQ(recuadro.forma().Top, 2500);  // a grip of 499.5 is kept as 500
}

TEST(RecuadroSeleccion, SeLeePorDentroConElTamanoDeLaUltimaVezQueSeSolto) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    recuadro.pulsar(6000, 4500);
    recuadro.empezar();
    recuadro.seguir(6100, 4600);
    // While it is drawn, it still reaches as far as the last one did.
    EXPECT_TRUE(recuadro.contiene(8000, 5500));
    recuadro.terminar();
    EXPECT_FALSE(recuadro.contiene(8000, 5500));
}

TEST(AreaSalida, SonPixelesEnterosDeQuinceTwips) {
    EXPECT_EQ(trazado(1500, 750, 4500, 3000).area(hoja), (AreaSalida{100, 50, 200, 150}));
}

TEST(AreaSalida, LasFraccionesSeQuitanPeroLoAltoSeRedondea) {
    // Left 100.9 and top 50.9 pixels, 199.6 by 149.6.
    const AreaSalida area = trazado(1513.5, 763.5, 1513.5 + 2994, 763.5 + 2244).area(hoja);
    EXPECT_EQ(area, (AreaSalida{100, 51, 199, 149}));
    // A half goes to the even pixel: 50.5 and 51.5.
    EXPECT_EQ(trazado(1500, 757.5, 4500, 3000).area(hoja).top, 50);
    EXPECT_EQ(trazado(1500, 772.5, 4500, 3000).area(hoja).top, 52);
}

TEST(AreaSalida, ElAltoSeGuardaEnTwipsEnteros) {
    // 2249.6 twips are 149.97 pixels; kept as 2250 they are 150.
    EXPECT_EQ(trazado(1500, 750, 4500, 2999.6).area(hoja).alto, 150);
    EXPECT_EQ(trazado(1500, 750, 4499.6, 3000).area(hoja).ancho, 199);
}

TEST(AreaSalida, PasadoElBordeDerechoOElDeAbajoSeRetiraHastaCaber) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    mover(recuadro, 2000, 2000, 9500, 6500);
    EXPECT_EQ(recuadro.forma(), (Recuadro{9000, 6000, 3000, 1500}));
    EXPECT_EQ(recuadro.area(hoja), (AreaSalida{400, 300, 200, 100}));
}

TEST(AreaSalida, ALaIzquierdaOEncimaDelOrigenSeTomaDesdeElConSuTamano) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    mover(recuadro, 2000, 2000, -2500, -1000);
    EXPECT_EQ(recuadro.forma(), (Recuadro{-3000, -1500, 3000, 1500}));
    EXPECT_EQ(recuadro.area(hoja), (AreaSalida{0, 0, 200, 100}));
    mover(recuadro, 0, 0, 3000, 1500);
    EXPECT_EQ(recuadro.area(hoja), (AreaSalida{0, 0, 200, 100}));
}

TEST(AreaSalida, LoQueEsMasAnchoQueLaHojaEmpiezaAntesDeElla) {
    const AreaSalida area = trazado(15, 15, 15 + 9000 + 67, 15 + 6000 + 150).area(hoja);
    EXPECT_EQ(area, (AreaSalida{-4, -10, 604, 410}));
}

TEST(AreaSalida, NoPasaDeLoQueCabeEnMemoria) {
    const double lejos = (ladoMaximo + 1000) * twipsPorPixel;
    const AreaSalida area = trazado(0.5, 0.5, lejos, lejos).area({0, 0, lejos, lejos});
    EXPECT_EQ(area.ancho, ladoMaximo);
    EXPECT_EQ(area.alto, ladoMaximo);
}

TEST(RecuadroSeleccion, AbarcarTomaLaHojaEnteraYLoEnsena) {
    RecuadroSeleccion recuadro;
    recuadro.abarcar({-3000, -1500, 9000, 6000});
    EXPECT_EQ(recuadro.forma(), hoja);
    EXPECT_TRUE(recuadro.Visible());
    EXPECT_EQ(recuadro.estado(), Terminado);
    EXPECT_EQ(recuadro.area(hoja), (AreaSalida{0, 0, 600, 400}));
}

TEST(RecuadroSeleccion, ReiniciarLoEscondeJuntoALaHojaYConservaSuTamano) {
    RecuadroSeleccion recuadro = trazado(1500, 1500, 4500, 3000);
    recuadro.reiniciar(hoja);
    EXPECT_FALSE(recuadro.Visible());
    EXPECT_EQ(recuadro.forma().Left, 9001);
    EXPECT_TRUE(recuadro.contiene(9001 + 3000, 1500 + 1500));
    EXPECT_FALSE(recuadro.contiene(9000, 2000));
    recuadro.pulsar(9500, 2000);
    EXPECT_EQ(recuadro.estado(), Mover);
    EXPECT_TRUE(recuadro.Visible());
}
