#include "furnishing/mesa_prop.h"

#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "furnishing/calcar.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

using namespace bosquel;
using apoyo::Idioma;
using Boton = MesaProp::Boton;

namespace {

constexpr Color verde = 0x00FF00, rosa = 0xC0C0FF;

struct Fila {
    Boton boton;
    std::string pone, alAbrir;
};

const std::vector<Fila> filas{
    {{0, 0}, "0", "0"},           {{1, 0}, "1L", "1L"},           {{1, 1}, "1R", "1R"},
    {{1, 2}, "1D", "1U"},         {{1, 3}, "1U", "1D"},           {{2, 0}, "2UD", "2UD"},
    {{2, 1}, "2RL", "2RL"},       {{2, 2}, "2DD", "2UU"},         {{2, 3}, "2RR", "2DD"},
    {{2, 4}, "2UU", "2LL"},       {{2, 5}, "2LL", "2RR"},         {{3, 0}, "3RUL", "3RUL"},
    {{3, 1}, "3ULD", "3ULD"},     {{3, 2}, "3LDR", "3LDR"},       {{3, 3}, "3DRU", "3DRU"},
    {{4, 0}, "4RLUD", "4RLUD"},   {{4, 1}, "4RRLL", "4RRLL"},     {{4, 2}, "4UUDD", "4UUDD"},
    {{5, 0}, "5URRLL", "5URRLL"}, {{5, 1}, "5DRRLL", "5DRRLL"},   {{5, 2}, "5LUUDD", "5LUUDD"},
    {{5, 3}, "5RUUDD", "5RUUDD"}, {{6, 0}, "6URRLLD", "6URRLLD"}, {{6, 1}, "6LUUDDR", "6LUUDDR"},
};

struct PruebaMesa : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    MblMesa& mesa = dibujo.MblMesa.crear(1);
    MblMesa& modelo = dibujo.MblMesa.modelo();
    int escrituras = 0;

    void escuchar(MesaProp& dialogo) {
        dialogo.alEscribir = [this] { ++escrituras; };
    }
};

}  // namespace

using MesaPropAbrir = PruebaMesa;
using MesaPropPulsar = PruebaMesa;
using MesaPropAplicar = PruebaMesa;
using MesaPropFalta = PruebaMesa;

TEST_F(MesaPropAbrir, MuestraMesaYSillasEnMetrosYSusColores) {
    mesa.MesaDimX = 1234567;
    mesa.MesaDimY = 805;
    mesa.AnchoSilla = 400;
    mesa.AltoSilla = 300;
    mesa.LineColor = verde;
    mesa.BackColor = rosa;
    const MesaProp dialogo(dibujo, 1);
    EXPECT_EQ(dialogo.TxtMesaX, "1.234,57");
    EXPECT_EQ(dialogo.TxtMesaY, "0,81");
    EXPECT_EQ(dialogo.TxtSillaX, "0,40");
    EXPECT_EQ(dialogo.TxtSillaY, "0,30");
    EXPECT_EQ(dialogo.txtLineColor, verde);
    EXPECT_EQ(dialogo.txtBackColor, rosa);
    EXPECT_TRUE(dialogo.conFondo());
    EXPECT_FALSE(dialogo.Check1);
    const Idioma ingles(Idioma::ingles);
    EXPECT_EQ(MesaProp(dibujo, 1).TxtMesaX, "1,234.57");
}

TEST_F(MesaPropAbrir, CadaCodigoLuceSuBotonYAbreSuGrupo) {
    for (const Fila& fila : filas) {
        mesa.ColocacionSillas = fila.alAbrir;
        const MesaProp dialogo(dibujo, 1);
        EXPECT_EQ(dialogo.pulsado(), fila.boton) << fila.alAbrir;
        EXPECT_EQ(dialogo.sillas(), fila.alAbrir[0] - '0') << fila.alAbrir;
    }
}

TEST_F(MesaPropAbrir, UnCodigoDesconocidoNoLuceNingunBoton) {
    for (const auto& [codigo, sillas] :
         std::vector<std::pair<std::string, int>>{{"", -1}, {"7UU", -1}, {"mesa", -1}, {"4XX", 4}}) {
        mesa.ColocacionSillas = codigo;
        const MesaProp dialogo(dibujo, 1);
        EXPECT_FALSE(dialogo.pulsado()) << codigo;
        EXPECT_EQ(dialogo.sillas(), sillas) << codigo;
    }
}

TEST_F(MesaPropAbrir, HayTantosBotonesComoColocaciones) {
    std::size_t botones = 0;
    std::set<std::string_view> leidos;
    for (int grupo = 0; grupo < MesaProp::grupos; ++grupo)
        for (const MesaProp::Colocacion& una : MesaProp::Dist(grupo)) {
            ++botones;
            leidos.insert(una.leido);
        }
    EXPECT_EQ(botones, filas.size());
    EXPECT_EQ(leidos.size(), filas.size());
    EXPECT_TRUE(MesaProp::Dist(-1).empty());
    EXPECT_TRUE(MesaProp::Dist(7).empty());
}

TEST_F(MesaPropPulsar, CadaBotonEscribeSuCodigoYQuedaElSoloPulsado) {
    MesaProp dialogo(dibujo, 1);
    for (const Fila& fila : filas) {
        dialogo.pulsarDist(fila.boton);
        EXPECT_EQ(mesa.ColocacionSillas, fila.pone);
        EXPECT_EQ(dialogo.pulsado(), fila.boton);
    }
}

TEST_F(MesaPropPulsar, ElBotonPulsadoNoEsElQueLuceAlVolverAAbrirEnLosGruposDeUnaYDosSillas) {
    MesaProp(dibujo, 1).pulsarDist({1, 2});
    EXPECT_EQ(mesa.ColocacionSillas, "1D");
    EXPECT_EQ(MesaProp(dibujo, 1).pulsado(), (Boton{1, 3}));
    MesaProp(dibujo, 1).pulsarDist({2, 3});
    EXPECT_EQ(mesa.ColocacionSillas, "2RR");
    EXPECT_EQ(MesaProp(dibujo, 1).pulsado(), (Boton{2, 5}));
}

TEST_F(MesaPropPulsar, EscribeLasMedidasYSeMuestraUnaSolaVez) {
    MesaProp dialogo(dibujo, 1);
    escuchar(dialogo);
    dialogo.TxtMesaX = "1,6";
    dialogo.TxtMesaY = "0.8";
    dialogo.TxtSillaX = "0,45";
    dialogo.TxtSillaY = "nada";
    dialogo.txtLineColor = verde;
    dialogo.pulsarDist({6, 1});
    EXPECT_EQ(mesa.MesaDimX, 1600);
    EXPECT_EQ(mesa.MesaDimY, 800);
    EXPECT_EQ(mesa.AnchoSilla, 450);
    EXPECT_EQ(mesa.AltoSilla, 300);
    EXPECT_EQ(mesa.ColocacionSillas, "6LUUDDR");
    EXPECT_EQ(mesa.LineColor, colorTextoVentana);
    EXPECT_EQ(dibujo.cambiados, (std::vector<Referencia>{{Clase::MblMesa, 1}}));
    EXPECT_EQ(escrituras, 1);
}

TEST_F(MesaPropPulsar, ElegirElNumeroDeSillasMuestraSuGrupoYNoCambiaLaMesa) {
    MesaProp dialogo(dibujo, 1);
    escuchar(dialogo);
    for (int cuantas = 0; cuantas < MesaProp::grupos; ++cuantas) {
        dialogo.elegirSillas(cuantas);
        EXPECT_EQ(dialogo.sillas(), cuantas);
        EXPECT_EQ(mesa.ColocacionSillas, "4RLUD");
        EXPECT_EQ(dialogo.pulsado(), (Boton{4, 0}));
    }
    EXPECT_EQ(escrituras, 0);
}

TEST_F(MesaPropPulsar, CadaBotonMuestraLaMesaQuePone) {
    MesaProp dialogo(dibujo, 1);
    for (const Fila& fila : filas) {
        const Calco calco = dialogo.calco(fila.boton);
        dialogo.pulsarDist(fila.boton);
        EXPECT_EQ(calco, calcar(dibujo, Clase::MblMesa, 1)) << fila.pone;
        EXPECT_EQ(calco.trazos.size(), static_cast<std::size_t>(1 + fila.pone[0] - '0')) << fila.pone;
    }
}

TEST_F(MesaPropPulsar, UnBotonQueNoHayNoHaceNada) {
    MesaProp dialogo(dibujo, 1);
    escuchar(dialogo);
    for (const Boton fuera : {Boton{0, 1}, Boton{6, 2}, Boton{7, 0}, Boton{-1, 0}, Boton{3, -1}}) {
        dialogo.pulsarDist(fuera);
        EXPECT_TRUE(dialogo.calco(fuera).trazos.empty());
    }
    dialogo.elegirSillas(7);
    EXPECT_EQ(dialogo.sillas(), 4);
    EXPECT_EQ(mesa.ColocacionSillas, "4RLUD");
    EXPECT_EQ(escrituras, 0);
}

TEST_F(MesaPropPulsar, LaHojaLoMuestraAntesDeQueElDialogoSeCierre) {
    apoyo::Banco banco;
    banco.dibujo().MblMesa.crear(1);
    MesaProp dialogo(banco.dibujo(), 1);
    std::size_t repintados = 0;
    banco.plataforma.alAbrirMesa = [&](MesaProp& abierto) {
        const std::size_t antes = banco.plataforma.repintados.size();
        banco.dibujo().sucia.anadirTodo();
        abierto.pulsarDist({1, 0});
        repintados = banco.plataforma.repintados.size() - antes;
    };
    mostrar(banco.sesion(), dialogo);
    EXPECT_EQ(banco.plataforma.dialogosDeMesa, 1);
    EXPECT_EQ(repintados, 1U);
}

TEST_F(MesaPropAplicar, EscribeMedidasYColoresUnaSolaVez) {
    MesaProp dialogo(dibujo, 1);
    escuchar(dialogo);
    dialogo.TxtMesaX = "2";
    dialogo.TxtSillaY = "0,35";
    dialogo.txtLineColor = verde;
    dialogo.txtBackColor = rosa;
    dialogo.Aplicar();
    EXPECT_EQ(mesa.MesaDimX, 2000);
    EXPECT_EQ(mesa.MesaDimY, 1000);
    EXPECT_EQ(mesa.AltoSilla, 350);
    EXPECT_EQ(mesa.LineColor, verde);
    EXPECT_EQ(mesa.BackColor, rosa);
    EXPECT_EQ(modelo.LineColor, colorTextoVentana);
    EXPECT_EQ(modelo.MesaDimX, 1000);
    EXPECT_EQ(dibujo.cambiados.size(), 1U);
    EXPECT_EQ(escrituras, 1);
}

TEST_F(MesaPropAplicar, ElModeloTomaLosColoresNuevosYLasMedidasDeAntes) {
    mesa.Left = 900;
    mesa.Visible = true;
    mesa.MesaDimX = 1200;
    mesa.AltoSilla = 310;
    MesaProp dialogo(dibujo, 1);
    dialogo.TxtMesaX = "3";
    dialogo.TxtSillaY = "0,5";
    dialogo.txtLineColor = verde;
    dialogo.txtBackColor = rosa;
    dialogo.Check1 = true;
    dialogo.Aplicar();
    EXPECT_EQ(mesa.MesaDimX, 3000);
    EXPECT_EQ(mesa.AltoSilla, 500);
    EXPECT_EQ(modelo.MesaDimX, 1200);
    EXPECT_EQ(modelo.MesaDimY, 1000);
    EXPECT_EQ(modelo.AnchoSilla, 400);
    EXPECT_EQ(modelo.AltoSilla, 310);
    EXPECT_EQ(modelo.LineColor, verde);
    EXPECT_EQ(modelo.BackColor, rosa);
    EXPECT_EQ(modelo.Left, 0);
    EXPECT_FALSE(modelo.Visible);
}

TEST_F(MesaPropAplicar, LoQueEscribioUnaPulsacionSiLlegaAlModelo) {
    MesaProp dialogo(dibujo, 1);
    dialogo.TxtMesaX = "3";
    dialogo.pulsarDist({2, 1});
    dialogo.Check1 = true;
    dialogo.Aplicar();
    EXPECT_EQ(modelo.MesaDimX, 3000);
    EXPECT_EQ(modelo.ColocacionSillas, "2RL");
}

TEST_F(MesaPropAplicar, CancelarTrasPulsarDejaLaColocacionYLasMedidas) {
    {
        MesaProp dialogo(dibujo, 1);
        dialogo.TxtMesaX = "3";
        dialogo.pulsarDist({0, 0});
        dialogo.TxtMesaX = "5";
    }
    EXPECT_EQ(mesa.ColocacionSillas, "0");
    EXPECT_EQ(mesa.MesaDimX, 3000);
}

TEST_F(MesaPropFalta, UnHuecoYElModeloDanUnDialogoVacioQueNoCambiaNada) {
    for (const int indice : {0, 2, -1}) {
        MesaProp dialogo(dibujo, indice);
        escuchar(dialogo);
        EXPECT_EQ(dialogo.TxtMesaX, "");
        EXPECT_EQ(dialogo.sillas(), -1);
        EXPECT_FALSE(dialogo.pulsado());
        dialogo.TxtMesaX = "3";
        dialogo.Check1 = true;
        dialogo.pulsarDist({0, 0});
        dialogo.Aplicar();
        EXPECT_TRUE(dialogo.calco({0, 0}).trazos.empty());
    }
    EXPECT_EQ(modelo.MesaDimX, 1000);
    EXPECT_EQ(modelo.ColocacionSillas, "4RLUD");
    EXPECT_EQ(mesa.MesaDimX, 1000);
    EXPECT_TRUE(dibujo.cambiados.empty());
    EXPECT_EQ(escrituras, 0);
}
