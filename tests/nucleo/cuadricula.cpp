#include "apoyo/banco.h"
#include "drawing/vista.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;

TEST(Cuadricula, SeCortaHaciaElCeroYNoALaMasCercana) {
    Dibujo dibujo;
    for (const auto& [valor, esperado] : {std::pair{149.0F, 100.0F},
                                          {-149.0F, -100.0F},
                                          {150.0F, 150.0F},
                                          {49.9F, 0.0F},
                                          {-49.9F, 0.0F},
                                          {0.0F, 0.0F},
                                          {-50.0F, -50.0F},
                                          {10049.5F, 10000.0F}})
        EXPECT_EQ(ajustarACuadricula(dibujo, valor), esperado) << valor;
}

TEST(Cuadricula, UnPasoNuloODescabelladoDejaElValor) {
    Dibujo dibujo;
    for (const double cuadricula : {0.0, 1e-320}) {
        dibujo.Cuadricula = cuadricula;
        EXPECT_EQ(ajustarACuadricula(dibujo, 149), 149.0F);
    }
}

TEST(Cuadricula, SeDibujaConElPasoRedondeado) {
    for (const auto& [cuadricula, paso] :
         {std::pair{100.0, 50}, {101.0, 50}, {103.0, 52}, {1.0, 0}, {0.0, 0}, {-3.0, -2}}) {
        Banco banco;
        banco.dibujo().Cuadricula = cuadricula;
        DibujarCuadricula(banco.sesion());
        EXPECT_EQ(banco.sesion().cuadricula.paso, paso) << cuadricula;
        EXPECT_EQ(banco.sesion().cuadricula.ancho, 10000.0);
        EXPECT_EQ(banco.sesion().cuadricula.alto, 10000.0);
    }
}

TEST(Cuadricula, SoloSeVuelveADibujarCuandoToca) {
    Banco banco("[Smart]\r\nGridView=Verdadero\r\n");
    EXPECT_EQ(banco.sesion().cuadricula.paso, 50);
    banco.dibujo().Cuadricula = 300;
    banco.arrastra({5000, 5000}, {5000, 4000});
    EXPECT_EQ(banco.sesion().cuadricula.paso, 50);
    banco.boton("Zoom");
    EXPECT_EQ(banco.sesion().cuadricula.paso, 300);
    EXPECT_EQ(banco.sesion().cuadricula.ancho, 20000.0);
}

TEST(Cuadricula, SuColorEsElDeSiempre) {
    EXPECT_EQ(colorCuadricula, 0x00FFF0F0);
}
