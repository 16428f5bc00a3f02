#include "drawing/escaleras.h"

#include "apoyo/banco.h"
#include "apoyo/mensajes.h"
#include "furnishing/recuadro.h"
#include "stairs_symbols/electrico_prop.h"
#include "stairs_symbols/escalera_prop.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

const Mensaje pregunta{"Aviso", "¿Desea alinear la nueva escalera a alguna pared o tabique existente?",
                       Icono::pregunta, Botones::siNo};

/// Applies whatever the next stair dialogs offer and remembers the angle.
struct Escena {
    Banco banco;
    std::vector<int> angulos;

    Escena() {
        banco.plataforma.alAbrirEscalera = [this](EscaleraProp& dialogo) {
            angulos.push_back(dialogo.StairPreview().Angle);
            dialogo.Aplicar();
        };
    }
    Punto centro(Clase clase, int indice) {
        const auto caja = extensionDe(banco.dibujo(), clase, indice);
        return {static_cast<float>(caja->Left + caja->Width / 2),
                static_cast<float>(caja->Top + caja->Height / 2)};
    }
    void responde(Respuesta respuesta) { banco.plataforma.respuestas.push_back(respuesta); }
};

}  // namespace

TEST(CrearEscalera, SinParedesAbreElDialogoSinPreguntarYLaPrimeraTieneElIndiceDos) {
    Escena escena;
    escena.banco.boton("Escalera");
    EXPECT_TRUE(escena.banco.plataforma.mensajes.empty());
    EXPECT_EQ(escena.angulos, std::vector{0});
    EXPECT_EQ(escena.banco.dibujo().Escalera.contador, 2);
    EXPECT_TRUE(escena.banco.dibujo().Escalera.existe(2));
    EXPECT_FALSE(escena.banco.dibujo().Escalera.existe(1));
    EXPECT_EQ(escena.banco.modo(), Modo::Aspa);
    EXPECT_FALSE(escena.banco.sesion().Ocupado);
}

TEST(CrearEscalera, ConUnaParedPreguntaYAlDecirQueNoAbreElDialogoConElAnguloDelModelo) {
    Escena escena;
    escena.banco.ponMuro({.angulo = 60});
    escena.banco.dibujo().Escalera.modelo().Angle = 15;
    escena.responde(Respuesta::no);
    escena.banco.boton("Escalera");
    apoyo::esperarMensaje(escena.banco.plataforma.mensajes, pregunta);
    EXPECT_EQ(escena.angulos, std::vector{15});
    EXPECT_EQ(escena.banco.modo(), Modo::Aspa);
}

TEST(CrearEscalera, AlDecirQueSiEsperaLaPared) {
    Escena escena;
    escena.banco.ponMuro();
    escena.responde(Respuesta::si);
    escena.banco.boton("Escalera");
    EXPECT_EQ(escena.banco.modo(), Modo::Escalera);
    EXPECT_EQ(escena.banco.plataforma.cursor(), Cursor::IcoSeleccion);
    EXPECT_TRUE(escena.angulos.empty());
    EXPECT_EQ(escena.banco.dibujo().Escalera.contador, 1);
    EXPECT_FALSE(escena.banco.sesion().Ocupado);
}

TEST(CrearEscalera, LaParedElegidaDaSuAngulo) {
    for (const auto& [pared, angulo] : {std::pair{-30, 330}, {45, 45}, {-90, 270}}) {
        Escena escena;
        const int muro = escena.banco.ponMuro({.inicio = {5000, 5000}, .angulo = pared});
        escena.responde(Respuesta::si);
        escena.banco.boton("Escalera");
        escena.banco.clic(escena.banco.medio(muro));
        EXPECT_EQ(escena.angulos, std::vector{angulo});
        EXPECT_EQ(escena.banco.dibujo().Escalera.en(2)->Angle, angulo);
        EXPECT_EQ(escena.banco.modo(), Modo::Aspa);
        EXPECT_EQ(escena.banco.plataforma.cursor(), Cursor::Cruz);
    }
}

TEST(CrearEscalera, ElDialogoSeAbreCuandoElModoYaEsElAspa) {
    Escena escena;
    const int muro = escena.banco.ponMuro();
    escena.responde(Respuesta::si);
    escena.banco.boton("Escalera");
    escena.banco.plataforma.alAbrirEscalera = [&](EscaleraProp&) {
        EXPECT_EQ(escena.banco.modo(), Modo::Aspa);
        EXPECT_EQ(escena.banco.plataforma.cursor(), Cursor::Cruz);
    };
    escena.banco.clic(escena.banco.inicial(muro));
    EXPECT_EQ(escena.banco.plataforma.dialogosDeEscalera, 1);
    EXPECT_EQ(escena.banco.dibujo().Escalera.contador, 1) << "what is not applied was not made";
}

TEST(CrearEscalera, UnClicFueraDeLasParedesSigueEsperando) {
    Escena escena;
    escena.banco.ponMuro({.inicio = {5000, 5000}});
    escena.responde(Respuesta::si);
    escena.banco.boton("Escalera");
    escena.banco.clic({200, 200});
    EXPECT_EQ(escena.banco.modo(), Modo::Escalera);
    EXPECT_TRUE(escena.angulos.empty());
}

TEST(CrearEscalera, LoQueCuentaSonLasParedesYNoSuContador) {
    Escena escena;
    const int muro = escena.banco.ponMuro();
    escena.banco.clic(escena.banco.inicial(muro));
    escena.banco.suprimir();
    ASSERT_EQ(escena.banco.dibujo().Pared.ultimo(), 0);
    escena.banco.boton("Escalera");
    EXPECT_TRUE(escena.banco.plataforma.mensajes.empty());
    EXPECT_EQ(escena.angulos.size(), 1U);
}

TEST(CrearEscalera, NingunaPaletaQuedaALaVistaYElLetreroNoCambia) {
    for (const char* paleta : {"Muebles", "Baño", "Cocina", "División", "Eléctrico"}) {
        Escena escena;
        escena.banco.boton(paleta);
        const std::string letrero(escena.banco.sesion().Letrero);
        escena.banco.boton("Escalera");
        EXPECT_EQ(escena.banco.sesion().paleta, Paleta::ninguna) << paleta;
        EXPECT_EQ(escena.banco.sesion().Letrero, letrero);
        escena.banco.boton(paleta);
        EXPECT_NE(escena.banco.sesion().paleta, Paleta::ninguna);
    }
}

TEST(CrearEscalera, LaPreguntaYElDialogoEstanDentroDeLaCompuerta) {
    Escena escena;
    escena.banco.ponMuro();
    int vistas = 0;
    escena.banco.plataforma.alPreguntar = [&](const Mensaje&) {
        EXPECT_TRUE(escena.banco.sesion().Ocupado);
        EXPECT_EQ(escena.banco.sesion().paleta, Paleta::ninguna);
        vistas = escena.banco.plataforma.vistas;
        return Respuesta::no;
    };
    escena.banco.plataforma.alAbrirEscalera = [&](EscaleraProp&) {
        EXPECT_TRUE(escena.banco.sesion().Ocupado);
    };
    const int antes = escena.banco.plataforma.vistas;
    escena.banco.boton("Escalera");
    EXPECT_GT(vistas, antes) << "the palette is gone before the question shows";
    EXPECT_EQ(escena.banco.plataforma.dialogosDeEscalera, 1);
    EXPECT_FALSE(escena.banco.sesion().Ocupado);
}

TEST(CrearEscalera, ApareceEnLaEsquinaDeLoQueSeVe) {
    Escena escena;
    escena.banco.dibujo().Hoja.Width = 40000;
    escena.banco.dibujo().Hoja.Height = 30000;
    escena.banco.sesion().HScroll1 = {.activa = true, .valor = 50};
    escena.banco.sesion().VScroll1 = {.activa = true, .valor = 10};
    escena.banco.boton("Escalera");
    const Escalera* nueva = escena.banco.dibujo().Escalera.en(2);
    ASSERT_TRUE(nueva);
    EXPECT_EQ(nueva->Left, static_cast<float>((40000 - Banco::visorAncho) * 50 / 100));
    EXPECT_EQ(nueva->Top, static_cast<float>((30000 - Banco::visorAlto) * 10 / 100));
}

TEST(AbreEscaleraProp, EditaLaQueExisteYLaQueFaltaNoAbreNada) {
    Escena escena;
    escena.banco.boton("Escalera");
    AbreEscaleraProp(escena.banco.sesion(), 2, 77);
    EXPECT_EQ(escena.angulos, (std::vector{0, 0})) << "only a new stair takes the angle of a wall";
    AbreEscaleraProp(escena.banco.sesion(), 1, 0);
    EXPECT_EQ(escena.banco.plataforma.dialogosDeEscalera, 2);
    EXPECT_EQ(escena.banco.dibujo().Escalera.contador, 2);
}

TEST(AbreEscaleraProp, LaAbreElDobleClicEnLaEscalera) {
    Escena escena;
    escena.banco.boton("Escalera");
    escena.banco.plataforma.alAbrirEscalera = [](EscaleraProp& dialogo) {
        dialogo.Angulo.escribir("30");
        dialogo.PreviewChanges();
        dialogo.Aplicar();
    };
    escena.banco.dobleClic(escena.centro(Clase::Escalera, 2));
    EXPECT_EQ(escena.banco.plataforma.dialogosDeEscalera, 2);
    EXPECT_EQ(escena.banco.dibujo().Escalera.en(2)->Angle, 30);
    EXPECT_EQ(escena.banco.dibujo().Escalera.contador, 2);
}

TEST(ElectricoProp, LoAbreElDobleClicEnElSimboloCuandoHaTerminado) {
    Escena escena;
    escena.banco.crea(Clase::Electrico);
    escena.banco.plataforma.alAbrirElectrico = [](ElectricoProp& dialogo) {
        dialogo.Angulo.escribir("45");
        dialogo.refrescar();
        dialogo.Aplicar();
    };
    escena.banco.dobleClic(escena.centro(Clase::Electrico, 1));
    EXPECT_EQ(escena.banco.plataforma.dialogosDeElectrico, 0);
    escena.banco.bosquel.pasarTimer2();
    EXPECT_EQ(escena.banco.plataforma.dialogosDeElectrico, 1);
    EXPECT_EQ(escena.banco.dibujo().Electrico.en(1)->Angle, 45);
}
