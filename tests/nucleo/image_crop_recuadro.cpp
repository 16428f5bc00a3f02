#include "apoyo/prueba_salida.h"
#include "output/image_crop.h"

using namespace bosquel;
using namespace bosquel::apoyo;
using enum EstadoRecuadro;

namespace {

using ImageCropPuntero = PruebaSalida;

}  // namespace

TEST_F(ImageCropPuntero, UnRecuadroVaDePulsarASoltar) {
    ventana().pulsar(1500, 1500);
    EXPECT_EQ(estado(), Nuevo);
    ventana().mover(izquierdo, 3000, 2400);
    // The first move already draws.
    EXPECT_EQ(estado(), Seguir);
    EXPECT_EQ(forma(), (Recuadro{1500, 1500, 1500, 900}));
    ventana().mover(izquierdo, 4500, 3000);
    EXPECT_EQ(estado(), Seguir);
    ventana().soltar();
    EXPECT_EQ(estado(), Terminado);
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}}));
    EXPECT_EQ(plataforma.turnos, 0);
}

TEST_F(ImageCropPuntero, SoloElBotonIzquierdoSoloMueve) {
    ventana().pulsar(1500, 1500);
    for (const unsigned botones : {0U, derecho, central, izquierdo | derecho, izquierdo | central})
        ventana().mover(botones, 3000, 3000);
    EXPECT_EQ(estado(), Nuevo);
    EXPECT_EQ(forma(), Recuadro());
    ventana().mover(izquierdo, 3000, 3000);
    EXPECT_EQ(estado(), Seguir);
}

TEST_F(ImageCropPuntero, ElRecuadroHechoSeMueveYSeCopiaDeNuevo) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(2000, 2000);
    EXPECT_EQ(estado(), Mover);
    ventana().mover(izquierdo, 2000, 2000);
    ventana().mover(izquierdo, 2300, 2600);
    EXPECT_EQ(estado(), Mover);
    ventana().soltar();
    EXPECT_EQ(forma(), (Recuadro{1800, 2100, 3000, 1500}));
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}, {120, 140, 200, 100}}));
}

TEST_F(ImageCropPuntero, PulsarYSoltarDentroRepiteLaCopia) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(2000, 2000);
    ventana().soltar();
    EXPECT_EQ(lienzo.areas, (std::vector{AreaSalida{100, 100, 200, 100}, {100, 100, 200, 100}}));
}

TEST_F(ImageCropPuntero, PulsarYSoltarFueraCopiaNada) {
    arrastrar(1500, 1500, 4500, 3000);
    ventana().pulsar(300, 300);
    ventana().soltar();
    EXPECT_TRUE(ventana().recuadro().Visible());
    EXPECT_EQ(lienzo.areas.back().ancho, 0);
    EXPECT_EQ(lienzo.areas.back().alto, 0);
}

TEST_F(ImageCropPuntero, SoltarTerminaDesdeCualquierEstado) {
    ventana().soltar();
    EXPECT_EQ(estado(), Terminado);
    ventana().mover(izquierdo, 3000, 3000);
    EXPECT_EQ(estado(), Terminado);
    EXPECT_EQ(forma(), Recuadro());
}
