#include "walls/grupos.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

/// Wall 1 in group 6, and wall 2.
struct Escena {
    Dibujo dibujo;

    Escena() {
        dibujo.Pared.crear(1).NumeroGrupo = 6;
        dibujo.Pared.crear(2).NumeroGrupo = 6;
    }
    void ventana(int indice, std::int16_t grupo, std::int16_t pared = 1) {
        poner(dibujo.Ventana, indice, grupo, pared);
    }
    void puerta(int indice, std::int16_t grupo, std::int16_t pared = 1) {
        poner(dibujo.Puerta, indice, grupo, pared);
    }
    std::int16_t grupo(int pared) const { return dibujo.Pared.en(pared)->NumeroGrupo; }

    template <class Coleccion>
    void poner(Coleccion& coleccion, int indice, std::int16_t grupo, std::int16_t pared) {
        auto& abertura = coleccion.crear(indice);
        abertura.GrupoInicialPared = grupo;
        abertura.NumeroPared = pared;
    }
};

}  // namespace

TEST(Grupos, LaVentanaQueCerroElMuroPasaElDeberALaSiguiente) {
    Escena escena;
    escena.ventana(1, 0);
    escena.ventana(2, 6);
    escena.ventana(3, 6);
    EliminaVentana(escena.dibujo, 1);
    EXPECT_EQ(escena.dibujo.Ventana.en(2)->GrupoInicialPared, 0);
    EXPECT_EQ(escena.dibujo.Ventana.en(3)->GrupoInicialPared, 6);
    EXPECT_EQ(escena.grupo(1), 6);
    EliminaVentana(escena.dibujo, 3);
    EXPECT_EQ(escena.grupo(1), 6);
    EliminaVentana(escena.dibujo, 2);
    EXPECT_EQ(escena.grupo(1), 0);
    EXPECT_EQ(escena.grupo(2), 6);
}

TEST(Grupos, LasVentanasNoVenLasPuertasNiLasPuertasLasVentanas) {
    Escena escena;
    escena.ventana(1, 0);
    escena.puerta(1, 6);
    EliminaVentana(escena.dibujo, 1);
    EXPECT_EQ(escena.grupo(1), 0);
    EXPECT_TRUE(escena.dibujo.Puerta.existe(1));

    Escena otra;
    otra.puerta(4, 0);
    otra.ventana(1, 6);
    EliminaPuerta(otra.dibujo, 4);
    EXPECT_EQ(otra.grupo(1), 0);
    EXPECT_TRUE(otra.dibujo.Ventana.existe(1));
}

TEST(Grupos, LaDeOtroMuroNoHereda) {
    Escena escena;
    escena.puerta(1, 0);
    escena.puerta(2, 6, 2);
    EliminaPuerta(escena.dibujo, 1);
    EXPECT_EQ(escena.grupo(1), 0);
    EXPECT_EQ(escena.dibujo.Puerta.en(2)->GrupoInicialPared, 6);
}

TEST(Grupos, UnMuroYaAgrupadoSigueAsiAlQuitarSusAberturas) {
    Escena escena;
    escena.ventana(1, 6);
    EliminaVentana(escena.dibujo, 1);
    EXPECT_EQ(escena.grupo(1), 6);
    EliminaVentana(escena.dibujo, 1);
    EliminaVentana(escena.dibujo, 0);
    EliminaVentana(escena.dibujo, -3);
    EXPECT_TRUE(escena.dibujo.Ventana.existe(0));
}

TEST(Grupos, EliminarLasAberturasDeUnMuroDejaLasDeOtros) {
    Escena escena;
    escena.ventana(2, 0);
    escena.ventana(7, 6);
    escena.ventana(9, 6, 2);
    escena.puerta(1, 6);
    escena.puerta(30, 6);
    escena.puerta(31, 0, 2);
    EliminaAberturasPared(escena.dibujo, 1);
    EXPECT_EQ(escena.dibujo.Ventana.ultimo(), 9);
    EXPECT_EQ(escena.dibujo.Puerta.ultimo(), 31);
    for (const int i : {2, 7})
        EXPECT_FALSE(escena.dibujo.Ventana.existe(i));
    for (const int i : {1, 30})
        EXPECT_FALSE(escena.dibujo.Puerta.existe(i));
    EXPECT_EQ(escena.grupo(1), 0);
}

TEST(Grupos, UnMuroSeVaConSusAberturasYLosDemasDelGrupoSiguen) {
    Escena escena;
    escena.puerta(1, 6);
    EliminaPared(escena.dibujo, 1);
    EXPECT_FALSE(escena.dibujo.Pared.existe(1));
    EXPECT_FALSE(escena.dibujo.Puerta.existe(1));
    EXPECT_EQ(escena.grupo(2), 6);
    EliminaPared(escena.dibujo, 0);
    EXPECT_TRUE(escena.dibujo.Pared.existe(0));
}
