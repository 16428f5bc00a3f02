#include "apoyo/idioma.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"
#include "surface/grabadora.h"
#include "walls/pared.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Idioma;
using Boton = AberturaProp::Boton;

namespace {

struct PruebaAbertura : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;

    Pared& muro(const char* tipo, int angulo) {
        Pared& pared = dibujo.Pared.crear(1);
        pared.Tipo = tipo;
        pared.Angulo = static_cast<std::int16_t>(angulo);
        DibujaPared(dibujo, 1, false);
        for (Abertura* abertura : {static_cast<Abertura*>(&dibujo.Ventana.crear(1)),
                                   static_cast<Abertura*>(&dibujo.Puerta.crear(1))}) {
            abertura->NumeroPared = 1;
            abertura->Angulo = pared.Angulo;
        }
        ventana().Tipo = tipo;
        return pared;
    }
    Ventana& ventana() { return *dibujo.Ventana.en(1); }
    Puerta& puerta() { return *dibujo.Puerta.en(1); }
};

std::vector<std::string> trazos(const AberturaProp& dialogo) {
    Grabadora grabadora;
    dialogo.trazarCroquis(grabadora);
    return grabadora.trazos();
}

}  // namespace

using VentanaPropAbrir = PruebaAbertura;
using VentanaPropElegir = PruebaAbertura;
using VentanaPropAplicar = PruebaAbertura;
using PuertaPropAbrir = PruebaAbertura;
using PuertaPropElegir = PruebaAbertura;
using PuertaPropAplicar = PruebaAbertura;
using CroquisDeAbertura = PruebaAbertura;

TEST_F(VentanaPropAbrir, MuestraSusMedidasEnMetros) {
    muro("Muro", 0);
    ventana().Longitud = 1234567;
    ventana().Distancia = 85;
    const VentanaProp dialogo(dibujo, 1);
    EXPECT_EQ(dialogo.txtLongitud, "1.234,57");
    EXPECT_EQ(dialogo.TxtDistancia, "0,09");
    EXPECT_FALSE(dialogo.Check1);
}

TEST_F(VentanaPropAbrir, LaAlineacionPoneElRadioYLosExtremos) {
    struct Caso {
        const char* alineacion;
        int radio;
        Boton lado;
    };
    muro("Muro", 0);
    for (const auto& [alineacion, radio, lado] :
         {Caso{"Centro", 0, Boton::Lado1}, Caso{"Izquierda", 1, Boton::Lado1},
          Caso{"Derecha", 1, Boton::Lado2}, Caso{"Nada", -1, Boton::Lado1}}) {
        ventana().Alineacion = alineacion;
        const VentanaProp dialogo(dibujo, 1);
        EXPECT_EQ(dialogo.alineacion(), radio);
        EXPECT_EQ(dialogo.habilitado(Boton::Lado1), radio == 1);
        EXPECT_EQ(dialogo.distanciaHabilitada(), radio == 1);
        EXPECT_TRUE(dialogo.elegido(lado));
    }
}

TEST_F(VentanaPropAbrir, SoloUnMuroDejaElegirElLado) {
    for (const char* tipo : {"Muro", "Tabique", "Pilar"})
        for (const char* orientacion : {"Arriba", "Abajo"}) {
            muro(tipo, -20);
            ventana().Orientacion = orientacion;
            const VentanaProp dialogo(dibujo, 1);
            const bool esMuro = tipo == std::string_view("Muro");
            EXPECT_EQ(dialogo.habilitado(Boton::Punto1), esMuro);
            EXPECT_EQ(dialogo.habilitado(Boton::Punto2), esMuro);
            EXPECT_EQ(dialogo.elegido(Boton::Punto2), esMuro && orientacion == std::string_view("Abajo"));
        }
}

TEST_F(VentanaPropElegir, ElRadioHabilitaLosExtremosYLaDistancia) {
    muro("Muro", 0);
    VentanaProp dialogo(dibujo, 1);
    dialogo.elegirAlineacion(1);
    EXPECT_TRUE(dialogo.habilitado(Boton::Lado2));
    EXPECT_TRUE(dialogo.distanciaHabilitada());
    dialogo.elegirAlineacion(0);
    EXPECT_FALSE(dialogo.habilitado(Boton::Lado2));
    EXPECT_FALSE(dialogo.distanciaHabilitada());
}

TEST_F(VentanaPropAplicar, EscribeElLadoTalComoEstaElegidoAunConAnguloNegativo) {
    muro("Muro", -30);
    VentanaProp dialogo(dibujo, 1);
    dialogo.elegir(Boton::Punto2);
    dialogo.Aplicar();
    EXPECT_EQ(ventana().Orientacion, "Abajo");
    dialogo.elegir(Boton::Punto1);
    dialogo.Aplicar();
    EXPECT_EQ(ventana().Orientacion, "Arriba");
}

TEST_F(VentanaPropAplicar, EnUnTabiqueQuedaArriba) {
    muro("Tabique", 0);
    ventana().Orientacion = "Abajo";
    VentanaProp(dibujo, 1).Aplicar();
    EXPECT_EQ(ventana().Orientacion, "Arriba");
}

TEST_F(VentanaPropAplicar, EscribeDibujaYPasaAEdicion) {
    muro("Muro", 0);
    VentanaProp dialogo(dibujo, 1);
    dialogo.txtLongitud = "2.5";
    dialogo.TxtDistancia = "nada";
    dialogo.elegirAlineacion(1);
    dialogo.elegir(Boton::Lado2);
    dialogo.Aplicar();
    EXPECT_EQ(ventana().Longitud, 2500);
    EXPECT_EQ(ventana().Distancia, 0);
    EXPECT_EQ(ventana().Alineacion, "Derecha");
    EXPECT_EQ(ventana().Estado, estadoEdicion);
    EXPECT_TRUE(ventana().lineas[0].Visible);
    EXPECT_EQ(ventana().VentanaPick.BackColor, rojo);
    EXPECT_EQ(dibujo.ElementoActual, Clase::Ventana);
    EXPECT_EQ(dibujo.Ventana.modelo().Longitud, 1000);
    dialogo.elegir(Boton::Lado1);
    dialogo.Aplicar();
    EXPECT_EQ(ventana().Alineacion, "Izquierda");
    dialogo.elegirAlineacion(0);
    dialogo.Aplicar();
    EXPECT_EQ(ventana().Alineacion, "Centro");
}

TEST_F(VentanaPropAplicar, ElModeloTomaLosMismosCuatroValores) {
    muro("Muro", -10);
    VentanaProp dialogo(dibujo, 1);
    dialogo.Check1 = true;
    dialogo.txtLongitud = "0,75";
    dialogo.TxtDistancia = "0,3";
    dialogo.elegirAlineacion(1);
    dialogo.elegir(Boton::Punto2);
    dialogo.Aplicar();
    const Ventana& modelo = dibujo.Ventana.modelo();
    EXPECT_EQ(modelo.Longitud, 750);
    EXPECT_EQ(modelo.Distancia, 300);
    EXPECT_EQ(modelo.Alineacion, "Izquierda");
    EXPECT_EQ(modelo.Orientacion, "Abajo");
    EXPECT_EQ(modelo.Estado, estadoNuevo);
    EXPECT_EQ(modelo.NumeroPared, 0);
}

TEST_F(VentanaPropAplicar, SinVentanaNoHaceNada) {
    for (const int indice : {0, 1, 7}) {
        VentanaProp dialogo(dibujo, indice);
        dialogo.Check1 = true;
        dialogo.txtLongitud = "9";
        dialogo.Aplicar();
        PuertaProp otro(dibujo, indice);
        otro.Check1 = true;
        otro.Aplicar();
    }
    EXPECT_EQ(dibujo.Ventana.modelo().Longitud, 1000);
    EXPECT_EQ(dibujo.Puerta.modelo().Alineacion, "Izquierda");
}

TEST_F(PuertaPropAbrir, LaBisagraPoneLasHojasYLosLados) {
    struct Caso {
        const char* lateral;
        int hojas;
        bool habilitada, lado1, lado2;
    };
    muro("Muro", 0);
    for (const Caso& caso :
         {Caso{"Izquierda", 0, true, true, false}, Caso{"Derecha", 0, true, false, true},
          Caso{"Doble", 1, false, true, false}, Caso{"Giratoria", -1, true, false, false}}) {
        puerta().OrientacionLateral = caso.lateral;
        PuertaProp dialogo(dibujo, 1);
        EXPECT_EQ(dialogo.optHojas(), caso.hojas);
        EXPECT_EQ(dialogo.habilitado(Boton::Lado1), caso.habilitada);
        EXPECT_EQ(dialogo.elegido(Boton::Lado1), caso.lado1);
        EXPECT_EQ(dialogo.elegido(Boton::Lado2), caso.lado2);
        dialogo.Aplicar();
        EXPECT_EQ(puerta().OrientacionLateral, caso.lateral);
    }
}

TEST_F(PuertaPropAbrir, LaAlineacionPoneElMarcoDelExtremo) {
    muro("Muro", 0);
    for (const auto& [alineacion, radio, extremo] :
         {std::tuple{"Centro", 0, -1}, std::tuple{"Izquierda", 1, 0}, std::tuple{"Derecha", 1, 1}}) {
        puerta().Alineacion = alineacion;
        PuertaProp dialogo(dibujo, 1);
        EXPECT_EQ(dialogo.alineacion(), radio);
        EXPECT_EQ(dialogo.optLado(), extremo);
        EXPECT_EQ(dialogo.fmeLadoHabilitado(), radio == 1);
        dialogo.Aplicar();
        EXPECT_EQ(puerta().Alineacion, alineacion);
    }
}

TEST_F(PuertaPropElegir, DosHojasDeshabilitaLaBisagraYUnaHojaLaRecupera) {
    muro("Muro", 0);
    puerta().OrientacionLateral = "Derecha";
    PuertaProp dialogo(dibujo, 1);
    dialogo.elegirHojas(1);
    EXPECT_FALSE(dialogo.habilitado(Boton::Lado1));
    dialogo.Aplicar();
    EXPECT_EQ(puerta().OrientacionLateral, "Doble");
    dialogo.elegirHojas(0);
    EXPECT_TRUE(dialogo.habilitado(Boton::Lado1));
    dialogo.Aplicar();
    EXPECT_EQ(puerta().OrientacionLateral, "Derecha");
    dialogo.elegir(Boton::Lado1);
    dialogo.Aplicar();
    EXPECT_EQ(puerta().OrientacionLateral, "Izquierda");
}

TEST_F(PuertaPropElegir, PulsarElLadoEncendidoNoCambiaNada) {
    for (const int angulo : {30, -30})
        for (const char* lado : {"Arriba", "Abajo"}) {
            muro("Muro", angulo);
            puerta().Orientacion = lado;
            PuertaProp dialogo(dibujo, 1);
            const auto antes = trazos(dialogo);
            dialogo.elegir(dialogo.elegido(Boton::Punto1) ? Boton::Punto1 : Boton::Punto2);
            EXPECT_EQ(trazos(dialogo), antes);
            dialogo.Aplicar();
            EXPECT_EQ(puerta().Orientacion, lado);
        }
}

TEST_F(PuertaPropAplicar, LaPuertaGuardaElLadoDeLaPantallaYElModeloElDelDialogo) {
    muro("Muro", -30);
    PuertaProp dialogo(dibujo, 1);
    dialogo.elegir(Boton::Punto1);
    dialogo.Check1 = true;
    dialogo.Aplicar();
    EXPECT_EQ(puerta().Orientacion, "Arriba");
    EXPECT_EQ(dibujo.Puerta.modelo().Orientacion, "Abajo");
    EXPECT_EQ(puerta().Estado, estadoEdicion);
    EXPECT_TRUE(puerta().lineas[0].Visible);
}

TEST_F(PuertaPropAplicar, ElModeloTomaLosCincoValores) {
    muro("Muro", 10);
    PuertaProp dialogo(dibujo, 1);
    dialogo.Check1 = true;
    dialogo.txtLongitud = "0,9";
    dialogo.TxtDistancia = "0,2";
    dialogo.elegirExtremo(1);
    dialogo.elegirHojas(1);
    dialogo.elegir(Boton::Punto1);
    dialogo.Aplicar();
    const Puerta& modelo = dibujo.Puerta.modelo();
    EXPECT_EQ(modelo.Longitud, 900);
    EXPECT_EQ(modelo.Distancia, 200);
    EXPECT_EQ(modelo.Alineacion, "Derecha");
    EXPECT_EQ(modelo.OrientacionLateral, "Doble");
    EXPECT_EQ(modelo.Orientacion, "Arriba");
}

TEST_F(PuertaPropAplicar, SituadaSinExtremoElegidoEsALaDerecha) {
    muro("Muro", 0);
    puerta().Alineacion = "Centro";
    PuertaProp dialogo(dibujo, 1);
    dialogo.elegirAlineacion(1);
    dialogo.Aplicar();
    EXPECT_EQ(puerta().Alineacion, "Derecha");
}

TEST_F(CroquisDeAbertura, ElDeLaVentanaLlenaSuMuroYMuestraElLado) {
    muro("Muro", 0);
    VentanaProp dialogo(dibujo, 1);
    dialogo.elegir(Boton::Punto2);
    const std::vector<std::string> esperados{
        "Line 1300 1350 2500 1350 000000", "Line 1300 1350 1300 1550 000000",
        "Line 1300 1550 2500 1550 000000", "Line 2500 1350 2500 1550 000000",
        "Line 1300 1350 1300 1550 000000", "Line 2500 1350 2500 1550 000000",
        "Line 1400 1450 1400 1550 000000", "Line 1800 1450 1800 1550 000000",
        "Line 1900 1450 1900 1550 000000", "Line 2000 1450 2000 1550 000000",
        "Line 2400 1450 2400 1550 000000", "Line 1300 1450 2500 1450 000000"};
    EXPECT_EQ(trazos(dialogo), esperados);
}

TEST_F(CroquisDeAbertura, ElDeLaPuertaVaEnMedioDeSuMuroYElMuroAlcanzaADosHojas) {
    muro("Tabique", 0);
    puerta().Orientacion = "Arriba";
    PuertaProp dialogo(dibujo, 1);
    EXPECT_EQ(trazos(dialogo)[0], "Line 1300 1350 2500 1350 000000");
    EXPECT_EQ(trazos(dialogo)[4], "Line 1440 1350 1440 1450 000000");
    EXPECT_EQ(trazos(dialogo)[8], "Line 1540 1350 1540 630 000000");
    dialogo.elegirHojas(1);
    EXPECT_EQ(trazos(dialogo)[0], "Line 1080 1350 2720 1350 000000");
    EXPECT_EQ(trazos(dialogo)[4], "Line 1080 1350 1080 1450 000000");
    EXPECT_EQ(trazos(dialogo).size(), 4U + 10U + 8U);
}

TEST_F(CroquisDeAbertura, LosBotonesVanALoLargoDelMuro) {
    struct Caso {
        int angulo;
        Boton boton;
        double x, y;
    };
    for (const auto& [angulo, boton, x, y] :
         {Caso{0, Boton::Punto1, 1900, 850}, Caso{0, Boton::Punto2, 1900, 1850},
          Caso{0, Boton::Lado1, 1000, 1350}, Caso{0, Boton::Lado2, 2800, 1350},
          Caso{90, Boton::Punto1, 1400, 1350}, Caso{90, Boton::Lado2, 1900, 450},
          Caso{-90, Boton::Punto1, 2400, 1350}, Caso{-90, Boton::Lado1, 1900, 450}}) {
        muro("Muro", angulo);
        const Recuadro sitio = VentanaProp(dibujo, 1).sitio(boton);
        EXPECT_NEAR(sitio.Left, x - 150, 0.01) << angulo;
        EXPECT_NEAR(sitio.Top, y - 150, 0.01) << angulo;
    }
}

TEST_F(CroquisDeAbertura, QuienLoPintaPuedeVolverAElegirSinQueSeDibujeDosVeces) {
    muro("Muro", 0);
    PuertaProp dialogo(dibujo, 1);
    int veces = 0;
    dialogo.alDibujar = [&] {
        ++veces;
        dialogo.elegir(Boton::Lado2);
        dialogo.DibujaPuerta();
    };
    dialogo.elegir(Boton::Punto1);
    EXPECT_EQ(veces, 1);
    dialogo.DibujaPuerta();
    EXPECT_EQ(veces, 2);
}
