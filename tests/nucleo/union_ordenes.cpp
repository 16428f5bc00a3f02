#include "apoyo/banco.h"
#include "apoyo/uniones_de_referencia.h"

#include <gtest/gtest.h>

namespace bosquel::apoyo {

namespace {

constexpr const char* mismoMuro =
    "Para llevar a cabo una unión entre dos muros debe seleccionar muros diferentes";
constexpr const char* noEsquina = "Las líneas señaladas son paralelas y no pueden formar una esquina";
constexpr const char* noUnion =
    "Las líneas señaladas son paralelas y no pueden formar una unión en 'X' o en 'T'";
constexpr const char* deseaEsquina =
    "El encuentro de las paredes seleccionadas no es una unión en 'X' ni una unión en 'T'. ¿Desea realizar "
    "una unión en esquina?";

/// A level wall 1 and an upright wall 2 that cross in their middles.
void ponCruz(Banco& banco) {
    banco.ponMuro({.inicio = {3000, 4000}, .angulo = 0});
    banco.ponMuro({.inicio = {4000, 5000}, .angulo = 90});
}

/// Two walls whose lines meet between them, outside of both.
void ponLejos(Banco& banco) {
    banco.ponMuro({.inicio = {3000, 3000}, .angulo = 30, .longitud = "1,00"});
    banco.ponMuro({.inicio = {6000, 3000}, .angulo = -30, .longitud = "1,00"});
}

void eligeDos(Banco& banco, const char* boton, int uno, int dos) {
    banco.boton(boton);
    banco.clic(banco.medio(uno));
    banco.clic(banco.medio(dos));
}

void esperaMensaje(const Mensaje& mensaje, const char* texto, Icono icono, Botones botones) {
    EXPECT_EQ(mensaje.titulo, "Aviso");
    EXPECT_EQ(mensaje.texto, texto);
    EXPECT_EQ(mensaje.icono, icono);
    EXPECT_EQ(mensaje.botones, botones);
}

class HerramientaDeDos : public testing::TestWithParam<const char*> {
  protected:
    Modo segunda() const { return GetParam() == std::string("Esquina") ? Modo::SegundaPared : Modo::Union2; }
};

}  // namespace

TEST(Relaciones, CadaBotonPoneSuModoYElCursorDeElegir) {
    Banco banco;
    banco.ponMuro();
    for (const auto& [boton, modo] :
         {std::pair{"Paralela", Modo::Seleccion}, std::pair{"Esquina", Modo::PrimeraPared},
          std::pair{"Union", Modo::Union1}, std::pair{"Separar", Modo::Separar}}) {
        banco.clic(banco.medio(1));
        ASSERT_EQ(banco.colorDe(1), rojo);
        banco.boton(boton);
        EXPECT_EQ(banco.modo(), modo) << boton;
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::IcoSeleccion);
        EXPECT_EQ(banco.colorDe(1), blanco) << "the selection goes";
        EXPECT_FALSE(banco.sesion().Ocupado);
        banco.boton("Definir");
    }
}

TEST(Relaciones, UnBotonQueNoHayNoPoneNingunModo) {
    Banco banco;
    banco.ponMuro();
    for (const int indice : {-1, 4}) {
        banco.bosquel.pulsarOperacion(indice);
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
        EXPECT_EQ(banco.colorDe(1), rojo) << "the selection stays";
    }
}

TEST(Relaciones, EsperanAQueTermineElAutoguardado) {
    Banco banco;
    banco.sesion().GuardandoAuto = true;
    banco.plataforma.alCederEventos = [&] {
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        if (banco.plataforma.turnos == 3) banco.sesion().GuardandoAuto = false;
    };
    banco.boton("Esquina");
    EXPECT_EQ(banco.plataforma.turnos, 3);
    EXPECT_EQ(banco.modo(), Modo::PrimeraPared);
}

TEST(Relaciones, SoltarEnLaHojaNoTerminaLaHerramienta) {
    Banco banco;
    banco.ponMuro();
    for (const char* boton : {"Paralela", "Esquina", "Union", "Separar"}) {
        banco.boton(boton);
        const Modo modo = banco.modo();
        banco.clic({500, 500});
        EXPECT_EQ(banco.modo(), modo) << boton;
    }
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
}

TEST_P(HerramientaDeDos, LaPrimeraParedSoloSeRecuerda) {
    Banco banco;
    ponCruz(banco);
    banco.boton(GetParam());
    banco.clic(banco.medio(2));
    EXPECT_EQ(banco.modo(), segunda());
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::IcoSeleccion) << "the tool goes on";
    EXPECT_EQ(banco.dibujo().ParedUno, 2);
    EXPECT_EQ(banco.pared(2).NumeroGrupo, 0);
}

TEST_P(HerramientaDeDos, LaMismaParedDosVecesTerminaConUnAviso) {
    Banco banco;
    ponCruz(banco);
    const PlanoDeReferencia plano(banco.dibujo());
    eligeDos(banco, GetParam(), 1, 1);
    ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
    esperaMensaje(banco.plataforma.mensajes[0], mismoMuro, Icono::informacion, Botones::aceptar);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
    comparar(banco.dibujo(), plano);
}

TEST_P(HerramientaDeDos, TodasLasPinzasSonBlanco) {
    Banco banco;
    ponCruz(banco);
    banco.boton(GetParam());
    banco.clic(banco.inicial(1));
    banco.clic(banco.final(2));
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_EQ(banco.pared(1).NumeroGrupo, 1);
    EXPECT_EQ(banco.pared(2).NumeroGrupo, 1);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
}

TEST_P(HerramientaDeDos, UnBotonPrincipalLaTermina) {
    Banco banco;
    ponCruz(banco);
    banco.boton(GetParam());
    banco.clic(banco.medio(1));
    banco.suprimir();
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
    banco.clic(banco.medio(2));
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    EXPECT_EQ(banco.pared(2).NumeroGrupo, 0);
}

TEST_P(HerramientaDeDos, LasParalelasSeAvisanBajoElCursorNormal) {
    for (const auto& [a, b] : {std::pair{30, 30}, std::pair{90, -90}}) {
        Banco banco;
        banco.ponMuro({.inicio = {3000, 5000}, .angulo = a});
        banco.ponMuro({.inicio = {5000, 5000}, .angulo = b});
        const PlanoDeReferencia plano(banco.dibujo());
        banco.plataforma.cursores.clear();
        eligeDos(banco, GetParam(), 1, 2);
        ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
        const bool esquina = GetParam() == std::string("Esquina");
        esperaMensaje(banco.plataforma.mensajes[0], esquina ? noEsquina : noUnion, Icono::informacion,
                      Botones::aceptar);
        const std::vector<Cursor> ultimos{Cursor::IcoSeleccion, Cursor::Cruz, Cursor::Flecha, Cursor::Cruz};
        EXPECT_EQ(banco.plataforma.cursores, ultimos);
        comparar(banco.dibujo(), plano);
        EXPECT_EQ(banco.modo(), Modo::Aspa);
    }
}

INSTANTIATE_TEST_SUITE_P(Botones, HerramientaDeDos, testing::Values("Esquina", "Union"));

TEST(Union, LosMurosCruzadosSonCuatroYLaTresEnT) {
    Banco banco;
    ponCruz(banco);
    PlanoDeReferencia plano(banco.dibujo());
    eligeDos(banco, "Union", 1, 2);
    EXPECT_EQ(plano.unir(1, 2), "XPP");
    comparar(banco.dibujo(), plano);
    EXPECT_EQ(banco.dibujo().Pared.contador, 5);

    Banco otro;
    otro.ponMuro({.inicio = {3000, 5000}, .angulo = 0});
    otro.ponMuro({.inicio = {4000, 4900}, .angulo = 90});
    eligeDos(otro, "Union", 1, 2);
    EXPECT_EQ(otro.dibujo().Pared.contador, 4);
}

TEST(Union, FueraDeAmbasSePreguntaYNoLoDejaTodoComoEstaba) {
    Banco banco;
    ponLejos(banco);
    const PlanoDeReferencia plano(banco.dibujo());
    banco.plataforma.respuestas = {Respuesta::no};
    eligeDos(banco, "Union", 1, 2);
    ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
    esperaMensaje(banco.plataforma.mensajes[0], deseaEsquina, Icono::pregunta, Botones::siNo);
    comparar(banco.dibujo(), plano);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    const auto& cursores = banco.plataforma.cursores;
    ASSERT_GE(cursores.size(), 2U);
    EXPECT_EQ(cursores[cursores.size() - 2], Cursor::Flecha);
    EXPECT_EQ(cursores.back(), Cursor::Cruz);
}

TEST(Union, FueraDeAmbasConSiEsUnaEsquina) {
    Banco banco;
    ponLejos(banco);
    PlanoDeReferencia plano(banco.dibujo());
    banco.plataforma.respuestas = {Respuesta::si};
    eligeDos(banco, "Union", 1, 2);
    EXPECT_EQ(plano.esquina(1, 2), "esquina");
    comparar(banco.dibujo(), plano);
    EXPECT_EQ(banco.pared(1).NumeroGrupo, 1);
    EXPECT_EQ(banco.dibujo().Pared.contador, 3);
}

TEST_P(HerramientaDeDos, SiLaPrimeraParedYaNoEstaNadaSeDiceNiSeCorta) {
    Banco banco;
    ponCruz(banco);
    banco.boton(GetParam());
    banco.clic(banco.medio(1));
    banco.dibujo().Pared.quitar(1);
    const PlanoDeReferencia plano(banco.dibujo());
    banco.clic(banco.medio(2));
    EXPECT_TRUE(banco.plataforma.mensajes.empty());
    comparar(banco.dibujo(), plano);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
}

TEST(Esquina, TrasLaEsquinaElDobleClicPreguntaSiDesagrupa) {
    Banco banco;
    ponCruz(banco);
    eligeDos(banco, "Esquina", 1, 2);
    banco.plataforma.respuestas = {Respuesta::no};
    const int dialogos = banco.plataforma.dialogosDePared;
    banco.dobleClic(banco.medio(1));
    ASSERT_EQ(banco.plataforma.mensajes.size(), 1U);
    EXPECT_EQ(banco.plataforma.mensajes[0].botones, Botones::siNo);
    EXPECT_EQ(banco.plataforma.dialogosDePared, dialogos);
    EXPECT_EQ(banco.pared(1).NumeroGrupo, 1);
}

}  // namespace bosquel::apoyo
