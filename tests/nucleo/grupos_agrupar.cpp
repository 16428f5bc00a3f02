#include "apoyo/uniones_muros.h"
#include "walls/grupos.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

/// Five walls in these groups, of which 1 and 2 are chosen.
Dibujo conGrupos(std::array<int, 5> grupos, int total) {
    Dibujo dibujo = planoDe({{1000, 1000}, {1000, 2000}, {1000, 3000}, {1000, 4000}, {1000, 5000}});
    for (int i = 0; i < 5; ++i)
        dibujo.Pared.en(i + 1)->NumeroGrupo = static_cast<std::int16_t>(grupos[static_cast<std::size_t>(i)]);
    dibujo.TotalGrupos = static_cast<std::int16_t>(total);
    return dibujo;
}

std::array<int, 5> gruposDe(const Dibujo& dibujo) {
    std::array<int, 5> grupos{};
    for (int i = 0; i < 5; ++i)
        grupos[static_cast<std::size_t>(i)] = dibujo.Pared.en(i + 1)->NumeroGrupo;
    return grupos;
}

using Grupos = std::array<int, 5>;

void ponVentana(Dibujo& dibujo, int indice, int pared, int grupoInicial) {
    Ventana& ventana = dibujo.Ventana.crear(indice);
    dibujo.Ventana.contador = static_cast<std::int16_t>(indice + 1);
    ventana.NumeroPared = static_cast<std::int16_t>(pared);
    ventana.GrupoInicialPared = static_cast<std::int16_t>(grupoInicial);
}

void ponPuerta(Dibujo& dibujo, int indice, int pared, int grupoInicial) {
    Puerta& puerta = dibujo.Puerta.crear(indice);
    dibujo.Puerta.contador = static_cast<std::int16_t>(indice + 1);
    puerta.NumeroPared = static_cast<std::int16_t>(pared);
    puerta.GrupoInicialPared = static_cast<std::int16_t>(grupoInicial);
}

}  // namespace

TEST(AgruparParedes, DosLibresTomanUnNumeroNuevo) {
    Dibujo dibujo = conGrupos({0, 0, 4, 0, 0}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{7, 7, 4, 0, 0}));
    EXPECT_EQ(dibujo.TotalGrupos, 7);
}

TEST(AgruparParedes, LaLibreTomaElDeLaOtra) {
    Dibujo dibujo = conGrupos({0, 4, 4, 0, 2}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{4, 4, 4, 0, 2}));
    dibujo = conGrupos({4, 0, 4, 0, 2}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{4, 4, 4, 0, 2}));
    EXPECT_EQ(dibujo.TotalGrupos, 6);
}

TEST(AgruparParedes, ElGrupoMayorPasaEnteroAlMenor) {
    Dibujo dibujo = conGrupos({5, 3, 5, 3, 4}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{3, 3, 3, 3, 4}));
    dibujo = conGrupos({3, 5, 5, 3, 4}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{3, 3, 3, 3, 4}));
    EXPECT_EQ(dibujo.TotalGrupos, 6) << "numbers are never given back";
}

TEST(AgruparParedes, ElMismoGrupoQueda) {
    Dibujo dibujo = conGrupos({3, 3, 3, 0, 4}, 6);
    AgruparParedes(dibujo);
    EXPECT_EQ(gruposDe(dibujo), (Grupos{3, 3, 3, 0, 4}));
}

TEST(AgruparParedes, LasAberturasNoCambianDeGrupo) {
    Dibujo dibujo = conGrupos({5, 3, 0, 0, 0}, 6);
    ponVentana(dibujo, 1, 1, 5);
    AgruparParedes(dibujo);
    EXPECT_EQ(dibujo.Ventana.en(1)->GrupoInicialPared, 5);
}

TEST(AgruparParedes, PasaPorLosHuecos) {
    Dibujo dibujo = conGrupos({5, 3, 5, 0, 5}, 6);
    dibujo.Pared.quitar(4);
    AgruparParedes(dibujo);
    EXPECT_EQ(dibujo.Pared.en(5)->NumeroGrupo, 3);
    dibujo.Pared.quitar(1);
    dibujo.Pared.en(2)->NumeroGrupo = 0;
    AgruparParedes(dibujo);
    EXPECT_EQ(dibujo.Pared.en(2)->NumeroGrupo, 0) << "a wall alone makes no group";
}

TEST(Desagrupar, SoloLasDelGrupoQuedanLibres) {
    Dibujo dibujo = conGrupos({2, 3, 2, 0, 3}, 6);
    dibujo.Pared.quitar(4);
    Desagrupar(dibujo, 2);
    EXPECT_EQ(dibujo.Pared.en(1)->NumeroGrupo, 0);
    EXPECT_EQ(dibujo.Pared.en(2)->NumeroGrupo, 3);
    EXPECT_EQ(dibujo.Pared.en(3)->NumeroGrupo, 0);
    EXPECT_EQ(dibujo.Pared.en(5)->NumeroGrupo, 3);
    EXPECT_EQ(dibujo.TotalGrupos, 6);
}

TEST(Desagrupar, LasAberturasDelGrupoSeVan) {
    Dibujo dibujo = conGrupos({2, 3, 0, 0, 0}, 6);
    ponVentana(dibujo, 1, 1, 0);
    ponVentana(dibujo, 2, 2, 0);
    ponPuerta(dibujo, 1, 1, 2);
    Desagrupar(dibujo, 2);
    EXPECT_FALSE(dibujo.Ventana.existe(1));
    EXPECT_TRUE(dibujo.Ventana.existe(2));
    EXPECT_FALSE(dibujo.Puerta.existe(1));
    EXPECT_TRUE(dibujo.Pared.existe(1));
}

}  // namespace bosquel::apoyo
