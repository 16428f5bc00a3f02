#include "apoyo/muestrario.h"
#include "furnishing/recuadro.h"
#include "surface/medidora.h"

#include <gtest/gtest.h>
#include <numbers>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

constexpr double pi = std::numbers::pi;

Recuadro medido(const Curva& curva) {
    Medidora medidora;
    medidora.Circle(curva, negro);
    return medidora.extension().value_or(Recuadro{});
}

void esperarCerca(const Recuadro& a, const Recuadro& b) {
    EXPECT_NEAR(a.Left, b.Left, 1e-6);
    EXPECT_NEAR(a.Top, b.Top, 1e-6);
    EXPECT_NEAR(a.Width, b.Width, 1e-6);
    EXPECT_NEAR(a.Height, b.Height, 1e-6);
}

}  // namespace

TEST(Medidora, UnArcoLlegaADondeLleganSusExtremosYLosEjesPorDondePasa) {
    esperarCerca(medido({0, 0, 10}), {-10, -10, 20, 20});
    esperarCerca(medido({0, 0, 10, Arco{0, pi}}), {-10, -10, 20, 10});
    esperarCerca(medido({0, 0, 10, Arco{pi, 0}}), {-10, 0, 20, 10});
    esperarCerca(medido({0, 0, 10, Arco{3 * pi / 2, pi / 2}}), {0, -10, 10, 20});
    esperarCerca(medido({0, 0, 10, Arco{0, pi / 2}}), {0, -10, 10, 10});
    esperarCerca(medido({0, 0, 10, Arco{pi / 6, pi / 6}}), {-10, -10, 20, 20});
    esperarCerca(medido({0, 0, 10, {}, 0.5}), {-10, -5, 20, 10});
    esperarCerca(medido({0, 0, 10, {}, 2}), {-5, -10, 10, 20});
}

TEST(Recuadros, SonLosDeLaFiguraSinUnidadesSueltas) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1.5;
    MblInodoro& inodoro = dibujo.MblInodoro.crear(1);
    inodoro.Visible = true;
    inodoro.Left = 100;
    inodoro.Orientacion = "N";
    esperarCerca(recuadroDe(dibujo, Clase::MblInodoro, 1).value(), {100, 0, 540, 825});
    esperarCerca(extensionDe(dibujo, Clase::MblInodoro, 1).value(), {100, 0, 540, 835});
    inodoro.Orientacion = "W";
    esperarCerca(recuadroDe(dibujo, Clase::MblInodoro, 1).value(), {100, 0, 825, 540});
}

TEST(Recuadros, LaMesaCreceConSusSillas) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    MblMesa& mesa = dibujo.MblMesa.crear(1);
    mesa.Visible = true;
    EXPECT_EQ(recuadroDe(dibujo, Clase::MblMesa, 1), (Recuadro{0, 0, 1580, 1580}));
    mesa.ColocacionSillas = "1R";
    EXPECT_EQ(recuadroDe(dibujo, Clase::MblMesa, 1), (Recuadro{0, 0, 1280, 980}));
    mesa.ColocacionSillas = "?";
    EXPECT_EQ(recuadroDe(dibujo, Clase::MblMesa, 1), std::nullopt);
}

TEST(Recuadros, UnTextoTieneElDeSuCampoYCabeEnSuExtension) {
    Dibujo dibujo;
    TextoLibre& texto = dibujo.TextoLibre.crear(1);
    texto.Left = 10;
    texto.Top = 20;
    texto.Width = 300;
    texto.Height = 40;
    texto.Visible = true;
    texto.Text = "Cocina";
    EXPECT_EQ(recuadroDe(dibujo, Clase::TextoLibre, 1), (Recuadro{10, 20, 300, 40}));
    EXPECT_EQ(extensionDe(dibujo, Clase::TextoLibre, 1), (Recuadro{10, 20, 720, 180}));
}

TEST(Recuadros, LoQueNoEstaNoTiene) {
    Dibujo dibujo;
    for (const DatosClase& fila : todasLasClases())
        for (const int indice : {-1, 0, 1, 9}) {
            EXPECT_EQ(recuadroDe(dibujo, fila.clase, indice), std::nullopt);
            EXPECT_EQ(extensionDe(dibujo, fila.clase, indice), std::nullopt);
        }
}

TEST(Recuadros, LasMuestrasEmpiezanEnSuLugar) {
    for (const Muestra& muestra : muestrario()) {
        if (muestra.clase >= Clase::Escalera || muestra.clase == Clase::MblLavabo) continue;
        const auto recuadro = recuadroDe(dibujoDe(muestra, 1), muestra.clase, 1);
        ASSERT_TRUE(recuadro) << muestra.titulo;
        EXPECT_NEAR(recuadro->Left, 1235, 1.5) << datos(muestra.clase).nombre << muestra.titulo;
        EXPECT_NEAR(recuadro->Top, 790, 1.5) << datos(muestra.clase).nombre << muestra.titulo;
    }
}
