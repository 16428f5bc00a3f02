#include "apoyo/uniones_de_referencia.h"
#include "apoyo/uniones_muros.h"
#include "walls/union.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

Encuentro une(Dibujo& dibujo) {
    const Encuentro encuentro = encuentroDeParedes(dibujo);
    if (encuentro == Encuentro::cruce) UnionParedes(dibujo);
    return encuentro;
}

Segmento linea(const Dibujo& dibujo, int pared, std::size_t cual) {
    return dibujo.Pared.en(pared)->lineas[cual - 1];
}

/// A level wall from (1000, 3000) to (5000, 3000), 200 wide, and an upright one that starts at (2000, `y`).
Dibujo cruz(float y, double longitud) {
    return planoDe({{1000, 3000, 0, 4000}, {2000, y, 90, longitud}});
}

}  // namespace

TEST(UnionX, DosMurosCruzadosDanCuatro) {
    Dibujo dibujo = cruz(5000, 4000);
    EXPECT_EQ(une(dibujo), Encuentro::cruce);
    EXPECT_EQ(dibujo.Pared.contador, 5);
    EXPECT_EQ(linea(dibujo, 1, 1), (Segmento{1000, 3000, 2000, 3000, true}));
    EXPECT_EQ(linea(dibujo, 1, 3), (Segmento{1000, 3200, 2000, 3200, true}));
    EXPECT_EQ(linea(dibujo, 2, 1), (Segmento{2000, 5000, 2000, 3200, true}));
    EXPECT_EQ(linea(dibujo, 2, 3), (Segmento{2200, 5000, 2200, 3200, true}));
    EXPECT_EQ(linea(dibujo, 3, 1), (Segmento{2200, 3000, 5000, 3000, true}));
    EXPECT_EQ(linea(dibujo, 3, 3), (Segmento{2200, 3200, 5000, 3200, true}));
    EXPECT_EQ(linea(dibujo, 4, 1), (Segmento{2000, 3000, 2000, 1000, true}));
    EXPECT_EQ(linea(dibujo, 4, 3), (Segmento{2200, 3000, 2200, 1000, true}));
}

TEST(UnionX, LasTapasDelCruceSeAbrenYLasDeFueraQuedan) {
    Dibujo dibujo = cruz(5000, 4000);
    une(dibujo);
    for (const int primera : {1, 2}) {
        EXPECT_TRUE(dibujo.Pared.en(primera)->Visible1);
        EXPECT_FALSE(dibujo.Pared.en(primera)->Visible2);
        EXPECT_FALSE(linea(dibujo, primera, 4).Visible);
    }
    for (const int pieza : {3, 4}) {
        EXPECT_FALSE(dibujo.Pared.en(pieza)->Visible1);
        EXPECT_FALSE(linea(dibujo, pieza, 2).Visible);
        EXPECT_TRUE(dibujo.Pared.en(pieza)->Visible2);
        EXPECT_TRUE(linea(dibujo, pieza, 4).Visible);
    }
}

TEST(UnionX, LaPiezaHeredaDeSuMuro) {
    Dibujo dibujo = planoDe({{1000, 3000, 0, 4000, 150, "Tabique"}, {2000, 5000, 90, 4000, 300, "Muro"}});
    dibujo.Pared.en(1)->Visible2 = false;
    une(dibujo);
    const Pared& deTabique = *dibujo.Pared.en(3);
    const Pared& deMuro = *dibujo.Pared.en(4);
    EXPECT_EQ(deTabique.Tipo, "Tabique");
    EXPECT_EQ(deTabique.AnchoTabique, 150);
    EXPECT_EQ(deTabique.Angulo, 0);
    EXPECT_FALSE(deTabique.Visible2) << "the far cap was open already";
    EXPECT_EQ(deMuro.Tipo, "Muro");
    EXPECT_EQ(deMuro.AnchoMuro, 300);
    EXPECT_EQ(deMuro.Angulo, 90);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(dibujo.Pared.en(i)->NumeroGrupo, 1);
        EXPECT_EQ(dibujo.Pared.en(i)->Estado, estadoEdicion);
        EXPECT_EQ(dibujo.Pared.en(i)->ParedPick.BackColor, blanco);
        EXPECT_TRUE(dibujo.Pared.en(i)->ParedPick.Visible);
    }
    EXPECT_EQ(dibujo.IndiceActual, 4) << "the last piece is the current element";
}

TEST(UnionX, SinIndicesParaLasPiezasSoloSeCortaLoQueHay) {
    Dibujo dibujo = cruz(5000, 4000);
    dibujo.Pared.contador = 32767;
    une(dibujo);
    EXPECT_EQ(linea(dibujo, 1, 1), (Segmento{1000, 3000, 2000, 3000, true}));
    EXPECT_EQ(linea(dibujo, 2, 1), (Segmento{2000, 5000, 2000, 3200, true}));
    EXPECT_EQ(dibujo.Pared.ultimo(), 2);
}

TEST(UnionX, LasLongitudesSeMidenDeNuevo) {
    Dibujo dibujo = cruz(5000, 4000);
    dibujo.FactorZoomActual = 0.5;  // the lines stand: the same strokes are now twice as many millimetres
    une(dibujo);
    EXPECT_EQ(dibujo.Pared.en(1)->Longitud, 2000);
    EXPECT_EQ(dibujo.Pared.en(2)->Longitud, 3600);
    EXPECT_EQ(dibujo.Pared.en(3)->Longitud, 5600);
    EXPECT_EQ(dibujo.Pared.en(4)->Longitud, 4000);
}

// The upright wall ends above the level one.
TEST(UnionT, ElPieSobreLaBarraDaTres) {
    Dibujo dibujo = cruz(2500, 1500);
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(plano.unir(1, 2), "Up");
    EXPECT_EQ(une(dibujo), Encuentro::cruce);
    comparar(dibujo, plano);
    EXPECT_EQ(dibujo.Pared.contador, 4);
    EXPECT_EQ(linea(dibujo, 2, 1), (Segmento{2000, 3000, 2000, 1000, true}));
    EXPECT_EQ(linea(dibujo, 2, 3), (Segmento{2200, 3000, 2200, 1000, true}));
    EXPECT_FALSE(dibujo.Pared.en(2)->Visible1);
    EXPECT_EQ(linea(dibujo, 1, 1), (Segmento{1000, 3000, 2000, 3000, true}));
    EXPECT_EQ(linea(dibujo, 1, 3), (Segmento{1000, 3200, 2200, 3200, true})) << "the far side stays closed";
    EXPECT_EQ(linea(dibujo, 3, 1), (Segmento{2200, 3000, 5000, 3000, true}));
    EXPECT_EQ(linea(dibujo, 3, 3), (Segmento{2200, 3200, 5000, 3200, true}));
}

// A stem that ends exactly on the bar's first side: equality counts as below the stem in this pair of angles.
TEST(UnionT, ElPieJustoEnElPrimerLadoEsUnaT) {
    Dibujo dibujo = cruz(3000, 2000);
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(plano.unir(1, 2), "Up");
    EXPECT_EQ(plano.columna, 1);
    une(dibujo);
    comparar(dibujo, plano);
}

// The same picture with other angles, where equality is no T but an X with a piece of length 0.
TEST(UnionX, ElPieJustoEnElPrimerLadoConAnguloNegativoEsUnaXConUnaPiezaNula) {
    Dibujo dibujo = planoDe({{1000, 3000, 0, 4000}, {2000, 3000, -90, 2000}});
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(plano.unir(1, 2), "XPN");
    une(dibujo);
    comparar(dibujo, plano);
    EXPECT_EQ(dibujo.Pared.contador, 5);
}

TEST(UnionT, LaPiezaQuedaEnElGrupoDeLosDos) {
    Dibujo dibujo = cruz(2500, 1500);
    dibujo.TotalGrupos = 8;
    dibujo.Pared.en(1)->NumeroGrupo = 7;
    dibujo.Pared.en(2)->NumeroGrupo = 3;
    une(dibujo);
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(dibujo.Pared.en(i)->NumeroGrupo, 3);
    EXPECT_EQ(dibujo.TotalGrupos, 8);
}

TEST(UnionT, UnMuroYaUnidoSeCortaPorSusLineas) {
    Dibujo dibujo = planoDe({{1000, 3000, 0, 4000}, {2000, 5000, 90, 4000}, {3000, 2500, 90, 1500}});
    PlanoDeReferencia plano(dibujo);
    plano.unir(1, 2);
    une(dibujo);
    dibujo.ParedUno = 4;
    dibujo.ParedDos = 3;
    EXPECT_EQ(plano.unir(4, 3), "Up");
    une(dibujo);
    comparar(dibujo, plano);
    EXPECT_EQ(dibujo.Pared.contador, 7);
}

TEST(Union, ElOrdenDeElegirImporta) {
    Dibujo dibujo = planoDe({{2000, 1000, -90, 4000}, {1000, 3000, 0, 4000}});
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(une(dibujo), Encuentro::cruce);
    plano.agrupar(1, 2);
    comparar(dibujo, plano);
    EXPECT_EQ(dibujo.Pared.contador, 3);

    dibujo = planoDe({{1000, 3000, 0, 4000}, {2000, 1000, -90, 4000}});
    EXPECT_EQ(une(dibujo), Encuentro::cruce);
    EXPECT_EQ(dibujo.Pared.contador, 5);
}

TEST(Union, DosNegativasSoloSeAgrupan) {
    Dibujo dibujo = planoDe({{1000, 1000, -45, 4000}, {1000, 1500, -30, 4000}});
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(une(dibujo), Encuentro::cruce);
    plano.agrupar(1, 2);
    comparar(dibujo, plano);
}

TEST(Union, SinEncuentroNoSeAgrupa) {
    Dibujo paralelas = planoDe({{1000, 1000, 30}, {2000, 2000, 30}});
    EXPECT_EQ(une(paralelas), Encuentro::paralelas);
    EXPECT_EQ(paralelas.TotalGrupos, 0);

    Dibujo lejos = planoDe({{1000, 2000, 30, 1000}, {6000, 3000, -30, 1000}});
    EXPECT_EQ(une(lejos), Encuentro::fuera);
    EXPECT_EQ(lejos.TotalGrupos, 0);

    Dibujo sola = planoDe({{1000, 1000, 0}});
    EXPECT_EQ(une(sola), Encuentro::ninguno);
}

// The first wall stands upright from (2000, `bajo`) to (2000, 1000); the crossing is (2000, 3000).
TEST(Union, ElAlcanceEnYEsCerradoParaLaPrimeraYAbiertoParaLaSegunda) {
    const auto encuentro = [](float bajo, const Segmento& otra) {
        Dibujo dibujo = planoDe({{2000, bajo, 90, bajo - 1000.0}, {2500, 2500, 45, 1000}});
        dibujo.Pared.en(1)->lineas[0] = {2000, bajo, 2000, 1000, true};
        dibujo.Pared.en(2)->lineas[0] = otra;
        return encuentroDeParedes(dibujo);
    };
    const Segmento termina{2000, 3000, 3000, 2000, true}, noLlega{2500, 2500, 3500, 1500, true};
    EXPECT_EQ(encuentro(3000, noLlega), Encuentro::fuera) << "at its very end the first does not count";
    EXPECT_EQ(encuentro(3000, termina), Encuentro::cruce) << "at its very end the second does";
    EXPECT_EQ(encuentro(3001, noLlega), Encuentro::cruce);
    EXPECT_EQ(encuentro(2999, termina), Encuentro::cruce);
    EXPECT_EQ(encuentro(2999, noLlega), Encuentro::fuera);
}

// A level wall says nothing in y, and an upright one reaches every crossing in x.
TEST(Union, UnaHorizontalPrimeroConUnaVerticalNuncaQuedaFuera) {
    Dibujo dibujo = planoDe({{1000, 1000, 0, 1000}, {6000, 6000, 90, 1000}});
    EXPECT_EQ(encuentroDeParedes(dibujo), Encuentro::cruce);
}

TEST(Union, LasAberturasQuedanEnLaPrimeraPieza) {
    Dibujo dibujo = cruz(5000, 4000);
    Ventana& ventana = dibujo.Ventana.crear(1);
    dibujo.Ventana.contador = 2;
    ventana.NumeroPared = 1;
    une(dibujo);
    EXPECT_EQ(dibujo.Ventana.en(1)->NumeroPared, 1);
}

}  // namespace bosquel::apoyo
