#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "apoyo/mensajes.h"
#include "walls/pared_prop.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Idioma;

namespace {

struct Escena {
    Dibujo dibujo;

    Escena() {
        dibujo.Pared.crear(1);
        dibujo.Pared.contador = 2;
    }
    Pared& pared() { return *dibujo.Pared.en(1); }
    Pared& modelo() { return dibujo.Pared.modelo(); }
};

const Mensaje preguntaDesagrupar{
    "Aviso",
    "Esta pared pertenece a un grupo y no puede ser editada. Si quiere hacer "
    "modificaciones en la misma primero debe desagruparla.\n¿Desea desagruparla ahora?",
    Icono::pregunta, Botones::siNo};

}  // namespace

TEST(DialogoPared, EnsenaMetrosYGradosSegunElIdioma) {
    for (const auto& [idioma, largo, muro, tabique, x] :
         {std::tuple{Idioma::espanol, "1.234,57", "0,20", "0,10", "2,46"},
          std::tuple{Idioma::ingles, "1,234.57", "0.20", "0.10", "2.46"}}) {
        const Idioma puesto(idioma);
        Escena escena;
        escena.pared().Longitud = 1234567;
        escena.pared().Angulo = -17;
        escena.pared().InicialX = 1234;
        const ParedProp dialogo(escena.dibujo, 1);
        EXPECT_EQ(dialogo.txtLongitud, largo);
        EXPECT_EQ(dialogo.TxtAnchoMuro, muro);
        EXPECT_EQ(dialogo.TxtAnchoTabique, tabique);
        EXPECT_EQ(dialogo.TxtAngulo, "-17");
        EXPECT_EQ(dialogo.TxtInicialX, x) << "1,23 divided by 0.5";
        EXPECT_EQ(dialogo.TxtInicialY, "0");
    }
}

TEST(DialogoPared, ElRadioDeSuAnguloSeEnciendeYLosDemasNo) {
    constexpr std::array angulos{90, 75, 60, 45, 30, 15, 0, -15, -30, -45, -60, -75, -90};
    for (int angulo = -100; angulo <= 130; ++angulo) {
        Escena escena;
        escena.pared().Angulo = static_cast<std::int16_t>(angulo);
        const ParedProp dialogo(escena.dibujo, 1);
        const auto lugar = std::find(angulos.begin(), angulos.end(), angulo);
        EXPECT_EQ(dialogo.radioEncendido(), lugar == angulos.end() ? 0 : lugar - angulos.begin() + 1)
            << angulo;
        EXPECT_EQ(dialogo.TxtAngulo, std::to_string(angulo));
    }
}

TEST(DialogoPared, UnClicEnElDialEscribeSuAngulo) {
    Escena escena;
    ParedProp dialogo(escena.dibujo, 1);
    for (const auto& [etiqueta, texto] : {std::pair{1, "90"}, {5, "30"}, {7, "0"}, {8, "-15"}, {13, "-90"}}) {
        dialogo.elegirAngulo(etiqueta);
        EXPECT_EQ(dialogo.radioEncendido(), etiqueta);
        EXPECT_EQ(dialogo.TxtAngulo, texto);
    }
    dialogo.elegirAngulo(0);
    dialogo.elegirAngulo(14);
    EXPECT_EQ(dialogo.radioEncendido(), 13);
}

TEST(DialogoPared, ElTipoDiceQueCajaSePuedeEscribir) {
    struct Caso {
        const char* tipo;
        int radio;
        bool pilar, muro, tabique;
    };
    for (const Caso& caso :
         {Caso{"Muro", 0, false, true, false}, Caso{"Tabique", 1, false, false, true},
          Caso{"otra cosa", 1, false, false, true}, Caso{"Pilar", -1, true, true, false}}) {
        Escena escena;
        escena.pared().Tipo = caso.tipo;
        ParedProp dialogo(escena.dibujo, 1);
        EXPECT_EQ(dialogo.tipo(), caso.radio);
        EXPECT_EQ(dialogo.esPilar(), caso.pilar);
        EXPECT_EQ(dialogo.muroHabilitado(), caso.muro);
        EXPECT_EQ(dialogo.tabiqueHabilitado(), caso.tabique);
        if (caso.pilar) continue;
        dialogo.elegirTipo(1 - caso.radio);
        EXPECT_EQ(dialogo.muroHabilitado(), caso.tabique);
        EXPECT_EQ(dialogo.tabiqueHabilitado(), caso.muro);
    }
}

TEST(DialogoPared, AplicarLlevaLosCamposAlMuroYLoDibuja) {
    Escena escena;
    Pared& pared = escena.pared();
    pared.InicialX = 300;
    pared.InicialY = 400;
    pared.NumeroGrupo = 8;
    ParedProp dialogo(escena.dibujo, 1);
    dialogo.txtLongitud = "2,5";
    dialogo.TxtAnchoMuro = "0.3";
    dialogo.TxtAnchoTabique = "1.000,5";
    dialogo.TxtAngulo = "22,5";
    dialogo.elegirTipo(0);
    dialogo.Aplicar();
    EXPECT_EQ(pared.Longitud, 2500.0);
    EXPECT_EQ(pared.AnchoMuro, 300.0);
    EXPECT_EQ(pared.AnchoTabique, 1000500.0);
    EXPECT_EQ(pared.Angulo, 22);
    EXPECT_EQ(pared.Tipo, "Muro");
    EXPECT_EQ(pared.NumeroGrupo, 0);
    EXPECT_EQ(pared.InicialX, 300.0F);
    EXPECT_EQ(pared.InicialY, 400.0F);
    EXPECT_EQ(pared.Estado, "Edicion");
    EXPECT_TRUE(pared.lineas[0].Visible);
    EXPECT_EQ(pared.ParedPick.BackColor, rojo);
    EXPECT_EQ(escena.modelo().Longitud, 4000.0);
}

TEST(DialogoPared, LoQueNoEsUnNumeroDejaSuCampoComoEstaba) {
    Escena escena;
    ParedProp dialogo(escena.dibujo, 1);
    dialogo.txtLongitud = "";
    dialogo.TxtAnchoMuro = ",";
    dialogo.TxtAnchoTabique = "1e999";
    dialogo.TxtAngulo = "40000";
    dialogo.Aplicar();
    EXPECT_EQ(escena.pared().Longitud, 4000.0);
    EXPECT_EQ(escena.pared().AnchoMuro, 200.0);
    EXPECT_EQ(escena.pared().AnchoTabique, 100.0);
    EXPECT_EQ(escena.pared().Angulo, 0);
}

TEST(DialogoPared, UnCientoVeinteSeTomaTalCual) {
    Escena escena;
    ParedProp dialogo(escena.dibujo, 1);
    dialogo.TxtAngulo = "120";
    dialogo.Aplicar();
    EXPECT_EQ(escena.pared().Angulo, 120);
}

TEST(DialogoPared, UnPilarSaleComoTabiqueDeTrescientos) {
    Banco banco;
    const int pilar = banco.ponMuro({.longitud = "0,30", .boton = "Pilar"});
    EXPECT_EQ(banco.pared(pilar).Tipo, "Tabique");
    Escena escena;
    escena.pared().Tipo = "Pilar";
    escena.pared().AnchoTabique = escena.pared().AnchoMuro = escena.pared().Longitud = 300;
    ParedProp dialogo(escena.dibujo, 1);
    dialogo.TxtAnchoMuro = "0,80";
    dialogo.Aplicar();
    EXPECT_EQ(escena.pared().AnchoMuro, 800.0);
    EXPECT_EQ(escena.pared().ancho(), 300.0) << "the typed width has no effect";
}

TEST(DialogoPared, PredeterminarHaceQueElSiguienteMuroEmpieceAsi) {
    Banco banco;
    banco.enDialogoDePared([](ParedProp& dialogo) {
        dialogo.txtLongitud = "2,50";
        dialogo.TxtAnchoMuro = "0,35";
        dialogo.TxtAngulo = "30";
        dialogo.ChkPredeterminar = true;
        dialogo.Aplicar();
    });
    banco.boton("Muro");
    banco.clic({3000, 3000});
    const Pared& modelo = banco.dibujo().Pared.modelo();
    EXPECT_EQ(modelo.Tipo, "Muro");
    EXPECT_EQ(modelo.InicialX, 0.0F);
    EXPECT_EQ(modelo.NumeroGrupo, 0);
    EXPECT_FALSE(modelo.lineas[0].Visible);
    banco.boton("Tabique");
    const Pared& siguiente = banco.pared(2);
    EXPECT_EQ(siguiente.Longitud, 2500.0);
    EXPECT_EQ(siguiente.AnchoMuro, 350.0);
    EXPECT_EQ(siguiente.AnchoTabique, 100.0);
    EXPECT_EQ(siguiente.Angulo, 30);
    EXPECT_EQ(siguiente.Tipo, "Tabique");
    EXPECT_EQ(siguiente.Estado, "Nuevo");
    banco.boton("Pilar");
    EXPECT_EQ(banco.pared(3).Longitud, 300.0);
    EXPECT_EQ(banco.pared(3).AnchoMuro, 300.0);
    EXPECT_EQ(banco.pared(3).AnchoTabique, 300.0);
    EXPECT_EQ(banco.pared(3).Angulo, 30);
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_EQ(banco.dibujo().Pared.modelo().Longitud, 4000.0);
    EXPECT_EQ(banco.dibujo().Pared.modelo().Tipo, "Tabique");
}

TEST(DialogoPared, CancelarQuitaElMuroNuevoYDejaElViejo) {
    Banco banco;
    banco.boton("Muro");
    banco.clic({3000, 3000});
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.dibujo().Pared.contador, 2);
    const int muro = banco.ponMuro();
    banco.dobleClic(banco.inicial(muro));
    EXPECT_TRUE(banco.dibujo().Pared.existe(muro));
    EXPECT_EQ(banco.pared(muro).Longitud, 4000.0);
}

TEST(DialogoPared, ElDobleClicSoloLoAbreEnModoFlecha) {
    for (const auto& [modo, abre] :
         {std::pair{Modo::Flecha, 1}, {Modo::Aspa, 0}, {Modo::Separar, 0}, {Modo::Pared, 0}}) {
        Banco banco;
        const int muro = banco.ponMuro();
        const int antes = banco.plataforma.dialogosDePared;
        const auto en = banco.inicial(muro);
        banco.dibujo().ModoActual = modo;
        banco.bosquel.dobleClic(en.x, en.y);
        EXPECT_EQ(banco.plataforma.dialogosDePared, antes + abre);
    }
}

TEST(DialogoPared, DeUnGrupoPreguntaYSoloDesagrupaEse) {
    for (const Respuesta respuesta : {Respuesta::si, Respuesta::no}) {
        Banco banco;
        for (const float y : {3000.0F, 6000.0F})
            banco.pared(banco.ponMuro({.inicio = {3000, y}})).NumeroGrupo = 4;
        banco.dibujo().Puerta.crear(1).NumeroPared = 1;
        banco.dibujo().Puerta.crear(2).NumeroPared = 2;
        const int antes = banco.plataforma.dialogosDePared;
        banco.plataforma.respuestas = {respuesta};
        banco.dobleClic(banco.inicial(1));
        apoyo::esperarMensaje(banco.plataforma.mensajes, preguntaDesagrupar);
        const bool si = respuesta == Respuesta::si;
        EXPECT_EQ(banco.plataforma.dialogosDePared, antes + (si ? 1 : 0));
        EXPECT_EQ(banco.pared(1).NumeroGrupo, si ? 0 : 4);
        EXPECT_EQ(banco.pared(2).NumeroGrupo, 4);
        EXPECT_EQ(banco.dibujo().Puerta.existe(1), !si);
        EXPECT_TRUE(banco.dibujo().Puerta.existe(2));
    }
}

TEST(DialogoPared, DeUnMuroQueNoExisteEstaVacioYNoCambiaNada) {
    Escena escena;
    ParedProp dialogo(escena.dibujo, 9);
    EXPECT_EQ(dialogo.TxtAngulo, "");
    dialogo.TxtAngulo = "5";
    dialogo.ChkPredeterminar = true;
    dialogo.Aplicar();
    dialogo.Cancelar();
    EXPECT_EQ(escena.modelo().Angulo, 0);
    EXPECT_TRUE(escena.dibujo.Pared.existe(1));
}

TEST(DialogoPared, ElModeloNoSeEdita) {
    Dibujo dibujo;
    ParedProp dialogo(dibujo, 0);
    dialogo.txtLongitud = "9,00";
    dialogo.Aplicar();
    EXPECT_EQ(dibujo.Pared.modelo().Longitud, 4000);
    EXPECT_FALSE(dibujo.Pared.modelo().lineas[0].Visible);
}

TEST(DialogoPared, AplicarDejaUnEstadoQueNoEsNuevo) {
    Dibujo dibujo;
    dibujo.Pared.crear(1).Estado = "Otro";
    ParedProp(dibujo, 1).Aplicar();
    EXPECT_EQ(dibujo.Pared.en(1)->Estado, "Otro");
}
