#include "drawing/principal.h"

#include "apoyo/banco.h"
#include "apoyo/mensajes.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::esperarMensaje;

namespace {

const Mensaje preguntaNuevo{
    "Aviso", "Esta orden borrará todo el contenido actual del área de dibujo\n¿Desea continuar",
    Icono::pregunta, Botones::siNo};
const Mensaje preguntaSalir{
    "Salir del programa",
    "Si sale del programa sin guardar los datos se perderán\n\n¿Desea abandonar el programa ahora?",
    Icono::pregunta, Botones::siNo};
const Mensaje preguntaGrupo{
    "Eliminar Pared",
    "La última pared seleccionada pertenece a un grupo\n\n¿ Desea eliminar todas las paredes del grupo ?",
    Icono::pregunta, Botones::siNoCancelar};

/// Walls 1, 2 and 3, of which 1 and 3 make group 5; wall 1 is selected.
struct BancoConGrupo : Banco {
    BancoConGrupo() {
        for (const float y : {2000.0F, 4000.0F, 6000.0F})
            ponMuro({.inicio = {3000, y}});
        pared(1).NumeroGrupo = 5;
        pared(3).NumeroGrupo = 5;
        clic(inicial(1));
    }
    std::array<bool, 3> hay() {
        return {dibujo().Pared.existe(1), dibujo().Pared.existe(2), dibujo().Pared.existe(3)};
    }
};

}  // namespace

TEST(Principal, LosBotonesTienenSuLugarYSuRotulo) {
    constexpr std::array<std::string_view, 11> rotulos{"Nuevo",    "Abrir",   "Guardar",  "Ayuda",
                                                       "Zoom",     "Definir", "Opciones", "Eliminar",
                                                       "Imprimir", "Salir",   "Colores"};
    for (std::size_t i = 0; i < rotulos.size(); ++i)
        EXPECT_EQ(BttPrincipal[i], rotulos[i]);
    EXPECT_EQ(static_cast<int>(Principal::Zoom), 4);
    EXPECT_EQ(static_cast<int>(Principal::Colores), 10);
}

TEST(Nuevo, ContestadoQueSiVaciaElDibujo) {
    Banco banco("[PaperSize]\r\nAreaWidth=30000\r\n");
    banco.ponMuro();
    banco.boton("Zoom");
    banco.dibujo().AreaWidth = 99;
    banco.dibujo().TotalGrupos = 9;
    banco.dibujo().DistParalela = 4;
    banco.plataforma.titulos.clear();
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    esperarMensaje(banco.plataforma.mensajes, preguntaNuevo);
    EXPECT_EQ(banco.plataforma.titulos, std::vector<std::string>{"Nuevo.bqr - Bosquel Rapiz"});
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.dibujo().Pared.contador, 1);
    EXPECT_EQ(banco.dibujo().FactorZoomActual, 0.5);
    EXPECT_EQ(banco.dibujo().AreaWidth, 30000);
    EXPECT_EQ(banco.hoja().Width, 15000.0F);
    EXPECT_EQ(banco.dibujo().TotalGrupos, 0);
    EXPECT_EQ(banco.dibujo().DistParalela, 1.0);
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Nuevo, ContestadoQueNoDejaElDibujoPeroElMuroQueEsperabaYaNoEsta) {
    Banco banco;
    banco.ponMuro();
    banco.boton("Muro");
    banco.plataforma.titulos.clear();
    banco.plataforma.respuestas = {Respuesta::no};
    banco.boton("Nuevo");
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
    EXPECT_FALSE(banco.dibujo().Pared.existe(2));
    EXPECT_EQ(banco.dibujo().Pared.contador, 3);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_TRUE(banco.plataforma.titulos.empty());
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Nuevo, LaCompuertaEstaCerradaMientrasPregunta) {
    Banco banco;
    banco.plataforma.alPreguntar = [&](const Mensaje&) {
        EXPECT_TRUE(banco.sesion().Ocupado);
        return Respuesta::no;
    };
    banco.boton("Nuevo");
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Salir, ContestadoQueSiTerminaSinGuardar) {
    Banco banco;
    banco.ponMuro();
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Salir");
    esperarMensaje(banco.plataforma.mensajes, preguntaSalir);
    EXPECT_TRUE(banco.plataforma.terminado);
    EXPECT_TRUE(banco.plataforma.peticiones.empty());
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
}

TEST(Salir, TampocoSalvaPorElCaminoElMinutoQueLlegaDuranteLaPregunta) {
    Banco banco;
    banco.ponMuro();
    banco.minutos(4);
    banco.plataforma.alPreguntar = [&](const Mensaje&) {
        banco.minutos(1);
        return Respuesta::si;
    };
    banco.boton("Salir");
    EXPECT_TRUE(banco.plataforma.terminado);
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
}

TEST(Salir, ContestadoQueNoDejaLaCompuertaCerradaHastaLaOrdenSiguiente) {
    Banco banco;
    banco.plataforma.respuestas = {Respuesta::no};
    banco.boton("Salir");
    EXPECT_FALSE(banco.plataforma.terminado);
    EXPECT_TRUE(banco.sesion().Ocupado);
    banco.boton("Zoom");
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Salir, LaCajaDeCierreTerminaSinPreguntar) {
    Banco banco;
    banco.ponMuro();
    banco.bosquel.cerrar();
    EXPECT_TRUE(banco.plataforma.terminado);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_EQ(banco.carpeta.cuantos(), 0);
}

TEST(Eliminar, QuitaElMuroSeleccionadoYElContadorSigue) {
    Banco banco;
    banco.ponMuro();
    const int dos = banco.ponMuro({.inicio = {3000, 6000}});
    banco.clic(banco.inicial(dos));
    banco.boton("Eliminar");
    EXPECT_FALSE(banco.dibujo().Pared.existe(dos));
    EXPECT_EQ(banco.dibujo().Pared.contador, 3);
    EXPECT_EQ(banco.dibujo().IndiceActual, dos);
    banco.boton("Eliminar");
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.ponMuro({.inicio = {3000, 6000}}), 3) << "the freed index is not used again";
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST(Eliminar, DeUnGrupoPregunta) {
    for (const auto& [respuesta, hay] : {std::pair{Respuesta::si, std::array{false, true, false}},
                                         {Respuesta::no, {false, true, true}},
                                         {Respuesta::cancelar, {true, true, true}}}) {
        BancoConGrupo banco;
        banco.plataforma.respuestas = {respuesta};
        banco.boton("Eliminar");
        esperarMensaje(banco.plataforma.mensajes, preguntaGrupo);
        EXPECT_EQ(banco.hay(), hay);
        if (banco.dibujo().Pared.existe(3)) {
            EXPECT_EQ(banco.pared(3).NumeroGrupo, 5);
        }
        EXPECT_EQ(banco.dibujo().Pared.contador, 4);
    }
}

TEST(Suprimir, HaceLoMismoQueElBoton) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.clic(banco.inicial(muro));
    banco.suprimir();
    EXPECT_FALSE(banco.dibujo().Pared.existe(muro));
    banco.suprimir();
    banco.clic({200, 200});
    banco.suprimir();
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_FALSE(banco.sesion().Ocupado);
}

TEST(Suprimir, SinNadaSeleccionadoSoloOcultaElMarco) {
    Banco banco;
    const int muro = banco.ponMuro();
    const int silla = banco.crea(Clase::MblSilla);
    banco.guarda("antes");
    banco.clic({6000, 9000});
    banco.sesion().RectSel.Visible = true;
    banco.suprimir();
    EXPECT_FALSE(banco.marco().Visible);
    EXPECT_TRUE(banco.dibujo().Pared.existe(muro));
    EXPECT_TRUE(banco.dibujo().MblSilla.existe(silla));
    banco.guarda("despues");
    EXPECT_EQ(banco.bytes("antes.bqr"), banco.bytes("despues.bqr"));
}

TEST(Definir, AbreElDialogoDelMuroActualYNingunoSiSePulsoLaHoja) {
    Banco banco;
    banco.boton("Definir");
    const int muro = banco.ponMuro();
    const int antes = banco.plataforma.dialogosDePared;
    banco.clic(banco.inicial(muro));
    banco.boton("Definir");
    EXPECT_EQ(banco.plataforma.dialogosDePared, antes + 1);
    banco.clic({200, 200});
    banco.boton("Definir");
    EXPECT_EQ(banco.plataforma.dialogosDePared, antes + 1);
}

TEST(MuroPendiente, ElUltimoQueHayaYNoElQueSeCreo) {
    Banco banco;
    banco.boton("Muro");
    banco.boton("Tabique");
    banco.boton("Zoom");
    EXPECT_TRUE(banco.dibujo().Pared.existe(1));
    EXPECT_FALSE(banco.dibujo().Pared.existe(2));
    banco.boton("Zoom");
    EXPECT_TRUE(banco.dibujo().Pared.existe(1)) << "in mode Aspa nothing waits";
    banco.dibujo().ModoActual = Modo::Ventana;
    banco.boton("Zoom");
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
    banco.dibujo().ModoActual = Modo::Ventana;
    banco.boton("Zoom");
    EXPECT_TRUE(banco.dibujo().Pared.existe(0)) << "the model is no wall that waits";
    EXPECT_EQ(banco.dibujo().Pared.contador, 3);
}

TEST(MuroPendiente, LaVentanaQueEsperaSeQueda) {
    Banco banco;
    banco.dibujo().Ventana.crear(1);
    banco.dibujo().Ventana.contador = 2;
    banco.dibujo().ModoActual = Modo::Ventana;
    banco.boton("Zoom");
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.dibujo().Ventana.en(1)->Estado, "Nuevo");
}

TEST(Ayuda, PideElManualDeLaCarpetaDelProgramaYVuelveAAbrirLaCompuerta) {
    Banco banco;
    banco.boton("Ayuda");
    EXPECT_EQ(banco.plataforma.ayudas, std::vector<std::filesystem::path>{banco.ruta("Bosquel.chm")});
    EXPECT_FALSE(banco.sesion().Ocupado);
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST(Ayuda, TerminaComoTodoBotonPrincipalLaOrdenAMedias) {
    Banco banco;
    banco.boton("Muro");
    banco.boton("Ayuda");
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_FALSE(banco.dibujo().Pared.existe(1));
    EXPECT_EQ(banco.plataforma.ayudas.size(), 1U);
}
