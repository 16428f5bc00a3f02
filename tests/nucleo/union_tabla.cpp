#include "apoyo/uniones_de_referencia.h"
#include "apoyo/uniones_muros.h"
#include "walls/union.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace bosquel::apoyo {

namespace {

/// Angles of one class of the table.
struct ClaseDePrueba {
    const char* nombre;
    int desde, hasta;
};

constexpr ClaseDePrueba Pos{"Pos", 1, 89}, Mas90{"90", 90, 90}, Cero{"0", 0, 0}, Menos90{"-90", -90, -90},
    Neg{"Neg", -89, -1};

struct Fila {
    ClaseDePrueba a, b;
    std::array<const char*, 5> procedimientos;
};

std::ostream& operator<<(std::ostream& salida, const Fila& fila) {
    return salida << fila.a.nombre << " with " << fila.b.nombre;
}

// clang-format off
const Fila filas[]{
    {Pos,   Mas90,   {"Up",      "Down",     "Right",    "Left",     "XPP"}},
    {Pos,   Menos90, {"270Up",   "270Down",  "270Right", "270Left",  "XPN"}},
    {Pos,   Cero,    {"Up",      "Down",     "Left",     "Right",    "XPP"}},
    {Pos,   Pos,     {"Right",   "Left",     "Right",    "Left",     "XPP"}},
    {Pos,   Neg,     {"270Right","270Left",  "270Up",    "270Down",  "XPN"}},
    {Mas90, Cero,    {"Up",      "Down",     "Right",    "Left",     "XPP"}},
    {Mas90, Pos,     {"Up",      "Down",     "Right",    "Left",     "XPP"}},
    {Mas90, Neg,     {"270Left", "270Right", "270Up",    "270Down",  "XPN"}},
    {Cero,  Mas90,   {"Up",      "Down",     "Right",    "Left",     "XPP"}},
    {Cero,  Menos90, {"270Up",   "270Down",  "270Right", "270Left",  "XPN"}},
    {Cero,  Pos,     {"Right",   "Left",     "Down",     "Up",       "XPP"}},
    {Cero,  Neg,     {"270Right","270Left",  "270Up",    "270Down",  "XPN"}},
    {Neg,   Mas90,   {"270Left", "270Right", "270Up",    "270Down",  "XPN"}},
    {Neg,   Menos90, {"Left",    "Right",    "Down",     "Up",       "XPN"}},
    {Neg,   Cero,    {"Left",    "Right",    "Down",     "Up",       "XPN"}},
    {Neg,   Pos,     {"270Up",   "270Down",  "270Right", "270Left",  "XPN"}},
};
// clang-format on

Dibujo alAzar(Azar& azar, const ClaseDePrueba& a, const ClaseDePrueba& b) {
    return planoDe({azar.trazo(azar.entre(a.desde, a.hasta)), azar.trazo(azar.entre(b.desde, b.hasta))});
}

Encuentro enPalabras(const std::string& resultado) {
    if (resultado == "paralelas") return Encuentro::paralelas;
    return resultado == "fuera" ? Encuentro::fuera : Encuentro::cruce;
}

class UnionFila : public testing::TestWithParam<Fila> {};

}  // namespace

TEST_P(UnionFila, CadaColumnaHaceLoSuyoExactamente) {
    const Fila& fila = GetParam();
    Azar azar(7);
    std::array<int, 5> veces{};
    for (int i = 0; i < 6000 && !HasFailure(); ++i) {
        Dibujo dibujo = alAzar(azar, fila.a, fila.b);
        PlanoDeReferencia plano(dibujo);
        const std::string hecho = plano.unir(1, 2);
        const Encuentro encuentro = encuentroDeParedes(dibujo);
        ASSERT_EQ(encuentro, enPalabras(hecho));
        if (encuentro != Encuentro::cruce) continue;
        const auto columna = static_cast<std::size_t>(plano.columna - 1);
        EXPECT_EQ(hecho, fila.procedimientos[columna]);
        ++veces[columna];
        UnionParedes(dibujo);
        comparar(dibujo, plano);
    }
    for (std::size_t columna = 0; columna < veces.size(); ++columna)
        EXPECT_GT(veces[columna], 0) << "column " << columna + 1 << " was never reached";
}

INSTANTIATE_TEST_SUITE_P(Tabla, UnionFila, testing::ValuesIn(filas));

namespace {

class UnionSinCorte : public testing::TestWithParam<std::pair<ClaseDePrueba, ClaseDePrueba>> {};

}  // namespace

TEST_P(UnionSinCorte, SoloAgrupa) {
    Azar azar(11);
    int veces = 0;
    for (int i = 0; i < 2000; ++i) {
        Dibujo dibujo = alAzar(azar, GetParam().first, GetParam().second);
        PlanoDeReferencia plano(dibujo);
        if (encuentroDeParedes(dibujo) != Encuentro::cruce) continue;
        ++veces;
        UnionParedes(dibujo);
        plano.agrupar(1, 2);
        comparar(dibujo, plano);
        EXPECT_EQ(dibujo.Pared.contador, 3);
    }
    EXPECT_GT(veces, 100);
}

INSTANTIATE_TEST_SUITE_P(Tabla, UnionSinCorte,
                         testing::Values(std::pair{Neg, Neg}, std::pair{Menos90, Cero},
                                         std::pair{Menos90, Pos}, std::pair{Menos90, Neg},
                                         std::pair{ClaseDePrueba{"120", 91, 135}, Cero},
                                         std::pair{Pos, ClaseDePrueba{"-120", -135, -91}}));

}  // namespace bosquel::apoyo
