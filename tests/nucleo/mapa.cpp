#include "drawing/mapa.h"

#include "furnishing/recuadro.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace bosquel {
namespace {

using Lista = std::vector<Referencia>;

Lista enOrden(Lista lista) {
    std::sort(lista.begin(), lista.end(), [](const Referencia& a, const Referencia& b) {
        return a.clase != b.clase ? a.clase < b.clase : a.indice < b.indice;
    });
    return lista;
}

Lista enPunto(const Mapa& mapa, double x, double y) {
    Lista lista;
    mapa.enPunto(x, y, [&](Referencia cual) { lista.push_back(cual); });
    return enOrden(lista);
}

MblSilla& poner(Dibujo& dibujo, int indice, float left, float top) {
    MblSilla& silla = dibujo.MblSilla.crear(indice);
    silla.Visible = true;
    silla.Left = left;
    silla.Top = top;
    anunciar(dibujo, Clase::MblSilla, indice);
    return silla;
}

TEST(Mapa, EncuentraLoQueHayEnUnPunto) {
    Dibujo dibujo;
    Mapa mapa;
    poner(dibujo, 1, 100, 100);
    mapa.ponerAlDia(dibujo);
    EXPECT_EQ(enPunto(mapa, 150, 150), (Lista{{Clase::MblSilla, 1}}));
    EXPECT_EQ(enPunto(mapa, 99, 150), Lista{});
    EXPECT_EQ(enPunto(mapa, 325, 150), Lista{}) << "the far side belongs to the neighbour";
}

TEST(Mapa, LoQueSeMueveEnsuciaDondeEstabaYDondeEsta) {
    Dibujo dibujo;
    Mapa mapa;
    mapa.ponerAlDia(dibujo);
    dibujo.sucia.vaciar();
    MblSilla& silla = poner(dibujo, 1, 100, 100);
    mapa.ponerAlDia(dibujo);
    dibujo.sucia.vaciar();
    silla.Left = 9000;
    anunciar(dibujo, Clase::MblSilla, 1);
    mapa.ponerAlDia(dibujo);
    const auto& zonas = dibujo.sucia.zonas();
    ASSERT_EQ(zonas.size(), 2U);
    EXPECT_EQ(zonas[0].Left, 100);
    EXPECT_EQ(zonas[1].Left, 9000);
    EXPECT_TRUE(dibujo.paso.limpia());
    EXPECT_EQ(enPunto(mapa, 150, 150), Lista{});
}

TEST(Mapa, LoQueSeArrastraSoloEnsuciaElPaso) {
    Dibujo dibujo;
    Mapa mapa;
    poner(dibujo, 1, 100, 100);
    mapa.ponerAlDia(dibujo);
    dibujo.sucia.vaciar();
    dibujo.ObjetoEnMovimiento = Referencia{Clase::MblSilla, 1};
    poner(dibujo, 1, 300, 100);
    mapa.ponerAlDia(dibujo);
    EXPECT_TRUE(dibujo.sucia.limpia());
    EXPECT_EQ(dibujo.paso.zonas().size(), 2U);
}

TEST(Mapa, LoQuitadoDejaDeEncontrarse) {
    Dibujo dibujo;
    Mapa mapa;
    poner(dibujo, 1, 100, 100);
    mapa.ponerAlDia(dibujo);
    dibujo.MblSilla.quitar(1);
    anunciar(dibujo, Clase::MblSilla, 1);
    mapa.ponerAlDia(dibujo);
    EXPECT_EQ(enPunto(mapa, 150, 150), Lista{});
    EXPECT_EQ(mapa.enZona({0, 0, 1e9, 1e9}), Lista{});
}

TEST(Mapa, UnaEscaleraSeCogePorSusTrazosYUnTextoPorSuCampo) {
    Dibujo dibujo;
    Mapa mapa;
    Escalera& escalera = dibujo.Escalera.crear(2);
    escalera.Visible = true;
    TextoLibre& texto = dibujo.TextoLibre.crear(1);
    texto.Visible = true;
    texto.Left = 9000;
    texto.Width = 500;
    texto.Height = 100;
    mapa.ponerAlDia(dibujo);
    const auto trazos = extensionDe(dibujo, Clase::Escalera, 2);
    EXPECT_EQ(enPunto(mapa, trazos->Left + 1, trazos->Top + 1), (Lista{{Clase::Escalera, 2}}));
    EXPECT_EQ(enPunto(mapa, 9499, 99), (Lista{{Clase::TextoLibre, 1}}));
    EXPECT_EQ(enPunto(mapa, 9499, 101), Lista{});
}

TEST(Mapa, LoInmensoYLoLejanoSeEncuentraIgual) {
    Dibujo dibujo;
    Mapa mapa;
    MblArmario& armario = dibujo.MblArmario.crear(1);
    armario.Visible = true;
    armario.DimX = 1e30;
    armario.DimY = 1e30;
    MblSilla& silla = poner(dibujo, 1, 3e38F, -3e38F);
    silla.AnchoSilla = 1e38;
    mapa.ponerAlDia(dibujo);
    EXPECT_EQ(enPunto(mapa, 1e6, 1e6), (Lista{{Clase::MblArmario, 1}}));
    EXPECT_EQ(mapa.enZona({0, 0, 10, 10}), (Lista{{Clase::MblArmario, 1}}));
    EXPECT_EQ(mapa.enZona({-1e300, -1e300, 2e300, 2e300}).size(), 2U);
}

TEST(Mapa, ContestaComoQuienPreguntaATodos) {
    std::mt19937 azar(7);
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(azar); };
    Dibujo dibujo;
    Mapa mapa;
    for (int ronda = 0; ronda < 300; ++ronda) {
        const int indice = 1 + static_cast<int>(azar() % 60);
        if (azar() % 5 == 0) {
            dibujo.MblSilla.quitar(indice);
            anunciar(dibujo, Clase::MblSilla, indice);
        } else {
            MblSilla& silla = poner(dibujo, indice, static_cast<float>(entre(-2000, 12000)),
                                    static_cast<float>(entre(-2000, 12000)));
            silla.AnchoSilla = entre(0, azar() % 7 == 0 ? 60000 : 3000);
            silla.Visible = azar() % 10 != 0;
        }
        if (ronda % 50 == 49) anunciarTodo(dibujo);
        mapa.ponerAlDia(dibujo);
        const double x = entre(-3000, 13000);
        const double y = entre(-3000, 13000);
        const Recuadro zona{x, y, entre(0, 9000), entre(0, 20000)};
        Lista puntos;
        Lista zonas;
        dibujo.MblSilla.recorrer([&](int i, const MblSilla&) {
            const Referencia cual{Clase::MblSilla, static_cast<std::int16_t>(i)};
            const auto caja = recuadroDe(dibujo, Clase::MblSilla, i);
            const auto extension = extensionDe(dibujo, Clase::MblSilla, i);
            if (caja && caja->contiene(x, y)) puntos.push_back(cual);
            if (extension && unir(*extension, *caja).toca(zona)) zonas.push_back(cual);
        });
        ASSERT_EQ(enPunto(mapa, x, y), puntos) << ronda;
        ASSERT_EQ(enOrden(mapa.enZona(zona)), zonas) << ronda;
    }
}

}  // namespace
}  // namespace bosquel
