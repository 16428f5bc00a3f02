#include "apoyo/banco.h"
#include "apoyo/dibujo_guardado.h"
#include "apoyo/disco_dificil.h"
#include "drawing/archivo.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

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

TEST(SalvadoAutomatico, EsperaAQueAcabeLaOrdenEnCursoYSeHaceUnaVez) {
    Banco banco;
    banco.minutos(4);
    banco.plataforma.respuestas = {Respuesta::no};
    banco.boton("Salir");
    ASSERT_TRUE(banco.sesion().Ocupado);
    banco.minutos(3);
    EXPECT_FALSE(salvado(banco));
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    EXPECT_EQ(banco.plataforma.turnos, 0) << "nothing stands still meanwhile";
    banco.boton("Zoom");
    EXPECT_TRUE(salvado(banco));
    EXPECT_EQ(banco.sesion().MinutosAutoSave, 0);
    std::filesystem::remove(banco.ruta("AutoSave.bqr"));
    banco.boton("Zoom");
    EXPECT_FALSE(salvado(banco));
}

TEST(SalvadoAutomatico, GuardaLoQueLaOrdenHaDejado) {
    Banco banco;
    banco.minutos(4);
    banco.enDialogoDePared([](ParedProp& dialogo) { dialogo.Aplicar(); });
    banco.plataforma.alPreguntar = [&](const Mensaje&) {
        banco.minutos(1);
        EXPECT_FALSE(salvado(banco)) << "the question stands inside the gate";
        return Respuesta::si;
    };
    banco.boton("Muro");
    banco.clic({3000, 3000});
    banco.boton("Nuevo");
    EXPECT_TRUE(salvado(banco));
    EXPECT_EQ(apoyo::valor(banco.lineas("AutoSave.bqr"), "Cabecera", "NumPared"), "1");
}

TEST(SalvadoAutomatico, ConLosAjustesAbiertosSeHaceAlCerrarlos) {
    Banco banco;
    banco.plataforma.alAbrirOpciones = [&](Opciones& dialogo) {
        banco.minutos(6);
        EXPECT_FALSE(salvado(banco));
        dialogo.chkSalvadoAutomatico = false;
        dialogo.AplicarValores();
    };
    banco.boton("Opciones");
    EXPECT_TRUE(salvado(banco)) << "it was due before it was turned off";
}

TEST(SalvadoAutomatico, EnMedioDeAbrirEsperaAQueElDibujoEsteEntero) {
    Banco banco;
    banco.ponMuro();
    banco.guarda("muro.bqr");
    banco.minutos(4);
    banco.plataforma.alCederEventos = [&] {
        banco.plataforma.alCederEventos = nullptr;
        banco.minutos(1);
        EXPECT_FALSE(salvado(banco));
    };
    banco.pon("cuadricula.bqr", banco.bytes("muro.bqr")
                                    .replace(banco.bytes("muro.bqr").find("VerCuadricula=Falso"), 19,
                                             "VerCuadricula=Verdadero"));
    banco.abre("cuadricula.bqr");
    EXPECT_TRUE(salvado(banco));
    EXPECT_FALSE(apoyo::seccion(banco.lineas("AutoSave.bqr"), "Pared(1)").empty());
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

TEST(SalvadoAutomatico, ElPlazoEsElDeLosAjustes) {
    Banco banco("[Smart]\r\nAutoSave=2\r\n");
    EXPECT_TRUE(banco.plataforma.autoSaveActivo());
    banco.minutos(1);
    EXPECT_FALSE(salvado(banco));
    banco.minutos(1);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, ConCeroElRelojNoAndaHastaQueOtroDibujoLoEnciende) {
    Banco banco("[Smart]\r\nAutoSave=0\r\n");
    EXPECT_FALSE(banco.plataforma.autoSaveActivo());
    banco.plataforma.alAbrirOpciones = [](Opciones& dialogo) {
        dialogo.chkSalvadoAutomatico = true;
        dialogo.txtSalvarCadaXmin = "3";
        dialogo.Predeterminar();
    };
    banco.boton("Opciones");
    EXPECT_EQ(banco.dibujo().AutoSave, 3);
    EXPECT_FALSE(banco.plataforma.autoSaveActivo()) << "the settings leave the timer alone";
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_TRUE(banco.plataforma.autoSaveActivo());
    banco.minutos(3);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, ApagadoEnLosAjustesElRelojSigueHastaElSiguienteDibujo) {
    Banco banco;
    banco.plataforma.alAbrirOpciones = [](Opciones& dialogo) {
        dialogo.chkSalvadoAutomatico = false;
        dialogo.Predeterminar();
    };
    banco.boton("Opciones");
    EXPECT_TRUE(banco.plataforma.autoSaveActivo());
    banco.minutos(1);
    EXPECT_TRUE(salvado(banco));
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_FALSE(banco.plataforma.autoSaveActivo());
}

TEST(SalvadoAutomatico, EnUnaCarpetaDeSoloLecturaNoPasaNada) {
    Banco banco;
    banco.ponMuro();
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms{0555});
    {
        const apoyo::SinPrivilegios nadie;
        banco.minutos(5);
    }
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms::owner_all);
    EXPECT_FALSE(salvado(banco));
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
    banco.minutos(5);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, SinLaCarpetaDelProgramaNoPasaNada) {
    Banco banco;
    std::filesystem::remove_all(banco.carpeta.ruta());
    banco.minutos(5);
    EXPECT_FALSE(std::filesystem::exists(banco.carpeta.ruta()));
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    EXPECT_EQ(banco.plataforma.relojesDeArena, (std::vector{true, false}));
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    std::filesystem::create_directory(banco.carpeta.ruta());
    banco.minutos(5);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, EnUnDiscoLlenoSePierdeElAnteriorYElSiguienteSale) {
    Banco banco;
    banco.minutos(5);
    ASSERT_TRUE(salvado(banco));
    {
        const apoyo::DiscoLleno lleno(100);
        banco.minutos(5);
    }
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    banco.minutos(5);
    EXPECT_TRUE(salvado(banco));
}

TEST(SalvadoAutomatico, LaBanderaBajaAunqueAlgoSeRompa) {
    Banco banco;
    banco.minutos(5);
    banco.plataforma.alCederEventos = [] { throw std::runtime_error("no turn"); };
    EXPECT_THROW(banco.minutos(5), std::runtime_error);
    EXPECT_FALSE(banco.sesion().GuardandoAuto);
    EXPECT_FALSE(banco.plataforma.relojDeArena());
    banco.plataforma.alCederEventos = nullptr;
    banco.boton("Zoom");
    EXPECT_EQ(banco.plataforma.turnos, 0) << "no command waits for a save that is over";
}

TEST(SalvadoAutomatico, SoloElPrimerTurnoDejaEsperandoAlUsuario) {
    Banco banco;
    banco.minutos(5);
    banco.plataforma.esperas.clear();
    std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms{0555});
    std::optional<apoyo::SinPrivilegios> nadie(std::in_place);
    banco.plataforma.alCederEventos = [&] {
        if (banco.plataforma.turnos < 3) return;
        nadie.reset();
        std::filesystem::permissions(banco.carpeta.ruta(), std::filesystem::perms::owner_all);
    };
    banco.minutos(5);
    EXPECT_EQ(banco.plataforma.esperas,
              (std::vector{Espera::sinEntrada, Espera::completa, Espera::completa, Espera::completa}));
    EXPECT_TRUE(salvado(banco));
}
