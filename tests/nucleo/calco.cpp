#include "surface/calco.h"

#include "apoyo/muestrario.h"
#include "furnishing/calcar.h"
#include "furnishing/dibujar_elemento.h"
#include "stairs_symbols/catalogo.h"
#include "surface/grabadora.h"

#include <gtest/gtest.h>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr Color verde = 0x00FF00, rosa = 0xC0C0FF;

Color igual(Color color) {
    return color;
}

/// What is recorded of a picture; without the steps of the fill state, which it orders in its own way.
std::vector<std::string> trazosDe(const Calco& calco, const Calco::Tinta& tinta = igual) {
    Grabadora grabadora;
    calco.dibujar(grabadora, tinta);
    std::vector<std::string> trazos = grabadora.trazos();
    std::erase_if(trazos, [](const std::string& trazo) { return trazo.starts_with("Fill"); });
    return trazos;
}

std::vector<std::string> sinRelleno(std::vector<std::string> trazos) {
    std::erase_if(trazos, [](const std::string& trazo) { return trazo.starts_with("Fill"); });
    return trazos;
}

}  // namespace

TEST(Calco, RepiteLoDibujadoConSusRellenos) {
    Calcadora calcadora;
    calcadora.Line(1, 2, 3, 4, verde);
    calcadora.FillStyle(Relleno::solido);
    calcadora.FillColor(rosa);
    calcadora.Caja(0, 0, 10, 5, negro);
    calcadora.FillStyle(Relleno::transparente);
    calcadora.FillColor(negro);
    calcadora.Circle({.x = 5, .y = 6, .radio = 2, .aspecto = 0.5}, verde);
    calcadora.Print("nada");
    Grabadora grabadora;
    calcadora.calco().dibujar(grabadora, igual);
    EXPECT_EQ(grabadora.trazos(),
              (std::vector<std::string>{"FillStyle 1", "Line 1 2 3 4 00FF00", "FillStyle 0",
                                        "FillColor FFC0C0", "Box 0 0 10 5 000000", "FillStyle 1",
                                        "Ellipse 5 6 2 0.5 00FF00", "FillStyle 1", "FillColor 000000"}));
}

TEST(Calco, DeUnTextoNoQuedaNada) {
    Dibujo dibujo;
    TextoLibre& texto = dibujo.TextoLibre.crear(1);
    texto.Text = "Salón";
    texto.Visible = true;
    Calcadora calcadora;
    DibujarElemento({.superficie = calcadora}, dibujo, Clase::TextoLibre, 1);
    EXPECT_EQ(calcadora.calco(), Calco{});
}

TEST(Calco, LaTintaCambiaTrazosYFondos) {
    Calcadora calcadora;
    calcadora.FillStyle(Relleno::solido);
    calcadora.FillColor(rosa);
    calcadora.Caja(0, 0, 10, 5, verde);
    Grabadora grabadora;
    calcadora.calco().dibujar(grabadora, [](Color color) { return color == rosa ? blanco : negro; });
    EXPECT_EQ(grabadora.trazos()[1], "FillColor FFFFFF");
    EXPECT_EQ(grabadora.trazos()[2], "Box 0 0 10 5 000000");
}

TEST(Calco, SuExtensionEsLaDeSusTrazosYSinTrazosNoTiene) {
    Calcadora calcadora;
    EXPECT_FALSE(calcadora.calco().extension());
    calcadora.Line(10, 20, 30, 25, negro);
    calcadora.Circle({.x = 0, .y = 20, .radio = 5}, negro);
    EXPECT_EQ(calcadora.calco().extension(), (Recuadro{-5, 15, 35, 10}));
}

TEST(Calco, DosSonIgualesSiLoSonSusTrazos) {
    Dibujo dibujo;
    const Calco antes = calcar(dibujo, Clase::MblAsiento, 0);
    EXPECT_EQ(calcar(dibujo, Clase::MblAsiento, 0), antes);
    dibujo.MblAsiento.modelo().NumeroAsientos = 2;
    EXPECT_NE(calcar(dibujo, Clase::MblAsiento, 0), antes);
    dibujo.MblAsiento.modelo() = MblAsiento{};
    dibujo.MblAsiento.modelo().BackColor = verde;
    EXPECT_NE(calcar(dibujo, Clase::MblAsiento, 0), antes);
}

TEST(Calcar, CadaElementoSaleComoLoDibujaLaHojaEnElPrimerPaso) {
    for (const Muestra& muestra : muestrario()) {
        if (muestra.clase == Clase::TextoLibre) continue;
        Dibujo dibujo;
        muestra.poner(dibujo);
        const Calco calco = calcar(dibujo, muestra.clase, 1);
        Dibujo enLaEsquina;
        muestra.poner(enLaEsquina);
        conColeccion(enLaEsquina, muestra.clase, [](auto& coleccion) {
            if constexpr (requires { coleccion.modelo().Visible; }) {
                coleccion.en(1)->Left = 0;
                coleccion.en(1)->Top = 0;
                coleccion.en(1)->Visible = true;
            }
        });
        EXPECT_EQ(trazosDe(calco), sinRelleno(apoyo::trazosDe(enLaEsquina, muestra.clase))) << muestra.titulo;
        EXPECT_FALSE(calco.trazos.empty()) << muestra.titulo;
    }
}

TEST(Calcar, NiElLugarNiElZoomNiLaVisibilidadCuentan) {
    Dibujo dibujo;
    MblCama90& cama = dibujo.MblCama90.crear(1);
    const Calco antes = calcar(dibujo, Clase::MblCama90, 1);
    cama.Left = 5000.5F;
    cama.Top = -3;
    cama.Visible = true;
    dibujo.FactorZoomActual = 1.5;
    EXPECT_EQ(calcar(dibujo, Clase::MblCama90, 1), antes);
}

TEST(Calcar, EnOtraDisposicionYElElementoQuedaComoEstaba) {
    Dibujo dibujo;
    dibujo.MblLavabo.crear(1);
    dibujo.MblMesa.crear(1);
    const Calco este = calcar(dibujo, Clase::MblLavabo, 1, "E");
    const Calco sinSillas = calcar(dibujo, Clase::MblMesa, 1, "0");
    EXPECT_EQ(dibujo.MblLavabo.en(1)->Orientacion, "S");
    EXPECT_EQ(dibujo.MblMesa.en(1)->ColocacionSillas, "4RLUD");
    dibujo.MblLavabo.en(1)->Orientacion = "E";
    EXPECT_EQ(calcar(dibujo, Clase::MblLavabo, 1), este);
    EXPECT_EQ(sinSillas.trazos.size(), 1U);
}

TEST(Calcar, DeLoQueNoExisteNoHayTrazos) {
    Dibujo dibujo;
    EXPECT_TRUE(calcar(dibujo, Clase::MblSilla, 1).trazos.empty());
    EXPECT_TRUE(calcar(dibujo, Clase::MblSilla, 1, "Sur").trazos.empty());
    EXPECT_TRUE(calcar(dibujo, Clase::Pared, 0).trazos.empty());
    EXPECT_TRUE(calcarSimbolo(dibujo, "Ninguno").trazos.empty());
}

TEST(Calcar, UnSimboloSaleEnElColorDelModelo) {
    Dibujo dibujo;
    dibujo.Electrico.modelo().LineColor = verde;
    const Calco enchufe = calcarSimbolo(dibujo, "Enchufe");
    ASSERT_EQ(enchufe.trazos.size(), 2U);
    EXPECT_EQ(enchufe.trazos[0].color, verde);
    EXPECT_EQ(dibujo.Electrico.modelo().ObjectType, "Punto de Luz");
}
