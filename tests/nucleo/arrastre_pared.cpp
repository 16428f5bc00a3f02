#include "apoyo/banco.h"
#include "model/numeros.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

Punto mas(Punto a, float dx, float dy) {
    return {a.x + dx, a.y + dy};
}

Segmento corrido(const Segmento& s, float dx, float dy) {
    return {s.X1 + dx, s.Y1 + dy, s.X2 + dx, s.Y2 + dy, s.Visible};
}

/// All lines of a wall that lay on whole units have moved by the same step, and the fields with them.
void esperarCorrida(const Pared& ahora, const Pared& antes, float dx, float dy) {
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(ahora.lineas[i], corrido(antes.lineas[i], dx, dy)) << i;
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(ahora.pinzas()[i]->Left, antes.pinzas()[i]->Left + dx) << i;
        EXPECT_EQ(ahora.pinzas()[i]->Top, antes.pinzas()[i]->Top + dy) << i;
    }
    EXPECT_EQ(ahora.InicialX, antes.InicialX + dx);
    EXPECT_EQ(ahora.InicialY, antes.InicialY + dy);
    EXPECT_EQ(ahora.Linea1X2, antes.Linea1X2 + dx);
    EXPECT_EQ(ahora.Linea3Y1, antes.Linea3Y1 + dy);
    EXPECT_EQ(ahora.Longitud, antes.Longitud);
    EXPECT_EQ(ahora.Angulo, antes.Angulo);
}

constexpr auto deInicial = &Banco::inicial, deFinal = &Banco::final, deMedio = &Banco::medio;
constexpr std::array pinzas{deInicial, deFinal, deMedio};

}  // namespace

TEST(Arrastre, CualquierPinzaMueveTodoElMuroYNoLoEstira) {
    for (const auto pinza : pinzas) {
        Banco banco;
        const int muro = banco.ponMuro();
        const Pared antes = banco.pared(muro);
        const Punto de = (banco.*pinza)(muro);
        banco.arrastra(de, mas(de, 740, -330));
        esperarCorrida(banco.pared(muro), antes, 740, -330);
        EXPECT_EQ(banco.colorDe(muro), rojo);
    }
}

TEST(Arrastre, LaPinzaArrastradaQuedaBajoElPuntero) {
    for (const auto pinza : pinzas)
        for (const int angulo : {-71, -45, 13, 38, 67}) {
            Banco banco;
            const int muro =
                banco.ponMuro({.inicio = {4000.3F, 5000.7F}, .angulo = angulo, .longitud = "3,17"});
            const auto cual =
                static_cast<std::size_t>(std::find(pinzas.begin(), pinzas.end(), pinza) - pinzas.begin());
            const Pinza& arrastrada = *banco.pared(muro).pinzas()[cual];
            const Punto de = (banco.*pinza)(muro);
            banco.mueve(de);
            banco.pulsa(de);
            const auto agarre = banco.dibujo().arrastre;
            for (const Punto a : {mas(de, 0.1F, 3700.9F), mas(de, 1234.56F, 1.5F)}) {
                const float x = a.x - arrastrada.Left, y = a.y - arrastrada.Top;
                const auto left = static_cast<float>(arrastrada.Left + redondear(x) - agarre.AgarreX);
                const auto top = static_cast<float>(arrastrada.Top + redondear(y) - agarre.AgarreY);
                banco.mueve(a);
                EXPECT_EQ(arrastrada.Left, left) << angulo;
                EXPECT_EQ(arrastrada.Top, top) << angulo;
            }
        }
}

TEST(Arrastre, LosDesfasesSeCapturanEnEnterosLaMitadAlPar) {
    Banco banco;
    const int muro = banco.ponMuro({.inicio = {3000.25F, 3000.5F}, .angulo = 90});
    const Pared& pared = banco.pared(muro);
    banco.clic(banco.inicial(muro));
    const auto& lineas = banco.sesion().DesfaseLineas;
    const auto& otras = banco.sesion().DesfaseGrips;
    const Pinza& pinza = pared.ParedPick;
    EXPECT_EQ(lineas[0], redondear(static_cast<double>(pinza.Left) - pared.lineas[0].X1));
    EXPECT_EQ(lineas[1], redondear(static_cast<double>(pinza.Top) - pared.lineas[0].Y1));
    EXPECT_EQ(lineas[4], redondear(static_cast<double>(pinza.Left) - pared.lineas[2].X1));
    EXPECT_EQ(lineas[7], redondear(static_cast<double>(pinza.Top) - pared.lineas[2].Y2));
    EXPECT_EQ(otras[1], redondear(static_cast<double>(pinza.Top) - pared.ParedPickBIS.Top));
    EXPECT_EQ(otras[2], redondear(static_cast<double>(pinza.Left) - pared.ParedPickCentro.Left));
}

TEST(Arrastre, LasTapasSiguenALosLadosYLaEscondidaSigueEscondida) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.pared(muro).lineas[3].Visible = false;
    const Punto de = banco.final(muro);
    banco.arrastra(de, mas(de, 100, 100));
    const Pared& pared = banco.pared(muro);
    EXPECT_FALSE(pared.lineas[3].Visible);
    EXPECT_EQ(pared.lineas[3].X1, pared.lineas[0].X2);
    EXPECT_EQ(pared.lineas[3].X2, pared.lineas[2].X2);
}

TEST(Arrastre, UnMuroDeUnGrupoSeLlevaATodosLosDelGrupo) {
    for (const auto pinza : pinzas) {
        Banco banco;
        for (const float y : {2000.0F, 4000.0F, 6000.0F, 8000.0F})
            banco.ponMuro({.inicio = {3000, y}});
        for (const int muro : {1, 3, 4})
            banco.pared(muro).NumeroGrupo = 7;
        const std::array antes{banco.pared(1), banco.pared(2), banco.pared(3), banco.pared(4)};
        const Punto de = (banco.*pinza)(3);
        banco.arrastra(de, mas(de, -500, 240));
        for (const int muro : {1, 3, 4})
            esperarCorrida(banco.pared(muro), antes[static_cast<std::size_t>(muro) - 1], -500, 240);
        esperarCorrida(banco.pared(2), antes[1], 0, 0);
        EXPECT_EQ(banco.dibujo().GrupoEnMovimiento, 0);
        EXPECT_EQ(banco.modo(), Modo::Flecha);
    }
}

TEST(Arrastre, EnModoParedYEnLosDeEsperaNoSeArrastraNada) {
    for (const Modo modo : {Modo::Pared, Modo::Seleccion, Modo::Separar, Modo::Ventana}) {
        Banco banco;
        const int muro = banco.ponMuro();
        const Pared antes = banco.pared(muro);
        const Punto de = banco.inicial(muro);
        banco.mueve(de);
        banco.dibujo().ModoActual = modo;
        banco.pulsa(de);
        banco.mueve(mas(de, 300, 300));
        esperarCorrida(banco.pared(muro), antes, 0, 0);
        EXPECT_EQ(banco.modo(), modo);
    }
}

TEST(Iman, AlSoltarUnMuroSuInicioVaALaCuadriculaHaciaElCero) {
    struct Caso {
        Punto inicio, esperado;
    };
    for (const auto& [inicio, esperado] :
         {Caso{{3049, 3001}, {3000, 3000}}, Caso{{3050, 3099.75F}, {3050, 3050}},
          Caso{{-149, 3000}, {-100, 3000}}, Caso{{-1, 149}, {0, 100}}}) {
        Banco banco;
        const int muro = banco.ponMuro({.inicio = inicio});
        EXPECT_EQ(banco.pared(muro).InicialX, inicio.x) << "laying does not snap";
        EXPECT_EQ(banco.pared(muro).InicialY, inicio.y);
        banco.dibujo().Iman = true;
        banco.clic(banco.medio(muro));
        EXPECT_EQ(banco.pared(muro).lineas[0].X1, esperado.x);
        EXPECT_EQ(banco.pared(muro).lineas[0].Y1, esperado.y);
        EXPECT_EQ(banco.pared(muro).InicialX, esperado.x);
        EXPECT_EQ(banco.pared(muro).InicialY, esperado.y);
    }
}

TEST(Iman, LlevaElMuroEnteroYSusPinzasAlFrente) {
    Banco banco;
    const int muro = banco.ponMuro({.inicio = {3037, 3012}});
    const int otro = banco.ponMuro({.inicio = {3000, 6000}});
    banco.dibujo().Iman = true;
    const Pared antes = banco.pared(muro);
    banco.clic(banco.final(muro));
    esperarCorrida(banco.pared(muro), antes, -37, -12);
    for (const Pinza* pinza : banco.pared(muro).pinzas())
        for (const Pinza* ajena : banco.pared(otro).pinzas())
            EXPECT_GT(pinza->orden, ajena->orden);
}

TEST(Iman, UnMuroDeUnGrupoYUnImanApagadoNoAjustan) {
    for (const bool iman : {false, true}) {
        Banco banco;
        const int muro = banco.ponMuro({.inicio = {3037, 3012}});
        banco.dibujo().Iman = iman;
        banco.pared(muro).NumeroGrupo = iman ? 4 : 0;
        banco.clic(banco.final(muro));
        EXPECT_EQ(banco.pared(muro).InicialX, 3037.0F);
        EXPECT_EQ(banco.pared(muro).InicialY, 3012.0F);
    }
}

TEST(Iman, NoActuaDuranteElArrastreSinoAlSoltar) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.dibujo().Iman = true;
    const Punto de = banco.inicial(muro);
    banco.mueve(de);
    banco.pulsa(de);
    banco.mueve(mas(de, 49, 51));
    EXPECT_EQ(banco.pared(muro).InicialX, 3049.0F);
    banco.suelta(mas(de, 49, 51));
    EXPECT_EQ(banco.pared(muro).InicialX, 3000.0F);
    EXPECT_EQ(banco.pared(muro).InicialY, 3050.0F);
}

TEST(Arrastre, AcabaAlSoltarAunqueOtroBotonHayaPulsadoEnOtraParte) {
    Banco banco;
    const int muro = banco.ponMuro();
    const Punto lejos{6000, 9000};
    banco.mueve(banco.medio(muro));
    banco.pulsa(banco.medio(muro));
    banco.mueve(mas(banco.medio(muro), 300, 0));
    ASSERT_TRUE(banco.pared(muro).EnMovimiento);
    banco.pulsa(lejos);
    banco.suelta(lejos);
    EXPECT_FALSE(banco.pared(muro).EnMovimiento);
    EXPECT_TRUE(banco.sesion().paredesEnMovimiento.empty());
}

TEST(Arrastre, VaciarElDibujoAcabaConElArrastreDeUnMuro) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.guarda("plano.bqr");
    banco.mueve(banco.medio(muro));
    banco.pulsa(banco.medio(muro));
    banco.mueve(mas(banco.medio(muro), 300, 0));
    ASSERT_TRUE(banco.pared(muro).EnMovimiento);
    banco.abre("plano.bqr");
    EXPECT_TRUE(banco.sesion().paredesEnMovimiento.empty()) << "the wall that has its index now stands still";
}

TEST(Arrastre, VaciarElDibujoAcabaConElArrastreDeUnMueble) {
    Banco banco;
    const int silla = banco.crea(Clase::MblSilla);
    banco.guarda("plano.bqr");
    const Situado& elemento = *situado(banco.dibujo(), {Clase::MblSilla, static_cast<std::int16_t>(silla)});
    const Punto sitio{elemento.Left + 60, elemento.Top + 60};
    banco.mueve(sitio);
    banco.pulsa(sitio);
    banco.mueve(mas(sitio, 300, 0));
    ASSERT_TRUE(banco.dibujo().ObjetoEnMovimiento);
    banco.abre("plano.bqr");
    EXPECT_FALSE(banco.dibujo().ObjetoEnMovimiento) << "the chair that has its index now stands still";
}
