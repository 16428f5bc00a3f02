#include "drawing/opciones.h"

#include "apoyo/banco.h"
#include "apoyo/idioma.h"
#include "drawing/archivo.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Idioma;

namespace {

template <class Mano>
void abrirOpciones(Banco& banco, Mano mano) {
    banco.plataforma.alAbrirOpciones = mano;
    banco.boton("Opciones");
}

}  // namespace

TEST(Opciones, EnsenaLosAjustesEnSusUnidades) {
    for (const auto& [idioma, ancho, paso] :
         {std::tuple{Idioma::espanol, "1.234", "0,10"}, {Idioma::ingles, "1,234", "0.10"}}) {
        const Idioma puesto(idioma);
        Banco banco;
        EXPECT_EQ(Opciones(banco.sesion()).TxtAnchoHoja, "200");
        banco.dibujo().AreaWidth = 123350;
        banco.dibujo().AreaHight = 50;
        banco.dibujo().Iman = true;
        const Opciones dialogo(banco.sesion());
        EXPECT_EQ(dialogo.TxtAnchoHoja, ancho);
        EXPECT_EQ(dialogo.TxtAltoHoja, "1");
        EXPECT_EQ(dialogo.TxtCuadricula, paso);
        EXPECT_TRUE(dialogo.ChkIman);
        EXPECT_FALSE(dialogo.ChkVisible);
        EXPECT_TRUE(dialogo.chkSalvadoAutomatico);
        EXPECT_EQ(dialogo.txtSalvarCadaXmin, "5");
    }
}

TEST(Opciones, ConElSalvadoApagadoEnsenaCinco) {
    Banco banco;
    banco.dibujo().AutoSave = 0;
    const Opciones dialogo(banco.sesion());
    EXPECT_FALSE(dialogo.chkSalvadoAutomatico);
    EXPECT_EQ(dialogo.txtSalvarCadaXmin, "5");
}

TEST(Opciones, AplicarLosLlevaAlDibujoYALaVista) {
    Banco banco;
    banco.boton("Zoom");
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.TxtAnchoHoja = "1.234";
        dialogo.TxtAltoHoja = "50";
        dialogo.TxtCuadricula = "0,25";
        dialogo.ChkIman = dialogo.ChkVisible = true;
        dialogo.txtSalvarCadaXmin = "12";
        dialogo.AplicarValores();
    });
    const Dibujo& dibujo = banco.dibujo();
    EXPECT_EQ(dibujo.AreaWidth, 123400);
    EXPECT_EQ(dibujo.AreaHight, 5000);
    EXPECT_EQ(dibujo.Hoja.Width, 123400.0F);
    EXPECT_EQ(dibujo.Hoja.Height, 5000.0F);
    EXPECT_TRUE(banco.sesion().HScroll1.activa);
    EXPECT_FALSE(banco.sesion().VScroll1.activa);
    EXPECT_EQ(dibujo.Cuadricula, 250.0);
    EXPECT_TRUE(dibujo.Iman);
    EXPECT_TRUE(dibujo.VerCuadricula);
    EXPECT_EQ(banco.sesion().cuadricula.paso, 250);
    EXPECT_EQ(dibujo.AutoSave, 12);
    EXPECT_FALSE(std::filesystem::exists(banco.ruta("Bqr.ini")));
    EXPECT_FALSE(banco.sesion().Ocupado);
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.ChkVisible = false;
        dialogo.AplicarValores();
    });
    EXPECT_FALSE(dibujo.VerCuadricula);
    EXPECT_EQ(banco.sesion().cuadricula.paso, 0);
}

TEST(Opciones, LosMinutosVaciosOACeroSonCinco) {
    for (const auto& [texto, minutos] : {std::pair{"", 5}, {"0", 5}, {"7", 7}, {"00", 0}, {"99999", 9}}) {
        Banco banco;
        banco.dibujo().AutoSave = 9;
        abrirOpciones(banco, [&, tecleado = texto](Opciones& dialogo) {
            dialogo.txtSalvarCadaXmin = tecleado;
            dialogo.AplicarValores();
        });
        EXPECT_EQ(banco.dibujo().AutoSave, minutos) << texto;
    }
}

TEST(Opciones, ElRelojDelSalvadoNoSeTocaAlAplicar) {
    for (const bool marcado : {true, false}) {
        Banco banco(marcado ? "[Smart]\r\nAutoSave=0\r\n" : "");
        const auto antes = banco.plataforma.autoSave;
        EXPECT_EQ(antes, std::vector{!marcado});
        abrirOpciones(banco, [&](Opciones& dialogo) {
            dialogo.chkSalvadoAutomatico = marcado;
            dialogo.AplicarValores();
        });
        EXPECT_EQ(banco.dibujo().AutoSave, marcado ? 5 : 0);
        EXPECT_EQ(banco.plataforma.autoSave, antes);
    }
}

TEST(Opciones, CancelarNoCambiaNada) {
    Banco banco;
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.TxtAnchoHoja = "900";
        dialogo.ChkIman = true;
        EXPECT_TRUE(banco.sesion().Ocupado);
    });
    EXPECT_EQ(banco.dibujo().AreaWidth, 20000);
    EXPECT_FALSE(banco.dibujo().Iman);
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Opciones, PredeterminarAplicaYEscribeLasSeisClaves) {
    const Idioma idioma(Idioma::espanol);
    Banco banco;
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.TxtAnchoHoja = "300";
        dialogo.TxtCuadricula = "0,1255";
        dialogo.ChkIman = true;
        dialogo.Predeterminar();
    });
    EXPECT_EQ(banco.dibujo().AreaWidth, 30000);
    EXPECT_TRUE(banco.dibujo().Iman) << "applied, though the dialog was cancelled afterwards";
    EXPECT_EQ(banco.bytes("Bqr.ini"),
              "[PaperSize]\r\nAreaHight=20000\r\nAreaWidth=30000\r\n\r\n"
              "[Smart]\r\nGrid=125,5\r\nSnap=Verdadero\r\nGridView=Falso\r\nAutoSave=5\r\n");
}

TEST(Opciones, RestablecerNoEscalaNadaHastaAplicar) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.boton("Zoom");
    banco.dibujo().AreaWidth = 7;
    banco.dibujo().Iman = true;
    banco.dibujo().AutoSave = 0;
    const Pared antes = banco.pared(muro);
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.Restablecer();
        EXPECT_EQ(dialogo.TxtAnchoHoja, "200");
        EXPECT_FALSE(dialogo.ChkIman);
        EXPECT_TRUE(dialogo.chkSalvadoAutomatico);
    });
    EXPECT_EQ(banco.dibujo().FactorZoomActual, 0.5);
    EXPECT_EQ(banco.dibujo().AreaWidth, 20000);
    EXPECT_EQ(banco.dibujo().AutoSave, 5);
    EXPECT_EQ(banco.hoja().Width, 20000.0F) << "the view still stands at the other factor";
    EXPECT_EQ(banco.pared(muro).lineas, antes.lineas);
    EXPECT_EQ(banco.sesion().regla.FactorZoom, 1.0);
    banco.boton("Zoom");
    EXPECT_EQ(banco.dibujo().FactorZoomActual, 1.0);
    EXPECT_EQ(banco.pared(muro).InicialX, antes.InicialX * 2);
}

TEST(Opciones, LoAplicadoSinPredeterminarSePierdeConNuevo) {
    Banco banco;
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.TxtAnchoHoja = "300";
        dialogo.ChkIman = true;
        dialogo.AplicarValores();
    });
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_EQ(banco.dibujo().AreaWidth, 20000);
    EXPECT_FALSE(banco.dibujo().Iman);
    EXPECT_EQ(banco.hoja().Width, 10000.0F);
}

TEST(Opciones, UnCampoQueNoEsUnNumeroDejaSuValor) {
    Banco banco;
    abrirOpciones(banco, [&](Opciones& dialogo) {
        dialogo.TxtAnchoHoja = "";
        dialogo.TxtAltoHoja = "99999999999";
        dialogo.TxtCuadricula = ",";
        dialogo.AplicarValores();
    });
    EXPECT_EQ(banco.dibujo().AreaWidth, 20000);
    EXPECT_EQ(banco.dibujo().AreaHight, 20000);
    EXPECT_EQ(banco.dibujo().Cuadricula, 100.0);
}
