#include "model/numeros.h"
#include "walls/pared.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace bosquel;

namespace {

Pared& poner(Dibujo& dibujo, float x, float y, int angulo) {
    Pared& pared = dibujo.Pared.crear(1);
    dibujo.Pared.contador = 2;
    pared.InicialX = x;
    pared.InicialY = y;
    pared.Angulo = static_cast<std::int16_t>(angulo);
    return pared;
}

Segmento linea(double x1, double y1, double x2, double y2) {
    return {static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2), static_cast<float>(y2),
            true};
}

double enRadianes(int grados) {
    return grados * 3.14159265358979 / 180.0;
}

float pasoX(float x, int grados, double largo) {
    return static_cast<float>(grados == 0 ? x + largo : x + largo * std::cos(enRadianes(grados)));
}

float pasoY(float y, int grados, double largo) {
    return static_cast<float>(grados == 0 ? y : y + largo * std::sin(enRadianes(-grados)));
}

std::array<Segmento, 4> rectangulo(float x, float y, int angulo, double largo, double ancho) {
    const float x2 = pasoX(x, angulo, largo);
    const float y2 = pasoY(y, angulo, largo);
    const int absoluto = angulo < 0 ? -angulo : angulo;
    const float x3 = pasoX(x, 90 - absoluto, ancho);
    const float y3 = pasoY(y, angulo >= 0 ? -90 - absoluto : 90 - absoluto, ancho);
    const float x4 = pasoX(x3, angulo, largo);
    const float y4 = pasoY(y3, angulo, largo);
    return {linea(x, y, x2, y2), linea(x, y, x3, y3), linea(x3, y3, x4, y4), linea(x2, y2, x4, y4)};
}

float esquina(double desde, double hasta, double lado) {
    return static_cast<float>((hasta - desde) / 2 + desde - lado / 2);
}

void esperarPinza(const Pinza& pinza, const Segmento& entre, double factor) {
    const double lado = 180.0 * factor;
    EXPECT_EQ(pinza.Lado, static_cast<float>(lado));
    EXPECT_EQ(pinza.Left, esquina(entre.X1, entre.X2, lado));
    EXPECT_EQ(pinza.Top, esquina(entre.Y1, entre.Y2, lado));
    EXPECT_TRUE(pinza.Visible);
}

}  // namespace

TEST(LineasPared, CadaAnguloDaSuRectanguloEnCadaZoomYTipo) {
    std::mt19937 azar(21);
    std::uniform_real_distribution<float> lugar(0, 20000);
    std::uniform_real_distribution<double> medida(1, 9000);
    for (int angulo = -90; angulo <= 90; ++angulo)
        for (const double factor : {0.5, 1.0, 1.5})
            for (const char* tipo : {"Muro", "Tabique", "Pilar"}) {
                Dibujo dibujo;
                dibujo.FactorZoomActual = factor;
                Pared& pared = poner(dibujo, lugar(azar), lugar(azar), angulo);
                pared.Tipo = tipo;
                pared.Longitud = medida(azar);
                pared.AnchoMuro = medida(azar);
                pared.AnchoTabique = medida(azar);
                DibujaPared(dibujo, 1, false);
                const double ancho = pared.Tipo == "Muro" ? pared.AnchoMuro : pared.AnchoTabique;
                const auto esperadas = rectangulo(pared.InicialX, pared.InicialY, angulo,
                                                  pared.Longitud * factor, ancho * factor);
                EXPECT_EQ(pared.lineas, esperadas) << angulo << ' ' << factor << ' ' << tipo;
                esperarPinza(pared.ParedPick, esperadas[1], factor);
                esperarPinza(pared.ParedPickBIS, esperadas[3], factor);
                const Segmento diagonal =
                    linea(esperadas[0].X1, esperadas[0].Y1, esperadas[2].X2, esperadas[2].Y2);
                esperarPinza(pared.ParedPickCentro, diagonal, factor);
            }
}

TEST(LineasPared, ACeroGradosLaLineaTresQuedaDebajo) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = 1;
    const Pared& pared = poner(dibujo, 1000, 1000, 0);
    DibujaPared(dibujo, 1, false);
    EXPECT_EQ(pared.lineas[0], linea(1000, 1000, 5000, 1000));
    EXPECT_EQ(pared.lineas[2], linea(1000, 1100, 5000, 1100));
    EXPECT_EQ(pared.ParedPick.Left + pared.ParedPick.Lado / 2, 1000.0F);
    EXPECT_EQ(pared.ParedPick.Top + pared.ParedPick.Lado / 2, 1050.0F);
}

TEST(LineasPared, ElAnchoVaSiempreHaciaLaDerecha) {
    for (int angulo = -90; angulo <= 90; ++angulo) {
        if (angulo == 0) continue;
        Dibujo dibujo;
        const Pared& pared = poner(dibujo, 1000, 1000, angulo);
        DibujaPared(dibujo, 1, false);
        EXPECT_GT(pared.lineas[2].X1, pared.lineas[0].X1) << angulo;
        EXPECT_LE(pared.lineas[0].X1, pared.lineas[0].X2) << angulo;
        if (angulo == 90 || angulo == -90) continue;
        EXPECT_EQ(pared.lineas[2].Y1 > pared.lineas[0].Y1, angulo > 0) << angulo;
    }
}

TEST(LineasPared, NoventaSubeYMenosNoventaBaja) {
    for (const int angulo : {90, -90}) {
        Dibujo dibujo;
        dibujo.FactorZoomActual = 1;
        const Pared& pared = poner(dibujo, 1000, 5000, angulo);
        DibujaPared(dibujo, 1, false);
        const float fin = angulo > 0 ? 1000.0F : 9000.0F;
        EXPECT_EQ(pared.lineas[0], linea(1000, 5000, 1000, fin));
        EXPECT_EQ(pared.lineas[2], linea(1100, 5000, 1100, fin));
    }
}

TEST(LineasPared, UnAnguloDeCientoVeinteSeDibujaTalCual) {
    Dibujo dibujo;
    const Pared& pared = poner(dibujo, 5000, 5000, 120);
    DibujaPared(dibujo, 1, false);
    EXPECT_EQ(pared.lineas, rectangulo(5000, 5000, 120, 2000, 50));
    EXPECT_LT(pared.lineas[0].X2, pared.lineas[0].X1);
}

TEST(LineasPared, DibujarEnsenaLasDosTapasYNoTocaVisible1NiVisible2) {
    Dibujo dibujo;
    Pared& pared = poner(dibujo, 1000, 1000, 30);
    pared.Visible1 = false;
    pared.Visible2 = false;
    DibujaPared(dibujo, 1, false);
    for (const Segmento& lado : pared.lineas)
        EXPECT_TRUE(lado.Visible);
    EXPECT_FALSE(pared.Visible1);
    EXPECT_FALSE(pared.Visible2);
    ReconstruyePared(dibujo, 1);
    EXPECT_FALSE(pared.lineas[1].Visible);
    EXPECT_FALSE(pared.lineas[3].Visible);
    RedibujaPared(dibujo, 1, false);
    EXPECT_TRUE(pared.lineas[1].Visible);
    EXPECT_TRUE(pared.lineas[3].Visible);
}

TEST(LineasPared, ReconstruirConservaLosLadosLargosYRehaceLoDemas) {
    Dibujo dibujo;
    Pared& pared = poner(dibujo, 1000, 1000, 0);
    DibujaPared(dibujo, 1, false);
    pared.Visible2 = false;
    pared.lineas[0] = linea(100, 200, 900, 200);
    pared.lineas[2] = linea(150, 300, 700, 300);
    ReconstruyePared(dibujo, 1);
    EXPECT_EQ(pared.lineas[0], linea(100, 200, 900, 200));
    EXPECT_EQ(pared.lineas[2], linea(150, 300, 700, 300));
    EXPECT_EQ(pared.lineas[1], linea(100, 200, 150, 300));
    EXPECT_EQ(pared.lineas[3], (Segmento{900, 200, 700, 300, false}));
    esperarPinza(pared.ParedPick, pared.lineas[1], 0.5);
    esperarPinza(pared.ParedPickBIS, pared.lineas[3], 0.5);
    esperarPinza(pared.ParedPickCentro, linea(100, 200, 700, 300), 0.5);
    EXPECT_EQ(pared.InicialX, 1000.0F);
    GuardaLineasPared(dibujo, 1);
    EXPECT_EQ(pared.InicialX, 100.0F);
    EXPECT_EQ(pared.InicialY, 200.0F);
    EXPECT_EQ(pared.Linea1X2, 900.0F);
    EXPECT_EQ(pared.Linea3X1, 150.0F);
    EXPECT_EQ(pared.Linea3Y2, 300.0F);
}

TEST(LineasPared, DibujarHaceActualLaParedYSoloLaSeleccionadaEsRoja) {
    Dibujo dibujo;
    const Pared& pared = poner(dibujo, 1000, 1000, 0);
    for (const bool seleccionada : {false, true}) {
        dibujo.ElementoActual.reset();
        dibujo.IndiceActual = 0;
        DibujaPared(dibujo, 1, seleccionada);
        EXPECT_EQ(dibujo.ElementoActual, Clase::Pared);
        EXPECT_EQ(dibujo.IndiceActual, 1);
        for (const Pinza* pinza : pared.pinzas())
            EXPECT_EQ(pinza->BackColor, seleccionada ? rojo : blanco);
    }
    DeseleccionaPared(dibujo, 1);
    for (const Pinza* pinza : pared.pinzas())
        EXPECT_EQ(pinza->BackColor, blanco);
}

TEST(LineasPared, UnaParedQueNoExisteNoHaceNada) {
    Dibujo dibujo;
    poner(dibujo, 1000, 1000, 0);
    for (const int indice : {-1, 2, 32767}) {
        RedibujaPared(dibujo, indice, true);
        ReconstruyePared(dibujo, indice);
        GuardaLineasPared(dibujo, indice);
        DeseleccionaPared(dibujo, indice);
        ActualizarPuntoInicialPared(dibujo, indice);
    }
    EXPECT_EQ(dibujo.ElementoActual, std::nullopt);
    EXPECT_EQ(dibujo.IndiceActual, 0);
}

TEST(LineasPared, ElPuntoInicialSeActualizaSinTocarOtraCosa) {
    Dibujo dibujo;
    Pared& pared = poner(dibujo, 1000, 1000, 0);
    DibujaPared(dibujo, 1, false);
    pared.lineas[0] = linea(7, 8, 9, 10);
    ActualizarPuntoInicialPared(dibujo, 1);
    EXPECT_EQ(pared.InicialX, 7.0F);
    EXPECT_EQ(pared.InicialY, 8.0F);
    EXPECT_EQ(pared.Linea1X2, 3000.0F);
    EXPECT_EQ(pared.lineas[2].Y1, 1050.0F);
}
