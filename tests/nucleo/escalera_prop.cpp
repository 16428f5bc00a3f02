#include "stairs_symbols/escalera_prop.h"

#include "apoyo/idioma.h"
#include "furnishing/recuadro.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Idioma;

namespace {

/// A drawing with a stair at index 2 that differs from the model in everything.
struct PruebaEscaleraProp : testing::Test {
    static constexpr float izquierda = 300.5F, arriba = 150.25F;

    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;

    PruebaEscaleraProp() {
        dibujo.Escalera.contador = 2;
        Escalera& una = dibujo.Escalera.crear(2);
        una.Left = 1000;
        una.Top = 2000;
        una.Visible = true;
        una.LineColor = 0x123456;
        una.Stairs = 3;
        una.StairEye = 200;
        una.WidthSteps = 300;
        una.WidthStair = {900, 1100, 1200};
        una.StepsStair = {10, 3, 7};
        una.RailingSide = {true, false, true};
        una.Angle = 45;
        una.Orientacion = "R";
    }

    Escalera& escalera(int indice = 2) { return *dibujo.Escalera.en(indice); }
    Escalera& modelo() { return dibujo.Escalera.modelo(); }
    EscaleraProp abrir(int indice, int angulo = 0) { return {dibujo, indice, angulo, izquierda, arriba}; }
};

void esperarIguales(const Escalera& una, const Escalera& otra) {
    EXPECT_EQ(una.LineColor, otra.LineColor);
    EXPECT_EQ(una.Angle, otra.Angle);
    EXPECT_EQ(una.Stairs, otra.Stairs);
    EXPECT_EQ(una.StairEye, otra.StairEye);
    EXPECT_EQ(una.WidthSteps, otra.WidthSteps);
    EXPECT_EQ(una.WidthStair, otra.WidthStair);
    EXPECT_EQ(una.StepsStair, otra.StepsStair);
    EXPECT_EQ(una.RailingSide, otra.RailingSide);
    EXPECT_EQ(una.Orientacion, otra.Orientacion);
}

}  // namespace

using EscaleraPropAbrir = PruebaEscaleraProp;
using EscaleraPropTramos = PruebaEscaleraProp;
using EscaleraPropCambios = PruebaEscaleraProp;
using EscaleraPropAplicar = PruebaEscaleraProp;

TEST_F(EscaleraPropAbrir, MuestraLaEscaleraEnMetrosSegunElIdioma) {
    for (const auto& [nombre, huella, ojo, ancho] : {std::tuple{Idioma::espanol, "0,30", "0,20", "1234,50"},
                                                     {Idioma::ingles, "0.30", "0.20", "1234.50"}}) {
        const Idioma puesto(nombre);
        escalera().WidthStair[2] = 1234500;
        const EscaleraProp dialogo = abrir(2);
        EXPECT_EQ(dialogo.txtHuella, huella);
        EXPECT_EQ(dialogo.txtAnchoOjo, ojo);
        EXPECT_EQ(dialogo.Angulo.TxtAngulo(), "45");
        EXPECT_EQ(dialogo.txtLineColor, 0x123456);
        EXPECT_TRUE(dialogo.chkOrientacion);
        EXPECT_FALSE(dialogo.Check1);
        EXPECT_EQ(dialogo.optTramos(), 3);
        ASSERT_EQ(dialogo.tramos.size(), 3U);
        EXPECT_EQ(dialogo.tramos[0].lblTramo, "Tramo 1");
        EXPECT_EQ(dialogo.tramos[2].lblTramo, "Tramo 3");
        EXPECT_EQ(dialogo.tramos[1].txtPeldaños, "3");
        EXPECT_EQ(dialogo.tramos[2].txtAnchoTramo, ancho) << "no grouping";
        EXPECT_TRUE(dialogo.tramos[0].chkBarandilla && dialogo.tramos[2].chkBarandilla);
        EXPECT_FALSE(dialogo.tramos[1].chkBarandilla);
        esperarIguales(dialogo.StairPreview(), escalera());
    }
}

TEST_F(EscaleraPropAbrir, ElSentidoDeGiroEstaMarcadoSiNoEsD) {
    for (const auto& [orientacion, marcado, vista] :
         {std::tuple{"D", false, "D"}, {"R", true, "R"}, {"Nada", true, "R"}}) {
        escalera().Orientacion = orientacion;
        const EscaleraProp dialogo = abrir(2);
        EXPECT_EQ(dialogo.chkOrientacion, marcado);
        EXPECT_EQ(dialogo.StairPreview().Orientacion, vista);
    }
}

TEST_F(EscaleraPropAbrir, UnaNuevaEmpiezaComoElModelo) {
    modelo().Stairs = 2;
    modelo().Angle = 75;
    modelo().WidthStair = {800, 700, 600};
    const EscaleraProp dialogo = abrir(0);
    esperarIguales(dialogo.StairPreview(), modelo());
    EXPECT_EQ(dialogo.Angulo.TxtAngulo(), "75");
    EXPECT_EQ(dialogo.tramos.size(), 2U);
}

TEST_F(EscaleraPropAbrir, UnaNuevaAlLadoDeUnaParedTomaSuAngulo) {
    modelo().Angle = 75;
    for (const auto& [pared, angulo] :
         {std::pair{-30, 330}, {-90, 270}, {90, 90}, {15, 15}, {0, 75}, {-1, 359}}) {
        const EscaleraProp dialogo = abrir(0, pared);
        EXPECT_EQ(dialogo.StairPreview().Angle, angulo);
        EXPECT_EQ(dialogo.Angulo.TxtAngulo(), std::to_string(angulo));
    }
}

TEST_F(EscaleraPropAbrir, UnaQueYaExistiaConservaElSuyo) {
    EXPECT_EQ(abrir(2, -30).StairPreview().Angle, 45);
}

TEST_F(EscaleraPropAbrir, UnAnguloDeMasDeUnaVueltaSeQuedaEnElla) {
    escalera().Angle = 400;
    EXPECT_EQ(abrir(2).StairPreview().Angle, 360);
}

TEST_F(EscaleraPropAbrir, LaVistaPreviaEsLoQueDicenLosTextos) {
    escalera().WidthSteps = 283;
    escalera().WidthStair[1] = 1007;
    const EscaleraProp dialogo = abrir(2);
    EXPECT_EQ(dialogo.StairPreview().WidthSteps, 280);
    EXPECT_EQ(dialogo.StairPreview().WidthStair[1], 1010);
}

TEST_F(EscaleraPropAbrir, SeVeConSuCuadroCentrado) {
    for (const double zoom : {0.5, 1.0, 1.5}) {
        dibujo.FactorZoomActual = zoom;
        EscaleraProp dialogo = abrir(2);
        dialogo.elegirTramos(2);
        Dibujo marco;
        marco.FactorZoomActual = zoom;
        marco.Escalera.crear(1) = dialogo.StairPreview();
        const auto cuadro = recuadroDe(marco, Clase::Escalera, 1);
        ASSERT_TRUE(cuadro);
        EXPECT_EQ(cuadro->Left, -cuadro->Width / 2);
        EXPECT_EQ(cuadro->Top, -cuadro->Height / 2);
        EXPECT_EQ(dialogo.FactorZoomActual(), zoom);
    }
}

TEST_F(EscaleraPropAbrir, LaQueNoExisteDaUnDialogoVacioQueNoCambiaNada) {
    EscaleraProp dialogo = abrir(1);
    EXPECT_EQ(dialogo.txtHuella, "");
    EXPECT_EQ(dialogo.optTramos(), 0);
    EXPECT_TRUE(dialogo.tramos.empty());
    dialogo.Check1 = true;
    dialogo.txtHuella = "9";
    dialogo.PreviewChanges();
    dialogo.Aplicar();
    EXPECT_FALSE(dibujo.Escalera.existe(1));
    EXPECT_EQ(modelo().WidthSteps, 280);
    EXPECT_EQ(dibujo.Escalera.contador, 2);
}

TEST_F(EscaleraPropTramos, ElegirMenosOcultaTramosYElegirMasLosDevuelve) {
    EscaleraProp dialogo = abrir(2);
    dialogo.tramos[2].txtPeldaños = "12";
    dialogo.tramos[1].chkBarandilla = true;
    dialogo.PreviewChanges();
    dialogo.elegirTramos(1);
    EXPECT_EQ(dialogo.tramos.size(), 1U);
    EXPECT_EQ(dialogo.StairPreview().Stairs, 1);
    EXPECT_EQ(dialogo.StairPreview().StepsStair, (std::array<std::int32_t, 3>{10, 3, 12}));
    EXPECT_EQ(dialogo.StairPreview().RailingSide, (std::array{true, true, true}));
    dialogo.elegirTramos(3);
    ASSERT_EQ(dialogo.tramos.size(), 3U);
    EXPECT_EQ(dialogo.tramos[2].txtPeldaños, "12");
    EXPECT_TRUE(dialogo.tramos[1].chkBarandilla);
    EXPECT_EQ(dialogo.StairPreview().Stairs, 3);
}

TEST_F(EscaleraPropTramos, LasFilasMuestranLaVistaPreviaYNoLoQueNoSeEntendio) {
    EscaleraProp dialogo = abrir(2);
    dialogo.tramos[0].txtAnchoTramo = "";
    dialogo.PreviewChanges();
    dialogo.elegirTramos(2);
    EXPECT_EQ(dialogo.tramos[0].txtAnchoTramo, "0,90");
}

TEST_F(EscaleraPropTramos, UnNumeroDeTramosSinOpcionNoPoneNingunaNiSePierde) {
    escalera().Stairs = 5;
    EscaleraProp dialogo = abrir(2);
    EXPECT_EQ(dialogo.optTramos(), 0);
    EXPECT_TRUE(dialogo.tramos.empty());
    dialogo.Aplicar();
    EXPECT_EQ(escalera().Stairs, 5);
}

TEST_F(EscaleraPropCambios, CadaControlLlegaASuCampo) {
    EscaleraProp dialogo = abrir(2);
    dialogo.txtHuella = "0,25";
    dialogo.txtAnchoOjo = "1.1";
    dialogo.txtLineColor = rojo;
    dialogo.chkOrientacion = false;
    dialogo.Angulo.escribir("120");
    dialogo.tramos[0] = {"", "4", "0,8", false};
    dialogo.tramos[1] = {"", "0", "0.75", true};
    dialogo.tramos[2] = {"", "6,5", "2", false};
    dialogo.PreviewChanges();
    const Escalera& vista = dialogo.StairPreview();
    EXPECT_EQ(vista.WidthSteps, 250);
    EXPECT_EQ(vista.StairEye, 1100);
    EXPECT_EQ(vista.LineColor, rojo);
    EXPECT_EQ(vista.Orientacion, "D");
    EXPECT_EQ(vista.Angle, 120);
    EXPECT_EQ(vista.StepsStair, (std::array<std::int32_t, 3>{4, 0, 6})) << "half to even";
    EXPECT_EQ(vista.WidthStair, (std::array<std::int32_t, 3>{800, 750, 2000}));
    EXPECT_EQ(vista.RailingSide, (std::array{false, true, false}));
    EXPECT_EQ(escalera().WidthSteps, 300) << "nothing is written before it is applied";
}

TEST_F(EscaleraPropCambios, LaComaYElPuntoValenEnLosDosIdiomas) {
    for (const char* nombre : {Idioma::espanol, Idioma::ingles}) {
        const Idioma puesto(nombre);
        for (const char* huella : {"0,27", "0.27"}) {
            EscaleraProp dialogo = abrir(2);
            dialogo.txtHuella = huella;
            dialogo.PreviewChanges();
            EXPECT_EQ(dialogo.StairPreview().WidthSteps, 270);
        }
    }
}

TEST_F(EscaleraPropCambios, LoQueNoEsUnNumeroDejaSuCampoComoEstaba) {
    for (const char* texto : {"", ",", "1e999", "9999999999"}) {
        EscaleraProp dialogo = abrir(2);
        dialogo.txtHuella = dialogo.txtAnchoOjo = texto;
        dialogo.tramos[1].txtAnchoTramo = dialogo.tramos[1].txtPeldaños = texto;
        dialogo.PreviewChanges();
        EXPECT_EQ(dialogo.StairPreview().WidthSteps, 300) << texto;
        EXPECT_EQ(dialogo.StairPreview().StairEye, 200);
        EXPECT_EQ(dialogo.StairPreview().WidthStair[1], 1100);
        EXPECT_EQ(dialogo.StairPreview().StepsStair[1], 3);
    }
}

TEST_F(EscaleraPropCambios, ElAnguloEsEnteroYCeroSiNoEsUnNumero) {
    for (const auto& [texto, angulo] :
         {std::pair{"", 0}, {",", 0}, {"22,5", 22}, {"23.5", 24}, {"400", 360}}) {
        EscaleraProp dialogo = abrir(2);
        dialogo.Angulo.escribir(texto);
        dialogo.PreviewChanges();
        EXPECT_EQ(dialogo.StairPreview().Angle, angulo) << texto;
    }
}

TEST_F(EscaleraPropAplicar, LaNuevaVaDetrasDelContadorEnLaEsquinaALaVista) {
    Dibujo vacio;
    vacio.FactorZoomActual = 1.5;
    EscaleraProp dialogo(vacio, 0, 30, izquierda, arriba);
    dialogo.elegirTramos(2);
    EXPECT_FALSE(vacio.Escalera.existe(2));
    dialogo.Aplicar();
    EXPECT_EQ(vacio.Escalera.contador, 2);
    EXPECT_FALSE(vacio.Escalera.existe(1));
    ASSERT_TRUE(vacio.Escalera.existe(2));
    const Escalera& nueva = *vacio.Escalera.en(2);
    EXPECT_EQ(nueva.Left, izquierda);
    EXPECT_EQ(nueva.Top, arriba);
    EXPECT_EQ(nueva.FactorZOOM, 1.5);
    EXPECT_TRUE(nueva.Visible);
    esperarIguales(nueva, dialogo.StairPreview());
    EXPECT_EQ(vacio.Escalera.modelo().Stairs, 1);
    EXPECT_EQ(vacio.cambiados, (std::vector<Referencia>{{Clase::Escalera, 2}}));

    EscaleraProp(vacio, 0, 0, 0, 0).Aplicar();
    EXPECT_EQ(vacio.Escalera.contador, 3);
    EXPECT_TRUE(vacio.Escalera.existe(3));
}

TEST_F(EscaleraPropAplicar, LaQueYaExistiaCambiaEnSuSitio) {
    EscaleraProp dialogo = abrir(2);
    dibujo.FactorZoomActual = 1;
    dialogo.txtHuella = "0,31";
    dialogo.Angulo.cmd90Plus(1);
    dialogo.PreviewChanges();
    dialogo.Aplicar();
    EXPECT_EQ(escalera().Left, 1000);
    EXPECT_EQ(escalera().Top, 2000);
    EXPECT_EQ(escalera().WidthSteps, 310);
    EXPECT_EQ(escalera().Angle, 135);
    EXPECT_EQ(escalera().FactorZOOM, 1);
    esperarIguales(escalera(), dialogo.StairPreview());
    EXPECT_EQ(dibujo.Escalera.contador, 2);
    EXPECT_EQ(modelo().WidthSteps, 280);
    EXPECT_EQ(dibujo.cambiados, (std::vector<Referencia>{{Clase::Escalera, 2}}));
}

TEST_F(EscaleraPropAplicar, QuedaDelanteDeTodo) {
    Escalera& otra = dibujo.Escalera.crear(1);
    alFrente(dibujo, otra);
    abrir(2).Aplicar();
    EXPECT_GT(escalera().orden, otra.orden);
    abrir(0).Aplicar();
    EXPECT_GT(escalera(3).orden, escalera().orden);
}

TEST_F(EscaleraPropAplicar, GuardarComoModeloLoEscribeTambienAlEditarUnaQueExistia) {
    EscaleraProp dialogo = abrir(2);
    dialogo.Check1 = true;
    dialogo.txtAnchoOjo = "0,4";
    dialogo.PreviewChanges();
    dialogo.Aplicar();
    esperarIguales(modelo(), dialogo.StairPreview());
    EXPECT_EQ(modelo().StairEye, 400);
    EXPECT_FALSE(modelo().Visible);
    EXPECT_EQ(modelo().Left, 0);
    esperarIguales(escalera(), modelo());
}

TEST_F(EscaleraPropAplicar, SinAplicarNoHayEscaleraNiCuenta) {
    {
        EscaleraProp dialogo = abrir(0);
        dialogo.elegirTramos(3);
        dialogo.Check1 = true;
    }
    EXPECT_EQ(dibujo.Escalera.contador, 2);
    EXPECT_EQ(dibujo.Escalera.ultimo(), 2);
    EXPECT_EQ(modelo().Stairs, 1);
    EXPECT_TRUE(dibujo.cambiados.empty());
}

TEST_F(EscaleraPropAplicar, UnContadorAgotadoNoCreaNingunaNiPisaLaUltima) {
    dibujo.Escalera.contador = 32767;
    dibujo.Escalera.crear(32767).WidthSteps = 111;
    abrir(0).Aplicar();
    EXPECT_EQ(escalera(32767).WidthSteps, 111);
    EXPECT_EQ(dibujo.Escalera.contador, 32767);
}
