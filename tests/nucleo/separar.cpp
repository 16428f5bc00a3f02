#include "apoyo/banco.h"
#include "walls/pared.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

constexpr const char* sinGrupo =
    "La pared seleccionada no pertenece a ningún grupo y por tanto no es posible desagruparla";
constexpr const char* deseaSeguir =
    "Esta acción desagrupará todas las paredes del grupo al que pertenece la pared seleccionada\n\n"
    "¿ Desea seguir adelante ?";

/// Walls 1 and 2 cross and are united into four; wall 5 stands apart.
void ponUnidos(Banco& banco) {
    banco.ponMuro({.inicio = {3000, 4000}, .angulo = 0});
    banco.ponMuro({.inicio = {4000, 5000}, .angulo = 90});
    banco.boton("Union");
    banco.clic(banco.medio(1));
    banco.clic(banco.medio(2));
    banco.ponMuro({.inicio = {3000, 6500}, .angulo = 0});
}

void separa(Banco& banco, int pared) {
    banco.boton("Separar");
    banco.clic(banco.medio(pared));
}

/// The four lines of a wall as its fields alone would have them.
std::array<Segmento, 4> comoNueva(const Pared& pared, double factor) {
    Dibujo dibujo;
    dibujo.FactorZoomActual = factor;
    dibujo.Pared.crear(1) = pared;
    DibujaPared(dibujo, 1, false);
    return dibujo.Pared.en(1)->lineas;
}

}  // namespace

TEST(Separar, UnaParedSinGrupoSeAvisa) {
    Banco banco;
    ponUnidos(banco);
    separa(banco, 5);
    ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_EQ(banco.plataforma.mensajes[0].titulo, "Aviso");
    EXPECT_EQ(banco.plataforma.mensajes[0].texto, sinGrupo);
    EXPECT_EQ(banco.plataforma.mensajes[0].icono, Icono::informacion);
    EXPECT_EQ(banco.plataforma.mensajes[0].botones, Botones::aceptar);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
}

TEST(Separar, PreguntaYNoLoDejaTodoComoEstaba) {
    Banco banco;
    ponUnidos(banco);
    const auto lineas = banco.pared(1).lineas;
    banco.plataforma.respuestas = {Respuesta::no};
    separa(banco, 3);
    ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_EQ(banco.plataforma.mensajes[0].titulo, "Desagrupar Paredes");
    EXPECT_EQ(banco.plataforma.mensajes[0].texto, deseaSeguir);
    EXPECT_EQ(banco.plataforma.mensajes[0].icono, Icono::pregunta);
    EXPECT_EQ(banco.plataforma.mensajes[0].botones, Botones::siNo);
    EXPECT_EQ(banco.pared(1).lineas, lineas);
    EXPECT_EQ(banco.pared(1).NumeroGrupo, 1);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
}

TEST(Separar, CadaPiezaQuedaLibreYRectangularDondeEmpieza) {
    Banco banco;
    ponUnidos(banco);
    std::array<Pared, 4> antes;
    for (int i = 1; i <= 4; ++i)
        antes[static_cast<std::size_t>(i - 1)] = banco.pared(i);
    banco.plataforma.respuestas = {Respuesta::si};
    separa(banco, 3);
    for (int i = 1; i <= 4; ++i) {
        const Pared& pared = banco.pared(i);
        const Pared& anterior = antes[static_cast<std::size_t>(i - 1)];
        EXPECT_EQ(pared.NumeroGrupo, 0);
        EXPECT_TRUE(pared.Visible1);
        EXPECT_TRUE(pared.Visible2);
        EXPECT_EQ(pared.InicialX, anterior.InicialX);
        EXPECT_EQ(pared.InicialY, anterior.InicialY);
        EXPECT_EQ(pared.Longitud, anterior.Longitud);
        EXPECT_EQ(pared.lineas, comoNueva(anterior, banco.dibujo().FactorZoomActual));
        EXPECT_TRUE(pared.lineas[1].Visible);
        EXPECT_TRUE(pared.lineas[3].Visible);
    }
    EXPECT_EQ(banco.dibujo().Pared.contador, 6) << "the pieces stay";
    EXPECT_EQ(banco.dibujo().TotalGrupos, 1);
}

TEST(Separar, LaVentanaSeVaYElMuroQueda) {
    Banco banco;
    banco.ponMuro();
    banco.pared(1).NumeroGrupo = 1;
    banco.dibujo().TotalGrupos = 1;
    banco.dibujo().Ventana.crear(1).NumeroPared = 1;
    banco.dibujo().Ventana.contador = 2;
    const auto lineas = banco.pared(1).lineas;
    banco.plataforma.respuestas = {Respuesta::si};
    separa(banco, 1);
    EXPECT_FALSE(banco.dibujo().Ventana.existe(1));
    EXPECT_EQ(banco.pared(1).lineas, lineas);
    EXPECT_EQ(banco.pared(1).NumeroGrupo, 0);
}

TEST(Separar, TrasElloCadaMuroSeArrastraSolo) {
    Banco banco;
    ponUnidos(banco);
    const float x = banco.pared(1).InicialX;
    banco.arrastra(banco.medio(3), {banco.medio(3).x + 100, banco.medio(3).y + 50});
    EXPECT_NE(banco.pared(1).InicialX, x) << "the group moves as one";
    banco.plataforma.respuestas = {Respuesta::si};
    separa(banco, 3);
    const float fijo = banco.pared(1).InicialX;
    banco.arrastra(banco.medio(3), {banco.medio(3).x + 100, banco.medio(3).y + 50});
    EXPECT_EQ(banco.pared(1).InicialX, fijo);
}

}  // namespace bosquel::apoyo
