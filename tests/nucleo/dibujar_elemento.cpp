#include "furnishing/dibujar_elemento.h"

#include "apoyo/muestrario.h"
#include "surface/grabadora.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using Trazos = std::vector<std::string>;

Trazos todo(const Dibujo& dibujo, double escala = 1) {
    Grabadora hoja;
    DibujarTodo(salidaDe(dibujo, hoja, escala), dibujo);
    return hoja.trazos();
}

/// The fill state set and reset, and nothing drawn between.
const Trazos soloFondo{"FillStyle 0", "FillColor FFFFFF", "FillStyle 1", "FillColor 000000"};

template <class T>
T& visible(Coleccion<T>& coleccion, int indice = 1) {
    T& elemento = coleccion.crear(indice);
    elemento.Visible = true;
    return elemento;
}

/// Segment i runs from (100 i, 0) to (100 i, 70).
template <class T>
T& conLineas(Coleccion<T>& coleccion) {
    T& elemento = coleccion.crear(1);
    for (std::size_t i = 0; i < elemento.lineas.size(); ++i) {
        const auto x = static_cast<float>(100 * (i + 1));
        elemento.lineas.at(i) = {x, 0, x, 70, true};
    }
    return elemento;
}

std::string linea(int i) {
    const std::string x = std::to_string(100 * i);
    return "Line " + x + " 0 " + x + " 70 000000";
}

std::size_t discontinuas(const Trazos& trazos) {
    return static_cast<std::size_t>(std::count_if(trazos.begin(), trazos.end(), [](const std::string& trazo) {
        return trazo.find(" 0 ") != std::string::npos && trazo.find(" 10 0") != std::string::npos;
    }));
}

}  // namespace

TEST(DibujarElemento, ElModeloUnHuecoYLoInvisibleNoDibujanNada) {
    for (const DatosClase& fila : todasLasClases()) {
        Dibujo dibujo;
        Grabadora hoja;
        const Salida salida = salidaDe(dibujo, hoja, 1);
        conColeccion(dibujo, fila.clase, [](auto& coleccion) {
            coleccion.crear(2);
            if constexpr (requires { coleccion.modelo().Visible; }) coleccion.modelo().Visible = true;
        });
        for (const int indice : {-1, 0, 1, 2, 3, 32767})
            DibujarElemento(salida, dibujo, fila.clase, indice);
        EXPECT_EQ(hoja.trazos(), Trazos{}) << fila.nombre;
    }
}

TEST(DibujarElemento, UnCodigoDesconocidoNoDibujaYDejaElRellenoComoEstaba) {
    for (const char* codigo : {"", "X", "n", " N", "NN", "4rlud", "7", "norte"}) {
        Dibujo dibujo;
        visible(dibujo.MblMesa).ColocacionSillas = codigo;
        visible(dibujo.MblSilla).Orientacion = codigo;
        visible(dibujo.MblCama90).Orientacion = codigo;
        visible(dibujo.MblCama130).Orientacion = codigo;
        visible(dibujo.MblAsiento).Orientacion = codigo;
        visible(dibujo.MblNevera).Orientacion = codigo;
        visible(dibujo.MblFregadero).Orientacion = codigo;
        visible(dibujo.MblLavadero).Orientacion = codigo;
        visible(dibujo.MblVertedero).Orientacion = codigo;
        visible(dibujo.MblInodoro).Orientacion = codigo;
        visible(dibujo.MblLavabo).Orientacion = codigo;
        visible(dibujo.MblBidet).Orientacion = codigo;
        visible(dibujo.MblBañera).Orientacion = codigo;
        visible(dibujo.MblUrinario).Orientacion = codigo;
        for (const Clase clase :
             {Clase::MblMesa, Clase::MblSilla, Clase::MblCama90, Clase::MblCama130, Clase::MblAsiento,
              Clase::MblNevera, Clase::MblFregadero, Clase::MblLavadero, Clase::MblVertedero})
            EXPECT_EQ(trazosDe(dibujo, clase), soloFondo) << codigo;
        for (const Clase clase :
             {Clase::MblInodoro, Clase::MblLavabo, Clase::MblBidet, Clase::MblBañera, Clase::MblUrinario})
            EXPECT_EQ(trazosDe(dibujo, clase), Trazos{}) << codigo;
    }
}

TEST(DibujarElemento, UnLadoQueNoEsNumeroNoDibujaNada) {
    for (const char* lado : {"", "  ", "N", "60x", "sesenta", "1e99"}) {
        Dibujo dibujo;
        visible(dibujo.MblDucha).Orientacion = lado;
        visible(dibujo.MblCocina).Orientacion = lado;
        visible(dibujo.MblLavadora).Orientacion = lado;
        EXPECT_EQ(trazosDe(dibujo, Clase::MblDucha), Trazos{}) << lado;
        EXPECT_EQ(trazosDe(dibujo, Clase::MblCocina), soloFondo) << lado;
        EXPECT_EQ(trazosDe(dibujo, Clase::MblLavadora), soloFondo) << lado;
    }
}

TEST(DibujarElemento, CualquierNumeroEsUnLado) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblDucha& ducha = visible(dibujo.MblDucha);
    ducha.Orientacion = "70";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblDucha),
              (Trazos{"Box 0 0 700 700 000000", "Box 60 60 640 640 000000", "Circle 350 350 20 000000",
                      "Circle 350 350 40 000000"}));
    ducha.Orientacion = " 85 ";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblDucha).at(0), "Box 0 0 850 850 000000");
    ducha.Orientacion = "70.5";  // half to even, as the process's locale reads it
    EXPECT_EQ(trazosDe(dibujo, Clase::MblDucha).at(0), "Box 0 0 700 700 000000");
}

TEST(DibujarElemento, LosFogonesSiguenAlLado) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    visible(dibujo.MblCocina).Orientacion = "50";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblCocina).at(5), "Circle 340 340 70 000000");
    dibujo.MblCocina.en(1)->Orientacion = "60";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblCocina).at(5), "Circle 440 440 70 000000");
}

TEST(DibujarElemento, LaMesaEsVeinteMilimetrosMenorYSoloSeCorreDondeTieneSillas) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblMesa& mesa = visible(dibujo.MblMesa);
    mesa.ColocacionSillas = "0";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa).at(2), "Box 0 0 980 980 000000");
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa).size(), 5U);
    mesa.ColocacionSillas = "1U";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa).at(2), "Box 0 300 980 1280 000000");
    mesa.MesaDimX = 1020;
    mesa.MesaDimY = 620;
    mesa.ColocacionSillas = "4RLUD";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa),
              (Trazos{"FillStyle 0", "FillColor FFFFFF", "Box 300 300 1300 900 000000",
                      "Box 0 400 300 800 000000", "Box 1300 400 1600 800 000000", "Box 600 0 1000 300 000000",
                      "Box 600 900 1000 1200 000000", "FillStyle 1", "FillColor 000000"}));
}

TEST(DibujarElemento, DosSillasQueNoCabenSePisan) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblMesa& mesa = visible(dibujo.MblMesa);
    mesa.MesaDimX = 620;
    mesa.ColocacionSillas = "2UU";  // margin (600 - 800) / 4
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa).at(3), "Box -50 0 350 300 000000");
    EXPECT_EQ(trazosDe(dibujo, Clase::MblMesa).at(4), "Box 250 0 650 300 000000");
}

TEST(DibujarElemento, UnArmarioDeVeinteMilimetrosEsUnaRaya) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblArmario& armario = visible(dibujo.MblArmario);
    armario.DimX = 20;
    EXPECT_EQ(trazosDe(dibujo, Clase::MblArmario).at(2), "Box 0 0 0 580 000000");
    armario.DimX = 1000;
    EXPECT_EQ(trazosDe(dibujo, Clase::MblArmario).at(2), "Box 0 0 980 580 000000");
}

TEST(DibujarElemento, LasUnidadesSueltasDelInodoroNoEscalan) {
    for (const double factor : {0.5, 1.0, 1.5}) {
        Dibujo dibujo;
        dibujo.FactorZoomActual = factor;
        visible(dibujo.MblInodoro).Orientacion = "N";
        Grabadora hoja;
        hoja.Caja(0, 400 * factor + 10, 360 * factor, 550 * factor + 10, negro);
        EXPECT_EQ(trazosDe(dibujo, Clase::MblInodoro).at(0), hoja.trazos().at(0));
    }
}

TEST(DibujarElemento, BañerasCortas) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblBañera& bañera = visible(dibujo.MblBañera);
    bañera.Longitud = 1000;
    EXPECT_EQ(trazosDe(dibujo, Clase::MblBañera).at(1), "Line 350 100 650 100 000000");
    bañera.Longitud = 700;
    EXPECT_EQ(trazosDe(dibujo, Clase::MblBañera).at(1), "Line 350 100 350 100 000000");
}

TEST(DibujarElemento, ElFregaderoMideSusSenosYSuEscurridor) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblFregadero& fregadero = visible(dibujo.MblFregadero);
    fregadero.NumeroSenos = 2;
    EXPECT_EQ(trazosDe(dibujo, Clase::MblFregadero).at(2), "Box 0 0 1330 490 000000");
    fregadero.Escurridor = 0;
    fregadero.Orientacion = "WD";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblFregadero).at(3), "Circle 300 250 175 000000");
    fregadero.Orientacion = "ED";
    EXPECT_EQ(trazosDe(dibujo, Clase::MblFregadero).at(3), "Circle 275 250 175 000000");
}

TEST(DibujarElemento, SinSenosNiAsientosSeDibujaElPrimero) {
    for (const double n : {0.0, -3.0}) {
        Dibujo dibujo;
        dibujo.FactorZoomActual = 1;
        visible(dibujo.MblFregadero).NumeroSenos = n;
        dibujo.MblFregadero.en(1)->Escurridor = 0;
        EXPECT_EQ(trazosDe(dibujo, Clase::MblFregadero).size(), 2U + 1 + 3 + 2);
        visible(dibujo.MblAsiento).NumeroAsientos = n;
        EXPECT_EQ(trazosDe(dibujo, Clase::MblAsiento).size(), 2U + 3 + 1 + 2);
    }
}

TEST(DibujarElemento, UnNumeroDesmedidoTermina) {
    Dibujo dibujo;
    visible(dibujo.MblFregadero).NumeroSenos = 1e15;
    visible(dibujo.MblAsiento).NumeroAsientos = 1e15;
    EXPECT_LT(trazosDe(dibujo, Clase::MblFregadero).size(), 100000U);
    EXPECT_LT(trazosDe(dibujo, Clase::MblAsiento).size(), 100000U);
}

TEST(DibujarElemento, LaParedSinLineaUnoNoSeDibujaYLasTapasSiguenASusCampos) {
    Dibujo dibujo;
    Pared& pared = conLineas(dibujo.Pared);
    pared.Visible2 = false;
    EXPECT_EQ(trazosDe(dibujo, Clase::Pared), (Trazos{linea(1), linea(2), linea(3)}));
    pared.Visible1 = false;
    EXPECT_EQ(trazosDe(dibujo, Clase::Pared), (Trazos{linea(1), linea(3)}));
    pared.lineas[0].Visible = false;
    EXPECT_EQ(trazosDe(dibujo, Clase::Pared), Trazos{});
}

TEST(DibujarElemento, ElColorDeTodasLasParedesEsElDelModelo) {
    Dibujo dibujo;
    conLineas(dibujo.Pared).LineColor = verdeAzulado;
    dibujo.Pared.modelo().LineColor = rojo;
    EXPECT_EQ(trazosDe(dibujo, Clase::Pared).at(0), "Line 100 0 100 70 FF0000");
}

TEST(DibujarElemento, LaVentanaSonOchoLineasYLaPuertaOchoODoce) {
    Dibujo dibujo;
    conLineas(dibujo.Ventana);
    EXPECT_EQ(trazosDe(dibujo, Clase::Ventana).size(), 8U);
    EXPECT_EQ(discontinuas(trazosDe(dibujo, Clase::Ventana)), 0U);
    Puerta& puerta = conLineas(dibujo.Puerta);
    for (const char* lateral : {"Izquierda", "Derecha", "", "doble"}) {
        puerta.OrientacionLateral = lateral;
        EXPECT_EQ(trazosDe(dibujo, Clase::Puerta).size(), 7U + 4U);
        EXPECT_EQ(discontinuas(trazosDe(dibujo, Clase::Puerta)), 1U);
    }
    puerta.OrientacionLateral = "Doble";
    EXPECT_EQ(trazosDe(dibujo, Clase::Puerta).size(), 10U + 2 * 4U);
    EXPECT_EQ(discontinuas(trazosDe(dibujo, Clase::Puerta)), 2U);
}

TEST(DibujarElemento, ElTextoLlevaSuCuerpoADosDecimales) {
    Dibujo dibujo;
    TextoLibre& texto = visible(dibujo.TextoLibre);
    texto.Left = 100.5F;
    texto.Top = 33;
    texto.FontSize = 6;
    texto.ForeColor = rojo;
    texto.Text = "Salón";
    EXPECT_EQ(trazosDe(dibujo, Clase::TextoLibre, escalaDeSalida),
              (Trazos{"FontSize 6.8", "CurrentX 114", "CurrentY 37", "ForeColor FF0000", "Print Salón"}));
    EXPECT_EQ(trazosDe(dibujo, Clase::TextoLibre).at(1), "CurrentX 100");  // half to even
}

TEST(DibujarElemento, UnTextoMayorQueCualquierCuerpoNoSeDibuja) {
    Dibujo dibujo;
    TextoLibre& texto = visible(dibujo.TextoLibre);
    texto.Text = "x";
    for (const double desmedido : {1e39, 1e308}) {
        texto.FontSize = desmedido;
        EXPECT_EQ(trazosDe(dibujo, Clase::TextoLibre), Trazos{}) << desmedido;
    }
}

TEST(DibujarTodo, VaPorClasesYDentroPorIndices) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    conLineas(dibujo.Pared);
    dibujo.Pared.contador = 2;
    for (const int indice : {3, 1}) {
        visible(dibujo.MblArmario, indice).DimX = 20 + indice;
        dibujo.MblArmario.contador = 4;
    }
    visible(dibujo.MblDucha).Orientacion = "60";
    dibujo.MblDucha.contador = 2;
    const Trazos trazos = todo(dibujo);
    ASSERT_EQ(trazos.size(), 5U + 5U + 4U + 4U);
    EXPECT_EQ(trazos[2], "Box 0 0 1 580 000000");
    EXPECT_EQ(trazos[7], "Box 0 0 3 580 000000");
    EXPECT_EQ(trazos[10], "Box 0 0 600 600 000000");
    EXPECT_EQ(trazos[14], linea(1));
}

TEST(DibujarTodo, SoloElTextoYLaEscaleraLleganHastaSuContador) {
    Dibujo dibujo;
    for (const DatosClase& fila : todasLasClases())
        conColeccion(dibujo, fila.clase, [](auto& coleccion) {
            auto& elemento = coleccion.crear(1);
            if constexpr (requires { elemento.lineas; })
                elemento.lineas[0].Visible = true;
            else
                elemento.Visible = true;
            coleccion.contador = 1;
        });
    dibujo.TextoLibre.en(1)->Text = "x";
    const Trazos trazos = todo(dibujo);
    ASSERT_EQ(trazos.size(), 5U + 4U + 7U);
    EXPECT_EQ(trazos[4], "Print x");
    EXPECT_EQ(todo(Dibujo()), Trazos{});
}
