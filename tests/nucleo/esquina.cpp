#include "walls/esquina.h"

#include "apoyo/uniones_de_referencia.h"
#include "apoyo/uniones_muros.h"

#include <gtest/gtest.h>
#include <set>

namespace bosquel::apoyo {

namespace {

/// What decides the pairing of two walls of which none is upright.
struct FilaInclinada {
    const char* nombre;
    int aDesde, aHasta, bDesde, bHasta;
    const char *mismoLado, *deOtroModo;
};

std::ostream& operator<<(std::ostream& salida, const FilaInclinada& fila) {
    return salida << fila.nombre;
}

class EsquinaInclinada : public testing::TestWithParam<FilaInclinada> {};

/// Both walls on the same side of the crossing of their first lines, before anything is joined.
bool mismoLado(Dibujo dibujo) {
    const Segmento& a = dibujo.Pared.en(1)->lineas[0];
    const Segmento& b = dibujo.Pared.en(2)->lineas[0];
    PuntoUnion(dibujo, a, b);
    const bool derechaDeA = dibujo.PuntoUnionX >= (static_cast<double>(a.X2) - a.X1) / 2 + a.X1;
    const bool derechaDeB = dibujo.PuntoUnionX >= (static_cast<double>(b.X2) - b.X1) / 2 + b.X1;
    return derechaDeA == derechaDeB;
}

}  // namespace

TEST_P(EsquinaInclinada, EmparejaSegunElLadoExactamente) {
    const FilaInclinada& fila = GetParam();
    Azar azar(3);
    std::array<int, 2> veces{};
    for (int i = 0; i < 2000 && !HasFailure(); ++i) {
        Dibujo dibujo = planoDe({azar.trazo(azar.entre(fila.aDesde, fila.aHasta)),
                                 azar.trazo(azar.entre(fila.bDesde, fila.bHasta))});
        PlanoDeReferencia plano(dibujo);
        if (plano.esquina(1, 2) == "paralelas") continue;
        const bool mismo = mismoLado(dibujo);
        ++veces[mismo ? 0 : 1];
        EXPECT_EQ(plano.pares, std::vector<std::string>{mismo ? fila.mismoLado : fila.deOtroModo});
        EXPECT_TRUE(EsquinaParedes(dibujo));
        comparar(dibujo, plano);
        EXPECT_EQ(dibujo.PuntoUnionX, plano.px);
        EXPECT_EQ(dibujo.PuntoUnionY, plano.py);
    }
    EXPECT_GT(veces[0], 50);
    EXPECT_GT(veces[1], 50);
}

INSTANTIATE_TEST_SUITE_P(
    Tabla, EsquinaInclinada,
    testing::Values(FilaInclinada{"positive, positive", 1, 89, 1, 89, "1331", "1133"},
                    FilaInclinada{"negative, negative", -89, -1, -89, -1, "1331", "1133"},
                    FilaInclinada{"positive, negative", 1, 89, -89, -1, "1133", "1331"},
                    FilaInclinada{"negative, positive", -89, -1, 1, 89, "1133", "1331"},
                    FilaInclinada{"level, positive", 0, 0, 1, 89, "1331", "1133"},
                    FilaInclinada{"positive, level", 1, 89, 0, 0, "1331", "1133"},
                    FilaInclinada{"level, negative", 0, 0, -89, -1, "1133", "1331"},
                    FilaInclinada{"negative, level", -89, -1, 0, 0, "1133", "1331"},
                    FilaInclinada{"outside, level", 100, 170, 0, 0, "1331", "1133"},
                    FilaInclinada{"outside, positive", -170, -100, 1, 89, "1133", "1331"}));

namespace {

struct FilaVertical {
    const char* nombre;
    std::vector<int> a, b;
    std::array<const char*, 4> pares;  ///< of the four tests, in their order
};

std::ostream& operator<<(std::ostream& salida, const FilaVertical& fila) {
    return salida << fila.nombre;
}

class EsquinaVertical : public testing::TestWithParam<FilaVertical> {};

const std::vector<int> verticales{90, -90}, noNegativos{0, 1, 15, 30, 45, 60, 89},
    negativos{-1, -30, -45, -60, -89};

}  // namespace

TEST_P(EsquinaVertical, LosCuatroCuartosUnoTrasOtroExactamente) {
    const FilaVertical& fila = GetParam();
    Azar azar(5);
    std::array<int, 4> primeros{};
    int repetidos = 0, ninguno = 0;
    for (int i = 0; i < 8000 && !HasFailure(); ++i) {
        const auto uno = [&](const std::vector<int>& angulos) {
            return angulos[static_cast<std::size_t>(azar.entre(0, static_cast<int>(angulos.size()) - 1))];
        };
        Dibujo dibujo = planoDe({azar.trazo(uno(fila.a)), azar.trazo(uno(fila.b))});
        PlanoDeReferencia plano(dibujo);
        plano.esquina(1, 2);
        if (plano.cuartos.empty())
            ++ninguno;
        else
            ++primeros[static_cast<std::size_t>(plano.cuartos.front() - 1)];
        if (plano.cuartos.size() > 1) ++repetidos;
        for (std::size_t k = 0; k < plano.cuartos.size(); ++k)
            EXPECT_EQ(plano.pares[k], fila.pares[static_cast<std::size_t>(plano.cuartos[k] - 1)]);
        EXPECT_TRUE(EsquinaParedes(dibujo));
        comparar(dibujo, plano);
    }
    for (std::size_t k = 0; k < primeros.size(); ++k)
        EXPECT_GT(primeros[k], 100) << "test " << k + 1;
    EXPECT_GT(repetidos, 0) << "no second test has fired";
    EXPECT_GT(ninguno, 0) << "no crossing has lain on a middle";
}

INSTANTIATE_TEST_SUITE_P(
    Tabla, EsquinaVertical,
    testing::Values(
        FilaVertical{"upright, level or positive", verticales, noNegativos, {"1331", "1331", "1133", "1133"}},
        FilaVertical{"upright, negative", verticales, negativos, {"1133", "1133", "1331", "1331"}},
        FilaVertical{"level or positive, upright", noNegativos, verticales, {"1331", "1331", "1133", "1133"}},
        FilaVertical{"negative, upright", negativos, verticales, {"1133", "1133", "1331", "1331"}}));

TEST(Esquina, ParalelasPorSusGradosYNadaCambia) {
    for (const auto& [a, b] : {std::pair{30, 30}, std::pair{90, -90}, std::pair{-90, 90}, std::pair{0, 0},
                               std::pair{120, 60}, std::pair{-150, 30}}) {
        Dibujo dibujo = planoDe({{1000, 1000, a}, {3000, 2000, b}});
        const PlanoDeReferencia plano(dibujo);
        EXPECT_FALSE(EsquinaParedes(dibujo)) << a << " with " << b;
        comparar(dibujo, plano);
        EXPECT_EQ(dibujo.TotalGrupos, 0);
    }
}

// A level wall and one that rises from its right end: 0 with 30, the crossing right of both middles.
TEST(Esquina, AmbasPierdenLaTapaDerechaSiElEncuentroEstaALaDerechaDeAmbas) {
    Dibujo dibujo = planoDe({{1000, 4000, 0, 4000}, {1500, 6000, 30, 4000}});
    PlanoDeReferencia plano(dibujo);
    plano.esquina(1, 2);
    EXPECT_EQ(plano.pares, std::vector<std::string>{"1331"});
    EXPECT_TRUE(EsquinaParedes(dibujo));
    comparar(dibujo, plano);
    for (const int i : {1, 2}) {
        EXPECT_TRUE(dibujo.Pared.en(i)->Visible1);
        EXPECT_FALSE(dibujo.Pared.en(i)->Visible2);
    }
    const Pared& uno = *dibujo.Pared.en(1);
    const double deLinea1 = static_cast<double>(uno.lineas[0].X2) - uno.lineas[0].X1;
    EXPECT_EQ(uno.Longitud, deLinea1) << "a level wall is measured by its first side";
    const Pared& dos = *dibujo.Pared.en(2);
    EXPECT_NE(dos.lineas[0].X2 - dos.lineas[0].X1, dos.lineas[2].X2 - dos.lineas[2].X1) << "a mitre";
}

// 90 with 0, in whole numbers: the upright wall from (1000, 5000) up to (1000, 1000) and 200 wide, the level
// one from (1000, 1000) to (5000, 1000).
TEST(Esquina, VerticalConHorizontalEnNumerosEnteros) {
    Dibujo dibujo = planoDe({{1000, 5000, 90, 4000}, {1000, 1000, 0, 4000}});
    EXPECT_TRUE(EsquinaParedes(dibujo));
    const Pared& vertical = *dibujo.Pared.en(1);
    const Pared& horizontal = *dibujo.Pared.en(2);
    EXPECT_EQ(vertical.lineas[0], (Segmento{1000, 5000, 1000, 1000, true}));
    EXPECT_EQ(vertical.lineas[2], (Segmento{1200, 5000, 1200, 1200, true}));
    EXPECT_EQ(horizontal.lineas[0], (Segmento{1000, 1000, 5000, 1000, true}));
    EXPECT_EQ(horizontal.lineas[2], (Segmento{1200, 1200, 5000, 1200, true}));
    EXPECT_EQ(vertical.lineas[3], (Segmento{1000, 1000, 1200, 1200, false}));
    EXPECT_EQ(horizontal.lineas[1], (Segmento{1000, 1000, 1200, 1200, false}));
    EXPECT_TRUE(vertical.lineas[1].Visible);
    EXPECT_TRUE(horizontal.lineas[3].Visible);
    EXPECT_EQ(vertical.Longitud, 4000);
    EXPECT_EQ(horizontal.Longitud, 4000);
    EXPECT_EQ(vertical.NumeroGrupo, 1);
    EXPECT_EQ(horizontal.NumeroGrupo, 1);
}

TEST(Esquina, SeAlarganTambienMurosQueNoSeAcercan) {
    Dibujo dibujo = planoDe({{1000, 1000, 0, 1000}, {9000, 9000, -60, 500}});
    PlanoDeReferencia plano(dibujo);
    EXPECT_EQ(plano.esquina(1, 2), "esquina");
    EXPECT_TRUE(EsquinaParedes(dibujo));
    comparar(dibujo, plano);
}

TEST(Esquina, LasPinzasQuedanEnReposo) {
    Dibujo dibujo = planoDe({{1000, 5000, 90}, {1000, 1000, 0}});
    for (const int i : {1, 2})
        PintaPinzasPared(dibujo, i, rojo);
    EsquinaParedes(dibujo);
    for (const int i : {1, 2})
        for (const Pinza* pinza : dibujo.Pared.en(i)->pinzas())
            EXPECT_EQ(pinza->BackColor, blanco);
}

TEST(Esquina, SinUnaDeLasParedesNoPasaNada) {
    Dibujo dibujo = planoDe({{1000, 5000, 90}, {1000, 1000, 0}});
    dibujo.Pared.quitar(1);
    const PlanoDeReferencia plano(dibujo);
    EXPECT_TRUE(EsquinaParedes(dibujo));
    comparar(dibujo, plano);
}

}  // namespace bosquel::apoyo
