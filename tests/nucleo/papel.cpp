#include "output/papel.h"

#include "output/escala.h"

#include <gtest/gtest.h>

using namespace bosquel;

namespace {

constexpr int A4 = 0, A3 = 1, A2 = 2, A1 = 3, vertical = 0, horizontal = 1;

void esperarPapel(int tamano, int sentido, const Papel& esperado) {
    const Papel* papel = papelPara(tamano, sentido);
    ASSERT_TRUE(papel) << esperado.nombre;
    EXPECT_EQ(papel->nombre, esperado.nombre);
    EXPECT_EQ(papel->titulo, esperado.titulo);
    EXPECT_EQ(papel->ancho, esperado.ancho);
    EXPECT_EQ(papel->alto, esperado.alto);
    EXPECT_EQ(papel->apaisado, esperado.apaisado);
    EXPECT_EQ(papel->Image1(), (Recuadro{0, 1000, esperado.anchoImagen, esperado.altoImagen}));
}

}  // namespace

TEST(Papel, CadaTamanoYSentidoTieneElSuyo) {
    esperarPapel(A4, vertical, {"A4", "Vista Previa de Impresión", 11904, 16833, false, 10299, 12520});
    esperarPapel(A4, horizontal, {"A4H", "ActiveReport1", 11904, 16833, true, 16394, 9732});
    esperarPapel(A3, vertical, {"A3", "ActiveReport1", 16833, 23808, false, 16394, 21543});
    esperarPapel(A3, horizontal, {"A3H", "ActiveReport1", 16833, 23808, true, 22299, 15402});
}

TEST(Papel, A2YA1NoLoTienen) {
    for (const int tamano : {A2, A1, -1, 4})
        for (const int sentido : {vertical, horizontal})
            EXPECT_EQ(papelPara(tamano, sentido), nullptr);
    EXPECT_EQ(papelPara(A4, 2), nullptr);
    EXPECT_EQ(papelPara(A4, -1), nullptr);
}

TEST(Papel, LaCajaDeLaImagenCabeEnLaPaginaTalComoSeLee) {
    for (const int tamano : {A4, A3})
        for (const int sentido : {vertical, horizontal}) {
            const Papel& papel = *papelPara(tamano, sentido);
            const Recuadro caja = papel.Image1();
            EXPECT_LE(caja.Left + caja.Width, papel.apaisado ? papel.alto : papel.ancho) << papel.nombre;
            EXPECT_LE(caja.Top + caja.Height, papel.apaisado ? papel.ancho : papel.alto) << papel.nombre;
        }
}

TEST(Papel, LasOpcionesTienenSuRotuloYDosSonDeAdorno) {
    constexpr std::array<std::string_view, 4> tamanos{"A4", "A3", "A2", "A1"};
    for (std::size_t i = 0; i < tamanos.size(); ++i) {
        EXPECT_EQ(optTamaño[i].rotulo, tamanos[i]);
        EXPECT_EQ(optTamaño[i].disponible, i < 2);
    }
    EXPECT_EQ(optSentido[0].rotulo, "V ");
    EXPECT_EQ(optSentido[1].rotulo, "H ");
    EXPECT_TRUE(optSentido[0].disponible && optSentido[1].disponible);
}

TEST(EscalaSalida, UnMetroDelDibujoAlPrimerZoomEsUnCentimetro) {
    EXPECT_NEAR(EscalaSalida, 1.1338582677, 5e-11);
    const double milimetroPorTwip = 25.4 / 1440;
    EXPECT_NEAR(1000 * 0.5 * EscalaSalida * milimetroPorTwip, 10, 1e-12);
    EXPECT_NEAR(1000 * 1.0 * EscalaSalida * milimetroPorTwip, 20, 1e-12);
    EXPECT_NEAR(1000 * 0.25 * EscalaSalida * milimetroPorTwip, 5, 1e-12);
}
