#include "apoyo/muestrario.h"
#include "furnishing/dibujar_elemento.h"
#include "furnishing/recuadro.h"
#include "model/polar.h"
#include "stairs_symbols/catalogo.h"
#include "stairs_symbols/simbolo.h"
#include "surface/grabadora.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <utility>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

using Trazos = std::vector<std::string>;

constexpr MarcoGuion marco{200, 200, 1, 0};

Electrico simbolo(const char* nombre, double Angle = 0) {
    Electrico electrico;
    ponerSimbolo(electrico, nombre);
    electrico.RectX = electrico.RectY = 200;
    electrico.Angle = Angle;
    electrico.Visible = true;
    return electrico;
}

Trazos dibujado(const Electrico& electrico, double factor = 1, double escala = 1) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = factor;
    dibujo.Electrico.crear(1) = electrico;
    return trazosDe(dibujo, Clase::Electrico, escala);
}

Trazos conListas(const Electrico& electrico, const ListasGuion& listas) {
    Grabadora hoja;
    DibujarListas({hoja, 1, 1}, electrico, listas);
    return hoja.trazos();
}

/// The numbers of a recorded stroke.
std::vector<double> numeros(const std::string& trazo) {
    std::istringstream texto(trazo.substr(trazo.find(' ')));
    std::vector<double> todos;
    for (double numero = 0; texto >> numero;)
        todos.push_back(numero);
    return todos;
}

}  // namespace

TEST(Guion, CadaSentenciaLlenaSuLista) {
    const ListasGuion listas = leerGuion(
        "CIRCLE(Redondel, [50|60], 40)\r\nLINE(L1, [10|20], 0, 30)\r\nLINE(L2, [L1_B], 270, 5.5)\r\n"
        "LINE(L3, [L2_A], -90, 1)\r\nARC(A1, [80|5], 80, 180, 0)\r\nRECT(R, [1|2], 3, 4, 5)\r\n"
        "MASKRECT(Alrededor, [0|0], 200, 100, 0)",
        marco);
    ASSERT_EQ(listas.Lines.size(), 3U);
    EXPECT_EQ(listas.Lines[0].A.X, 10);
    EXPECT_EQ(listas.Lines[0].B.X, 40);
    EXPECT_EQ(listas.Lines[1].A.X, 40);
    EXPECT_EQ(listas.Lines[1].A.Y, 20);
    EXPECT_EQ(listas.Lines[1].Length, 5.5);
    EXPECT_EQ(listas.Lines[1].RelativeAngle, 270);
    EXPECT_EQ(listas.Lines[2].A.X, 40);
    ASSERT_EQ(listas.Circles.size(), 1U);
    EXPECT_EQ(listas.Circles[0].C.Y, 60);
    EXPECT_EQ(listas.Circles[0].TheEnd - listas.Circles[0].Start, 360);
    ASSERT_EQ(listas.Arcs.size(), 1U);
    EXPECT_EQ(listas.Arcs[0].Start, 180);
    ASSERT_EQ(listas.Rects.size(), 1U);
    EXPECT_EQ(listas.Rects[0].Wide, 4);
    EXPECT_EQ(listas.Rects[0].RelativeAngle, 5);
    ASSERT_TRUE(listas.mascara);
    EXPECT_EQ(listas.mascara->Length, 200);
    EXPECT_TRUE(listas.Ellipses.empty());
}

TEST(Guion, UnaLineaMalFormadaSeOmiteYElRestoSeDibuja) {
    for (const char* mala : {"",
                             "LINE",
                             "LINE(",
                             "LINE()",
                             "LINE(L9)",
                             "line(L9, [0|0], 0, 1)",
                             "LINE(L9, [0|0], 0)",
                             "LINE(L9, [0|0], 0, 1, 2)",
                             "LINE(L9, [0|0], 0, 1",
                             "LINE(L9, 0|0, 0, 1)",
                             "LINE(L9, [0|], 0, 1)",
                             "LINE(L9, [0], 0, 1)",
                             "LINE(L9, [L8_B], 0, 1)",
                             "LINE(L9, [L9_B], 0, 1)",
                             "LINE(L9, [L1_C], 0, 1)",
                             "LINE(L9, [L1], 0, 1)",
                             "LINE(L9, [0|0], x, 1)",
                             "LINE(L9, [0|0], 1x, 1)",
                             "LINE(L9, [0|0], inf, 1)",
                             "LINE(, [0|0], 0, 1)",
                             "CIRCLE(C, [0|0])",
                             "POLYGON(P, [0|0], 1)",
                             "LINE(L9, [0|0], 1e999, 1)",
                             "LINE(L9, [0|0], 0, 1, 2, 3, 4)",
                             ")(",
                             "((((",
                             "[[|]]"}) {
        const ListasGuion listas =
            leerGuion("LINE(L1, [1|1], 0, 1)\r\n" + std::string(mala) + "\r\nCIRCLE(C, [L1_B], 5)", marco);
        EXPECT_EQ(listas.Lines.size(), 1U) << mala;
        EXPECT_EQ(listas.Circles.size(), 1U) << mala;
    }
}

TEST(Guion, ElCatalogoSeLeeEnteroYUnNombreDesconocidoNoTieneGuion) {
    EXPECT_EQ(DrawObjects("Interruptor"),
              "CIRCLE(Redondel, [50|50], 50)\r\nLINE(L1, [85|85], 315, 120)\r\nLINE(L2, [L1_B], 45, 70)\r\n"
              "MASKRECT(Alrededor, [0|0], 200, 200, 0)");
    EXPECT_EQ(DrawObjects("Pulsador"), "CIRCLE(Exterior, [75|75], 75)\r\nCIRCLE(Interior, [75|75], 30)");
    for (const char* nombre : {"", "interruptor", "Enchufe ", "Lámpara"})
        EXPECT_EQ(DrawObjects(nombre), "") << nombre;
    const auto piezas = std::to_array<std::pair<const char*, std::size_t>>({{"Punto de Luz", 5},
                                                                            {"Interruptor", 3},
                                                                            {"Conmutador", 5},
                                                                            {"Enchufe", 2},
                                                                            {"Enchufe de Fuerza", 4},
                                                                            {"Pulsador", 2},
                                                                            {"Señal TV", 5},
                                                                            {"Enchufe Trifásico", 5},
                                                                            {"Señal Teléfono", 3},
                                                                            {"Cuadro Eléctrico", 9}});
    for (const auto& [nombre, trazos] : piezas)
        EXPECT_EQ(dibujado(simbolo(nombre)).size(), trazos) << nombre;
}

TEST(Simbolo, GiraAlrededorDelCentroDeSuMarco) {
    for (const double angulo : {0.0, 30.0, 90.0, 137.0, 200.0, 359.0, 12.7})
        for (const double factor : {0.5, 1.0, 1.5}) {
            const ListasGuion listas =
                leerGuion("CIRCLE(C, [140|70], 5)\nCIRCLE(M, [80|50], 5)", {160, 100, factor, angulo});
            const double giro = angulo * 3.14159265358979 / 180;
            // The vector (60, 20) from the centre, turned against the clock while y grows downwards.
            EXPECT_NEAR(listas.Circles[0].C.X, (80 + 60 * std::cos(giro) + 20 * std::sin(giro)) * factor,
                        1e-9);
            EXPECT_NEAR(listas.Circles[0].C.Y, (50 - 60 * std::sin(giro) + 20 * std::cos(giro)) * factor,
                        1e-9);
            EXPECT_NEAR(listas.Circles[1].C.X, 80 * factor, 1e-9);
            EXPECT_NEAR(listas.Circles[1].C.Y, 50 * factor, 1e-9);
        }
}

TEST(Simbolo, LosTrazosUnidosSiguenUnidosACualquierAngulo) {
    for (const char* nombre : {"Interruptor", "Conmutador"})
        for (int angulo = 0; angulo < 360; ++angulo)
            for (const double factor : {0.5, 1.0, 1.5}) {
                const Trazos trazos = dibujado(simbolo(nombre, angulo), factor);
                const auto uno = numeros(trazos.at(0));
                const auto dos = numeros(trazos.at(1));
                ASSERT_NEAR(uno[2], dos[0], 1e-3) << nombre << angulo;
                ASSERT_NEAR(uno[3], dos[1], 1e-3) << nombre << angulo;
            }
}

TEST(Simbolo, ElTrazoCaeDondeSuAnclaDice) {
    Electrico electrico = simbolo("Interruptor");
    electrico.Left = 1000;
    electrico.Top = 500;
    const Trazos trazos = dibujado(electrico);
    const float x = PolarX(1085, 315, 120);
    const float y = PolarY(585, 315, 120);
    Grabadora hoja;
    hoja.Line(1085, 585, x, y, colorTextoVentana);
    hoja.Circle({1050, 550, 50, Arco{}}, colorTextoVentana);
    EXPECT_EQ(trazos.at(0), hoja.trazos().at(0));
    EXPECT_EQ(trazos.at(2), hoja.trazos().at(1));
}

TEST(Simbolo, UnCirculoSigueEnteroConFraccionesDeGrado) {
    for (const double angulo : {0.0, 30.4, 30.6, 0.5, 359.9, 360.0}) {
        const auto circulo = numeros(dibujado(simbolo("Pulsador", angulo)).at(0));
        EXPECT_EQ(circulo.at(3), circulo.at(4)) << angulo;
    }
}

TEST(Simbolo, LasLineasSumanAntesDeEscalarYLosDemasDespues) {
    Electrico electrico = simbolo("");
    electrico.Left = 100.4F;
    electrico.Top = 0;
    electrico.Guion = "LINE(L, [10|0], 0, 20)\r\nCIRCLE(C, [10|0], 5)";
    const double escala = escalaDeSalida;
    Grabadora hoja;
    const auto desde = static_cast<float>((10 + static_cast<double>(100.4F)) * escala);
    hoja.Line(desde, 0, static_cast<float>(static_cast<double>(desde) + std::nearbyint(20 * escala)), 0,
              colorTextoVentana);
    hoja.Circle({std::nearbyint(static_cast<double>(100.4F) * escala) + 10 * escala, 0, 5 * escala, Arco{}},
                colorTextoVentana);
    EXPECT_EQ(dibujado(electrico, 1, escala), hoja.trazos());
}

TEST(Simbolo, UnaLineaSinLongitudUneSusPuntos) {
    ListasGuion listas;
    listas.Lines.push_back({{1, 2}, {30, 40}, 0, 77});
    EXPECT_EQ(conListas(simbolo("", 45), listas), Trazos{"Line 1 2 30 40 000000"});
}

TEST(Simbolo, SinListasNoSeDibujaNadaYElMarcoNuncaSeTraza) {
    EXPECT_EQ(conListas(simbolo("Pulsador"), {}), Trazos{});
    Electrico electrico = simbolo("");
    electrico.Guion = "MASKRECT(Alrededor, [0|0], 200, 200, 0)";
    EXPECT_EQ(dibujado(electrico), Trazos{});
}

TEST(Simbolo, LasListasVanEnSuOrden) {
    ListasGuion listas;
    listas.Ellipses.push_back({{0, 0}, 100, 40, 60, 120, 0});
    listas.Arcs.push_back({{5, 5}, 3, 0, 90});
    listas.Circles.push_back({{9, 9}, 4, 0, 360});
    listas.Rects.push_back({{1, 1}, 10, 20, 0});
    listas.Lines.push_back({{0, 0}, {1, 1}, 7, 0});
    const Trazos trazos = conListas(simbolo(""), listas);
    ASSERT_EQ(trazos.size(), 1U + 4 + 1 + 1 + 4);
    EXPECT_EQ(trazos[0], "Line 0 0 7 0 000000");
    EXPECT_EQ(trazos[1], "Line 1 1 11 1 000000");
    EXPECT_EQ(trazos[5], "Arc 9 9 4 0 0 000000");
    EXPECT_EQ(trazos[6].substr(0, 9), "Arc 5 5 3");
    EXPECT_EQ(numeros(trazos[7]).at(2), 20);
}

TEST(Simbolo, SuRecuadroEsSuMarco) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1.5;
    Electrico& electrico = dibujo.Electrico.crear(1) = simbolo("Interruptor", 45);
    electrico.Left = 10;
    electrico.Top = 20;
    EXPECT_EQ(recuadroDe(dibujo, Clase::Electrico, 1), (Recuadro{10, 20, 300, 300}));
}
