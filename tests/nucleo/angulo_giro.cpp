#include "stairs_symbols/angulo_giro.h"

#include "apoyo/idioma.h"

#include <gtest/gtest.h>
#include <utility>

using namespace bosquel;
using apoyo::Idioma;

namespace {

AnguloGiro con(const char* texto) {
    AnguloGiro angulo;
    angulo.escribir(texto);
    return angulo;
}

std::string girado(const char* texto, int boton) {
    AnguloGiro angulo = con(texto);
    angulo.cmd90Plus(boton);
    return angulo.TxtAngulo();
}

}  // namespace

TEST(AnguloGiro, ElDialTieneVeinticuatroRadiosDeQuinceEnQuinceGrados) {
    EXPECT_EQ(AnguloGiro::radios, 24);
    for (int radio = 1; radio <= 24; ++radio) {
        EXPECT_EQ(AnguloGiro::direccion(radio), 15 * (radio - 1));
        EXPECT_EQ(AnguloGiro::EtiquetaAngulo(radio), std::to_string(15 * (radio - 1)) + "º");
    }
}

TEST(AnguloGiro, UnClicEscribeElRotuloSinSuUltimoCaracterYLoEnciende) {
    AnguloGiro angulo;
    for (int radio = 1; radio <= 24; ++radio) {
        angulo.elegirRadio(radio);
        EXPECT_EQ(angulo.TxtAngulo() + "º", AnguloGiro::EtiquetaAngulo(radio));
        EXPECT_EQ(angulo.radioEncendido(), radio);
    }
    for (const int ninguno : {0, 25, -1}) {
        angulo.elegirRadio(ninguno);
        EXPECT_EQ(angulo.TxtAngulo(), "345");
    }
}

TEST(AnguloGiro, SoloSeEnciendeElRadioDeLoQueDiceElTexto) {
    for (const auto& [texto, radio] : {std::pair{"0", 1}, {"345", 24}, {"20", 0}, {"360", 0}, {"", 0}})
        EXPECT_EQ(con(texto).radioEncendido(), radio) << texto;
}

TEST(AnguloGiro, MasDeTrescientosSesentaSonTrescientosSesenta) {
    for (const auto& [tecleado, queda] : {std::pair{"361", "360"},
                                          {"360,01", "360"},
                                          {"360", "360"},
                                          {"99999999", "360"},
                                          {"359,5", "359,5"},
                                          {"", ""},
                                          {",", ","},
                                          {"-30", "-30"}})
        EXPECT_EQ(con(tecleado).TxtAngulo(), queda);
}

TEST(AnguloGiro, ElBotonCeroRestaNoventaYAlPasarDelCeroDaLaVuelta) {
    const Idioma idioma(Idioma::espanol);
    for (const auto& [antes, despues] : {std::pair{"360", "270"},
                                         {"90", "0"},
                                         {"89", "359"},
                                         {"0", "270"},
                                         {"30", "300"},
                                         {"22,5", "292,5"},
                                         {"-30", "240"}})
        EXPECT_EQ(girado(antes, 0), despues) << antes;
}

TEST(AnguloGiro, ElBotonUnoSumaNoventaYSoloPasandoDeLaVueltaEmpiezaOtra) {
    const Idioma idioma(Idioma::espanol);
    for (const auto& [antes, despues] : {std::pair{"270", "360"},
                                         {"300", "30"},
                                         {"0", "90"},
                                         {"360", "90"},
                                         {"271", "1"},
                                         {"22,5", "112,5"}})
        EXPECT_EQ(girado(antes, 1), despues) << antes;
}

TEST(AnguloGiro, UnaCajaVaciaCuentaComoCero) {
    EXPECT_EQ(girado("", 0), "270");
    EXPECT_EQ(girado("", 1), "90");
    EXPECT_EQ(AnguloGiro().grados(), 0.0);
}

TEST(AnguloGiro, LoQueNoEsUnNumeroNoDaGradosNiSeGira) {
    EXPECT_EQ(con(",").grados(), std::nullopt);
    EXPECT_EQ(girado(",", 0), ",");
}

TEST(AnguloGiro, LaComaYElPuntoSonDecimalesEnCualquierIdioma) {
    for (const auto& [nombre, girado22] : {std::pair{Idioma::espanol, "112,5"}, {Idioma::ingles, "112.5"}}) {
        const Idioma idioma(nombre);
        for (const char* texto : {"22,5", "22.5"}) {
            EXPECT_EQ(con(texto).grados(), 22.5);
            EXPECT_EQ(girado(texto, 1), girado22);
        }
    }
}
