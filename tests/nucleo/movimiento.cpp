#include "apoyo/banco.h"
#include "drawing/arrastre.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

/// A thing at (100, 200) that is dragged by samples.
struct Cosa {
    Arrastre arrastre;
    float left = 100, top = 200;

    void paso(float x, float y) { Movimiento(arrastre, left, top, x, y); }
};

}  // namespace

TEST(Movimiento, ConLasAnclasACeroLaCosaSigueAlPuntero) {
    Cosa cosa;
    agarrar(cosa.arrastre, 10, 20);
    for (const Punto muestra : {Punto{15, 18}, {10, 20}, {-40, 70}, {11, 21}}) {
        const float left = cosa.left, top = cosa.top;
        cosa.paso(muestra.x, muestra.y);
        EXPECT_EQ(cosa.left, left + muestra.x - 10);
        EXPECT_EQ(cosa.top, top + muestra.y - 20);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaAX, 0);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaAY, 0);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaBX, 0);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaBY, 0);
    }
}

TEST(Movimiento, LasMuestrasYElAgarreSeRedondeanLaMitadAlPar) {
    Cosa cosa;
    agarrar(cosa.arrastre, 0.5F, 1.5F);
    EXPECT_EQ(cosa.arrastre.AgarreX, 0);
    EXPECT_EQ(cosa.arrastre.AgarreY, 2);
    cosa.paso(2.5F, 3.5F);
    EXPECT_EQ(cosa.arrastre.ArrastreDX, 2);
    EXPECT_EQ(cosa.arrastre.ArrastreDY, 4);
    EXPECT_EQ(cosa.left, 102.0F);
    EXPECT_EQ(cosa.top, 202.0F);
}

TEST(Movimiento, LaPrimeraMuestraTrasLaReglaAbreYDejaUnResto) {
    Cosa cosa;
    agarrar(cosa.arrastre, 10, 20);
    cosa.arrastre.ArrastrePrimero = cosa.arrastre.ArrastreAlterna = true;
    cosa.paso(30, 50);
    EXPECT_EQ(cosa.arrastre.ArrastreOrigenX, 30);
    EXPECT_EQ(cosa.arrastre.ArrastreOrigenY, 50);
    EXPECT_EQ(cosa.arrastre.ArrastreDX, 0);
    EXPECT_EQ(cosa.arrastre.ArrastreAnclaAX, 30);
    EXPECT_EQ(cosa.arrastre.ArrastreAnclaAY, 50);
    EXPECT_FALSE(cosa.arrastre.ArrastrePrimero);
    EXPECT_FALSE(cosa.arrastre.ArrastreAlterna);
    EXPECT_EQ(cosa.left, 90.0F);
    EXPECT_EQ(cosa.top, 180.0F);
}

TEST(Movimiento, DesdeEntoncesCadaPasoLlevaElResto) {
    Cosa cosa;
    agarrar(cosa.arrastre, 10, 20);
    cosa.arrastre.ArrastrePrimero = cosa.arrastre.ArrastreAlterna = true;
    cosa.paso(30, 50);
    bool alterna = true;
    for (const Punto muestra : {Punto{33, 44}, {10, 20}, {-5, 300}, {0, 0}}) {
        const float left = cosa.left, top = cosa.top;
        cosa.paso(muestra.x, muestra.y);
        EXPECT_EQ(cosa.left, left + muestra.x - 30 - 10);
        EXPECT_EQ(cosa.top, top + muestra.y - 50 - 20);
        EXPECT_EQ(cosa.arrastre.ArrastreAlterna, alterna);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaAX, 30);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaBX, 30);
        EXPECT_EQ(cosa.arrastre.ArrastreAnclaBY, 50);
        alterna = !alterna;
    }
}

TEST(Movimiento, ArrastrarLaReglaCorreLasParedesQueSeArrastrenDespues) {
    Banco banco;
    const int muro = banco.ponMuro();
    const Punto agarre = banco.inicial(muro);
    banco.bosquel.pulsarRegla(40, 60);
    banco.bosquel.moverRegla(true, 50, 90);
    banco.bosquel.soltarRegla();
    EXPECT_TRUE(banco.dibujo().arrastre.ArrastrePrimero);
    EXPECT_TRUE(banco.dibujo().arrastre.ArrastreAlterna);

    banco.mueve(agarre);
    banco.pulsa(agarre);
    const float left = banco.pared(muro).ParedPick.Left;
    const auto resto = banco.dibujo().arrastre.AgarreX;
    banco.mueve(agarre);  // opens: the grip goes back by the whole grab point
    EXPECT_EQ(banco.pared(muro).ParedPick.Left, left - static_cast<float>(resto));
    const std::int32_t c = banco.dibujo().arrastre.ArrastreAnclaAX;
    EXPECT_EQ(c, resto);
    const float antes = banco.pared(muro).ParedPick.Left;
    banco.mueve({agarre.x + 300, agarre.y});
    const float muestra = agarre.x + 300 - antes;
    EXPECT_EQ(banco.pared(muro).ParedPick.Left, antes + muestra - static_cast<float>(c + resto));
}
