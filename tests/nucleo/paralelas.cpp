#include "walls/paralelas.h"

#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "apoyo/uniones_muros.h"
#include "model/polar.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

using Punto1o2 = Paralelas::Punto;

/// A copy of wall 1 at a distance in metres. Gives the copy.
Pared& copia(Dibujo& dibujo, const std::string& distancia, Punto1o2 punto) {
    Paralelas dialogo(dibujo, 1);
    dialogo.TxtDistancia = distancia;
    dialogo.elegido = punto;
    const int indice = dibujo.Pared.contador;
    dialogo.Aplicar();
    return *dibujo.Pared.en(indice);
}

}  // namespace

TEST(Paralelas, AlAbrirMuestraLaUltimaDistanciaYElPrimerLado) {
    const Idioma idioma(Idioma::espanol);
    Dibujo dibujo = planoDe({{1000, 1000}});
    EXPECT_EQ(Paralelas(dibujo, 1).TxtDistancia, "1,00");
    dibujo.DistParalela = 1234.5;
    EXPECT_EQ(Paralelas(dibujo, 1).TxtDistancia, "1.234,50");
    EXPECT_EQ(Paralelas(dibujo, 1).elegido, Punto1o2::Punto1);
}

TEST(Paralelas, ElBocetoVaPorElMedioDelDialogo) {
    Dibujo horizontal = planoDe({{1000, 1000, 0}});
    const Paralelas deCero(horizontal, 1);
    EXPECT_EQ(deCero.Line1(), (Segmento{300, 1000, 1900, 1000, true}));
    EXPECT_EQ(deCero.lugar(Punto1o2::Punto1).Left, 900);
    EXPECT_EQ(deCero.lugar(Punto1o2::Punto1).Top, 1300) << "below, where the width lies";
    EXPECT_EQ(deCero.lugar(Punto1o2::Punto2).Left, 900);
    EXPECT_EQ(deCero.lugar(Punto1o2::Punto2).Top, 300);

    Dibujo vertical = planoDe({{1000, 5000, 90}});
    const Paralelas deNoventa(vertical, 1);
    EXPECT_EQ(deNoventa.Line1(), (Segmento{1100, 1800, 1100, 200, true}));
    EXPECT_EQ(deNoventa.lugar(Punto1o2::Punto1).Left, 1400) << "to the right, where the width lies";
    EXPECT_EQ(deNoventa.lugar(Punto1o2::Punto1).Top, 800);
    EXPECT_EQ(deNoventa.lugar(Punto1o2::Punto2).Left, 400);
}

TEST(Paralelas, ElBocetoDeUnaInclinadaSigueElPasoPolar) {
    for (const int a : {30, 45, -20, -90, 120}) {
        Dibujo dibujo = planoDe({{1000, 1000, a}});
        const Paralelas dialogo(dibujo, 1);
        const Segmento& linea = dialogo.Line1();
        EXPECT_EQ(linea.X1, static_cast<float>(1100.0 - PolarX(0, a, 800)));
        EXPECT_EQ(linea.Y1, static_cast<float>(1000.0 - PolarY(0, a, 800)));
        EXPECT_EQ(linea.X2, PolarX(linea.X1, a, 1600));
        EXPECT_EQ(linea.Y2, PolarY(linea.Y1, a, 1600));
        EXPECT_EQ(dialogo.lugar(Punto1o2::Punto1).Left,
                  static_cast<float>(PolarX(1100, a - 90, 500) - 200.0));
        EXPECT_EQ(dialogo.lugar(Punto1o2::Punto1).Top, static_cast<float>(PolarY(1000, a - 90, 500) - 200.0));
        EXPECT_EQ(dialogo.lugar(Punto1o2::Punto2).Left,
                  static_cast<float>(PolarX(1100, a + 90, 500) - 200.0));
        EXPECT_EQ(dialogo.lugar(Punto1o2::Punto2).Top, static_cast<float>(PolarY(1000, a + 90, 500) - 200.0));
    }
}

TEST(Paralelas, LaDistanciaQuedaLibreEnLosDosLados) {
    Dibujo dibujo = planoDe({{1000, 5000, 0, 4000, 200}});
    EXPECT_EQ(copia(dibujo, "1,5", Punto1o2::Punto1).lineas[0], (Segmento{1000, 6700, 5000, 6700, true}));
    EXPECT_EQ(copia(dibujo, "1,5", Punto1o2::Punto2).lineas[2], (Segmento{1000, 3500, 5000, 3500, true}));
}

TEST(Paralelas, ConDistanciaCeroToca) {
    Dibujo dibujo = planoDe({{1000, 5000, 0, 4000, 200}});
    EXPECT_EQ(copia(dibujo, "0", Punto1o2::Punto1).lineas[0], dibujo.Pared.en(1)->lineas[2]);
}

TEST(Paralelas, LaAnchuraEsLaDelTipoYElZoomCuenta) {
    Dibujo dibujo = planoDe({{1000, 5000, 0, 4000, 200}});
    dibujo.FactorZoomActual = 0.5;
    dibujo.Pared.en(1)->AnchoTabique = 100;
    EXPECT_EQ(copia(dibujo, "1", Punto1o2::Punto1).InicialY, 5600);
    dibujo.Pared.en(1)->Tipo = "Tabique";
    EXPECT_EQ(copia(dibujo, "1", Punto1o2::Punto1).InicialY, 5550);
    dibujo.Pared.en(1)->Tipo = "Pilar";
    const Pared& pilar = copia(dibujo, "1", Punto1o2::Punto1);
    EXPECT_EQ(pilar.InicialY, 5550);
    EXPECT_EQ(pilar.Tipo, "Pilar");
}

TEST(Paralelas, ElDesplazamientoSigueElPasoPolar) {
    for (const int a : {30, -30, 90, -90, 120})
        for (const Punto1o2 punto : {Punto1o2::Punto1, Punto1o2::Punto2}) {
            Dibujo dibujo = planoDe({{3000, 4000, a, 2000, 150}});
            const int direccion = punto == Punto1o2::Punto1 ? a - 90 : a + 90;
            const Pared& nueva = copia(dibujo, "0,75", punto);
            EXPECT_EQ(nueva.InicialX, PolarX(3000, direccion, 900));
            EXPECT_EQ(nueva.InicialY, PolarY(4000, direccion, 900));
            EXPECT_EQ(nueva.Angulo, a);
            EXPECT_EQ(nueva.Longitud, 2000);
        }
}

TEST(Paralelas, LaCopiaEsUnRectanguloLibreAunqueElOriginalEsteUnido) {
    Dibujo dibujo = planoDe({{1000, 5000, 0, 4000, 200}});
    Pared& original = *dibujo.Pared.en(1);
    original.NumeroGrupo = 3;
    original.Visible1 = false;
    original.Visible2 = false;
    original.lineas[2].X1 = 1200;
    ReconstruyePared(dibujo, 1);
    const Pared& nueva = copia(dibujo, "1", Punto1o2::Punto1);
    EXPECT_EQ(nueva.NumeroGrupo, 0);
    EXPECT_EQ(nueva.Estado, estadoEdicion);
    EXPECT_TRUE(nueva.Visible1);
    EXPECT_TRUE(nueva.Visible2);
    EXPECT_EQ(nueva.lineas[2].X1, 1000);
    EXPECT_EQ(original.lineas[2].X1, 1200);
}

TEST(Paralelas, LaCopiaQuedaElegidaYElOriginalNo) {
    Dibujo dibujo = planoDe({{1000, 5000, 0}});
    PintaPinzasPared(dibujo, 1, rojo);
    const Pared& nueva = copia(dibujo, "1", Punto1o2::Punto1);
    EXPECT_EQ(nueva.ParedPick.BackColor, rojo);
    EXPECT_EQ(dibujo.Pared.en(1)->ParedPick.BackColor, blanco);
    EXPECT_EQ(dibujo.IndiceActual, 2);
    EXPECT_EQ(dibujo.Pared.contador, 3);
}

TEST(Paralelas, LaDistanciaSeRecuerdaYUnTextoQueNoEsNumeroEsLaUltima) {
    Dibujo dibujo = planoDe({{1000, 5000, 0, 4000, 200}});
    copia(dibujo, "2.5", Punto1o2::Punto1);
    EXPECT_EQ(dibujo.DistParalela, 2.5);
    for (const char* texto : {"", "ab", ",", "1e999"}) {
        EXPECT_EQ(copia(dibujo, texto, Punto1o2::Punto1).InicialY, 7700) << texto;
        EXPECT_EQ(dibujo.DistParalela, 2.5) << texto;
    }
}

TEST(Paralelas, DeUnMuroQueNoExisteNoHaceNada) {
    Dibujo dibujo = planoDe({{1000, 5000, 0}});
    Paralelas dialogo(dibujo, 9);
    dialogo.Aplicar();
    EXPECT_EQ(dibujo.Pared.contador, 2);
    EXPECT_FALSE(dialogo.Line1().Visible);
}

TEST(Paralelas, SinIndiceParaLaCopiaNoHayCopia) {
    Dibujo dibujo = planoDe({{1000, 5000, 0}});
    dibujo.Pared.contador = 0;
    Paralelas dialogo(dibujo, 1);
    dialogo.Aplicar();
    EXPECT_EQ(dibujo.Pared.ultimo(), 1);
    EXPECT_FALSE(dibujo.Pared.modelo().lineas[0].Visible);
}

TEST(Paralelas, SeAbreAlSoltarEnUnMuro) {
    Banco banco;
    banco.ponMuro({.inicio = {3000, 4000}, .angulo = 0});
    banco.plataforma.alAbrirParalelas = [&](Paralelas& dialogo) {
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
        dialogo.Aplicar();
    };
    banco.boton("Paralela");
    banco.clic(banco.final(1));
    EXPECT_EQ(banco.plataforma.dialogosDeParalelas, 1);
    EXPECT_EQ(banco.pared(2).InicialY, 4600);
    EXPECT_EQ(banco.colorDe(2), rojo);
    EXPECT_EQ(banco.colorDe(1), blanco);
}

TEST(Paralelas, CancelarNoCambiaNada) {
    Banco banco;
    banco.ponMuro();
    banco.plataforma.alAbrirParalelas = [](Paralelas& dialogo) { dialogo.TxtDistancia = "7"; };
    banco.boton("Paralela");
    banco.clic(banco.medio(1));
    EXPECT_EQ(banco.dibujo().Pared.contador, 2);
    EXPECT_EQ(banco.dibujo().DistParalela, 1);
}

}  // namespace bosquel::apoyo
