#include "surface/grabadora.h"
#include "surface/primitivas.h"
#include "walls/pared.h"
#include "walls/trazar_pared.h"

#include <gtest/gtest.h>

using namespace bosquel;

using Trazos = std::vector<std::string>;

TEST(Trazado, UnMuroSonSusCuatroLineasEnOrden) {
    Dibujo dibujo;
    dibujo.Pared.crear(1);
    DibujaPared(dibujo, 1, false);
    Pared& pared = *dibujo.Pared.en(1);
    Grabadora grabadora;
    TrazarPared(grabadora, pared, rojo, 1);
    EXPECT_EQ(grabadora.trazos().size(), 4U);
    EXPECT_EQ(grabadora.trazos()[0], "Line 0 0 2000 0 FF0000");
    EXPECT_TRUE(grabadora.trazos()[2].ends_with(" 50 2000 50 FF0000"));
    pared.Visible2 = false;
    ReconstruyePared(dibujo, 1);
    Grabadora sinTapa;
    TrazarPared(sinTapa, pared, rojo, 1);
    EXPECT_EQ(sinTapa.trazos(), (Trazos{grabadora.trazos().begin(), grabadora.trazos().begin() + 3}));
}

TEST(Trazado, UnMuroQueEsperaSuLugarNoTraza) {
    Grabadora grabadora;
    TrazarPared(grabadora, Pared{}, negro, 1);
    EXPECT_TRUE(grabadora.trazos().empty());
}

TEST(Trazado, LaEscalaSeRedondeaAlGuardarYLoQueNoCabeSeOmite) {
    Grabadora grabadora;
    TrazarSegmento(grabadora, {1, 2, 3, 4}, 0x123456, 0.1);
    TrazarSegmento(grabadora, {1, 2, 3e38F, 4}, negro, 2);
    TrazarSegmento(grabadora, {1, 1, 2, 2}, colorFondoVentana, 0.5);
    EXPECT_EQ(grabadora.trazos(), (Trazos{"Line 0.1 0.2 0.3 0.4 563412", "Line 0.5 0.5 1 1 FFFFFF"}));
}
