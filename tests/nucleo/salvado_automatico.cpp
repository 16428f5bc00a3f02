#include "apoyo/banco.h"
#include "drawing/archivo.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;

namespace {

bool salvado(const Banco& banco) {
    return std::filesystem::exists(banco.ruta("AutoSave.bqr"));
}

}  // namespace

TEST(SalvadoAutomatico, LlegaAlQuintoMinutoYVuelveAContar) {
    Banco banco;
    banco.ponMuro();
    banco.minutos(4);
    EXPECT_FALSE(salvado(banco));
    EXPECT_EQ(banco.sesion().MinutosAutoSave, 4);
    banco.minutos(1);
    EXPECT_TRUE(salvado(banco));
    EXPECT_EQ(banco.sesion().MinutosAutoSave, 0);
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    std::filesystem::remove(banco.ruta("AutoSave.bqr"));
    banco.minutos(4);
    EXPECT_FALSE(salvado(banco));
    banco.minutos(1);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, NiTituloNiMensajeYElRelojDeArenaSeQuita) {
    Banco banco;
    banco.plataforma.titulos.clear();
    banco.minutos(5);
    EXPECT_TRUE(banco.plataforma.titulos.empty());
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_TRUE(banco.plataforma.peticiones.empty());
    EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false}));
}

TEST(SalvadoAutomatico, EsperaAQueAcabeLaOrdenEnCurso) {
    Banco banco;
    banco.minutos(4);
    banco.plataforma.respuestas = {Respuesta::no};
    banco.boton("Salir");
    ASSERT_TRUE(banco.sesion().Ocupado);
    banco.plataforma.alCederEventos = [&] {
        EXPECT_FALSE(salvado(banco));
        EXPECT_FALSE(banco.sesion().GuardandoAuto);
        if (banco.plataforma.turnos == 7) CheckAutoSaving(banco.sesion(), false);
    };
    banco.minutos(1);
    EXPECT_EQ(banco.plataforma.turnos, 7);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, UnaOrdenEsperaAQueAcabeElSalvado) {
    Banco banco;
    banco.sesion().GuardandoAuto = true;
    banco.plataforma.alCederEventos = [&] {
        EXPECT_FALSE(banco.sesion().Ocupado);
        if (banco.plataforma.turnos == 3) banco.sesion().GuardandoAuto = false;
    };
    banco.boton("Muro");
    EXPECT_EQ(banco.plataforma.turnos, 3);
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
}

TEST(SalvadoAutomatico, AbrirLaCompuertaNoEspera) {
    Banco banco;
    banco.sesion().GuardandoAuto = true;
    banco.sesion().Ocupado = true;
    CheckAutoSaving(banco.sesion(), false);
    EXPECT_FALSE(banco.sesion().Ocupado);
    EXPECT_EQ(banco.plataforma.turnos, 0);
}

TEST(SalvadoAutomatico, ApagadoConElRelojEnMarchaSalvaCadaMinuto) {
    Banco banco;
    banco.dibujo().AutoSave = 0;
    for (int i = 0; i < 3; ++i) {
        banco.minutos(1);
        EXPECT_TRUE(salvado(banco));
        std::filesystem::remove(banco.ruta("AutoSave.bqr"));
    }
}

TEST(SalvadoAutomatico, SigueEnMarchaConElDialogoDelMuroAbierto) {
    Banco banco;
    banco.enDialogoDePared([&](ParedProp& dialogo) {
        banco.minutos(5);
        dialogo.Aplicar();
    });
    banco.boton("Muro");
    banco.clic({3000, 3000});
    EXPECT_TRUE(salvado(banco));
    EXPECT_TRUE(banco.pared(1).lineas[0].Visible);
}

TEST(SalvadoAutomatico, SeAbreComoCualquierOtroDibujo) {
    Banco banco;
    banco.ponMuro({.angulo = 30});
    banco.minutos(5);
    banco.abre("AutoSave.bqr");
    EXPECT_EQ(banco.pared(1).Angulo, 30);
    EXPECT_EQ(banco.plataforma.titulo(), "AutoSave.bqr - Bosquel Rapiz");
}

TEST(SalvadoAutomatico, NoQuedaNadaMasEnLaCarpeta) {
    Banco banco;
    banco.minutos(5);
    banco.minutos(5);
    EXPECT_EQ(banco.carpeta.cuantos(), 1);
}
