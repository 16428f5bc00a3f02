#include "model/modos.h"

#include "apoyo/banco.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

constexpr Punto vacio{200, 200};

constexpr std::array todos{Modo::Aspa,         Modo::Flecha,  Modo::Seleccion, Modo::PrimeraPared,
                           Modo::SegundaPared, Modo::Union1,  Modo::Union2,    Modo::Separar,
                           Modo::Pared,        Modo::Ventana, Modo::Puerta,    Modo::Escalera};

}  // namespace

TEST(Modos, TienenSuNombreYNueveEsperan) {
    constexpr std::array<std::string_view, 12> nombres{"Aspa",         "Flecha",  "Seleccion", "PrimeraPared",
                                                       "SegundaPared", "Union1",  "Union2",    "Separar",
                                                       "Pared",        "Ventana", "Puerta",    "Escalera"};
    for (std::size_t i = 0; i < todos.size(); ++i) {
        EXPECT_EQ(texto(todos[i]), nombres[i]);
        EXPECT_EQ(espera(todos[i]),
                  todos[i] != Modo::Aspa && todos[i] != Modo::Flecha && todos[i] != Modo::Pared);
    }
}

TEST(Modos, UnBotonDeMuroLlevaAParedDesdeCualquiera) {
    for (const Modo modo : todos)
        for (const char* boton : {"Muro", "Tabique", "Pilar"}) {
            Banco banco;
            banco.dibujo().ModoActual = modo;
            banco.boton(boton);
            EXPECT_EQ(banco.modo(), Modo::Pared);
            EXPECT_EQ(banco.plataforma.cursor(), Cursor::IcoPared);
            EXPECT_EQ(banco.pared(1).Tipo, boton);
            EXPECT_EQ(banco.pared(1).Estado, "Nuevo");
            EXPECT_FALSE(banco.sesion().Ocupado);
        }
}

TEST(Modos, CualquierBotonPrincipalVuelveAlAspaYQuitaElMuroQueEspera) {
    for (const Modo modo : todos)
        for (const char* boton : {"Abrir", "Guardar", "Zoom", "Definir", "Opciones", "Eliminar"}) {
            Banco banco;
            banco.boton("Muro");
            banco.dibujo().ModoActual = modo;
            banco.plataforma.cursores.clear();
            banco.boton(boton);
            EXPECT_EQ(banco.modo(), Modo::Aspa);
            EXPECT_EQ(banco.dibujo().Pared.existe(1), modo == Modo::Aspa) << texto(modo);
            EXPECT_EQ(banco.dibujo().Pared.contador, 2);
            if (modo != Modo::Aspa) {
                EXPECT_EQ(banco.plataforma.cursores, std::vector{Cursor::Cruz});
            }
        }
}

TEST(Modos, UnMuroYaAceptadoNoSeQuitaAlVolverAlAspa) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.mueve(banco.inicial(muro));
    EXPECT_EQ(banco.modo(), Modo::Flecha);
    banco.boton("Definir");
    EXPECT_TRUE(banco.dibujo().Pared.existe(muro));
}

TEST(Modos, SoltarEnLaHojaSituaElMuroYAbreSuDialogo) {
    Banco banco;
    banco.boton("Tabique");
    banco.enDialogoDePared([&](ParedProp&) {
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
        EXPECT_EQ(banco.pared(1).InicialX, 3001.25F);
        EXPECT_EQ(banco.pared(1).InicialY, 4002.5F);
        EXPECT_FALSE(banco.sesion().Ocupado) << "the wall dialog stands outside the gate";
    });
    banco.clic({3001.25F, 4002.5F});
    EXPECT_EQ(banco.plataforma.dialogosDePared, 1);
}

TEST(Modos, SoltarSobreUnaPinzaEnModoParedNoSituaElMuro) {
    Banco banco;
    const int muro = banco.ponMuro();
    const int dialogos = banco.plataforma.dialogosDePared;
    banco.boton("Muro");
    banco.clic(banco.inicial(muro));
    EXPECT_EQ(banco.modo(), Modo::Pared);
    EXPECT_EQ(banco.plataforma.dialogosDePared, dialogos);
    EXPECT_EQ(banco.pared(2).InicialX, 0.0F);
}

TEST(Modos, SobreUnaPinzaElAspaPasaAFlechaYSobreLaHojaVuelve) {
    for (const Modo modo : {Modo::Aspa, Modo::Flecha}) {
        Banco banco;
        const int muro = banco.ponMuro();
        banco.clic(vacio);
        banco.dibujo().ParedBajoPuntero = 0;
        banco.pared(muro).ParedPick.BackColor = blanco;
        banco.dibujo().ModoActual = modo;
        banco.mueve(banco.medio(muro));
        EXPECT_EQ(banco.modo(), Modo::Flecha);
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::Flecha);
        EXPECT_EQ(banco.dibujo().ParedBajoPuntero, muro);
        EXPECT_EQ(banco.colorDe(muro), verdeAzulado);
        banco.mueve(vacio);
        EXPECT_EQ(banco.modo(), Modo::Aspa);
        EXPECT_EQ(banco.colorDe(muro), blanco);
        banco.mueve(vacio);
        EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
    }
}

TEST(Modos, LaPinzaRojaSigueRojaAlSalirAlaHoja) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.clic(banco.medio(muro));
    banco.mueve(vacio);
    EXPECT_EQ(banco.modo(), Modo::Aspa);
    EXPECT_EQ(banco.colorDe(muro), rojo);
}

TEST(Modos, EnModoParedUnaPinzaNoSeEntera) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.dibujo().ParedBajoPuntero = 0;
    banco.pared(muro).ParedPick.BackColor = blanco;
    banco.boton("Muro");
    banco.mueve(banco.medio(muro));
    EXPECT_EQ(banco.modo(), Modo::Pared);
    EXPECT_EQ(banco.colorDe(muro), blanco);
    EXPECT_EQ(banco.dibujo().ParedBajoPuntero, 0);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::IcoPared);
}

TEST(Modos, EnLosDeEsperaUnaPinzaSoloSeEnciende) {
    for (const Modo modo : todos) {
        if (!espera(modo)) continue;
        Banco banco;
        const int muro = banco.ponMuro();
        const int otro = banco.ponMuro({.inicio = {3000, 6000}});
        for (Pinza* pinza : banco.pared(muro).pinzas())
            pinza->BackColor = blanco;
        banco.dibujo().ModoActual = modo;
        banco.plataforma.cursores.clear();
        banco.mueve(banco.medio(muro));
        EXPECT_EQ(banco.colorDe(muro), verdeAzulado);
        EXPECT_EQ(banco.modo(), modo);
        banco.mueve(banco.medio(otro));
        EXPECT_EQ(banco.colorDe(muro), blanco);
        EXPECT_EQ(banco.colorDe(otro), rojo) << "the one just laid is selected";
        EXPECT_EQ(banco.dibujo().ParedBajoPuntero, otro);
        EXPECT_TRUE(banco.plataforma.cursores.empty());
    }
}

TEST(Modos, EnSeleccionSalirALaHojaQuitaLaSeleccionSiNoEsRoja) {
    for (const bool roja : {false, true}) {
        Banco banco;
        const int muro = banco.ponMuro();
        banco.dibujo().ModoActual = Modo::Seleccion;
        for (Pinza* pinza : banco.pared(muro).pinzas())
            pinza->BackColor = roja ? rojo : blanco;
        banco.mueve(banco.medio(muro));
        banco.mueve(vacio);
        EXPECT_EQ(banco.colorDe(muro), roja ? rojo : blanco);
        EXPECT_EQ(banco.modo(), Modo::Seleccion);
    }
}

TEST(Modos, UnMuroDeUnGrupoSeEnciendeAunqueSeaElSeleccionado) {
    Banco banco;
    const int muro = banco.ponMuro();
    banco.pared(muro).NumeroGrupo = 2;
    EXPECT_EQ(banco.colorDe(muro), rojo);
    banco.mueve(banco.inicial(muro));
    EXPECT_EQ(banco.colorDe(muro), verdeAzulado);
}

TEST(Modos, ElAspaSobreLaHojaBajaElBordeElevado) {
    Banco banco;
    banco.bosquel.cruzarPrincipal(Principal::Zoom);
    EXPECT_EQ(banco.sesion().bordeElevado, 4);
    banco.mueve(vacio);
    EXPECT_EQ(banco.sesion().bordeElevado, -1);
    EXPECT_EQ(banco.plataforma.cursor(), Cursor::Cruz);
    banco.bosquel.cruzarPrincipal(Principal::Nuevo);
    banco.bosquel.cruzarPrincipal(Principal::Salir);
    EXPECT_EQ(banco.sesion().bordeElevado, 9);
    const int vistas = banco.plataforma.vistas;
    banco.bosquel.cruzarPrincipal(Principal::Salir);
    EXPECT_EQ(banco.plataforma.vistas, vistas) << "it is raised already";
    banco.bosquel.cruzarVentana();
    EXPECT_EQ(banco.sesion().bordeElevado, -1);
}

TEST(Modos, PulsarUnaPinzaSeleccionaSuMuroYDeseleccionaElOtro) {
    Banco banco;
    const int uno = banco.ponMuro();
    const int dos = banco.ponMuro({.inicio = {3000, 6000}});
    banco.clic(banco.inicial(uno));
    EXPECT_EQ(banco.colorDe(uno), rojo);
    EXPECT_EQ(banco.dibujo().IndiceActual, uno);
    banco.clic(banco.final(dos));
    EXPECT_EQ(banco.colorDe(dos), rojo);
    EXPECT_EQ(banco.dibujo().IndiceActual, dos);
    EXPECT_EQ(banco.dibujo().ElementoActual, Clase::Pared);
}

TEST(Modos, LasPaletasSeCambianEnCualquieraYNoLoTocan) {
    for (const Modo modo : todos)
        for (const auto& [boton, paleta, letrero] :
             {std::tuple{"Muebles", Paleta::FrMuebles, "Muebles"},
              {"Baño", Paleta::FrBaño, "Baño"},
              {"Cocina", Paleta::FrCocina, "Cocina"},
              {"División", Paleta::FrUsuario, "Divisiones"},
              {"Eléctrico", Paleta::FrElectrico, "Sistema Eléctrico"}}) {
            Banco banco;
            EXPECT_EQ(banco.sesion().paleta, Paleta::FrUsuario);
            EXPECT_EQ(banco.sesion().Letrero, "Divisiones");
            banco.dibujo().ModoActual = modo;
            banco.boton(boton);
            EXPECT_EQ(banco.modo(), modo);
            EXPECT_EQ(banco.sesion().paleta, paleta);
            EXPECT_EQ(banco.sesion().Letrero, letrero);
        }
}
