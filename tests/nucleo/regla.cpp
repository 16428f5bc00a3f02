#include "apoyo/banco.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

constexpr Punto vacio{200, 200};

void esperarAcoplada(Banco& banco) {
    const Regla& regla = banco.sesion().regla;
    EXPECT_TRUE(regla.Visible);
    EXPECT_EQ(regla.orientacion, Regla::Orientacion::VAB);
    EXPECT_EQ(regla.Left, static_cast<float>(Banco::visorAncho - 380));
    EXPECT_EQ(regla.Top, 0.0F);
}

void esperarTumbada(Banco& banco) {
    const Regla& regla = banco.sesion().regla;
    EXPECT_TRUE(regla.Visible);
    EXPECT_EQ(regla.orientacion, Regla::Orientacion::HID);
    EXPECT_EQ(regla.Left, static_cast<float>((Banco::visorAncho - regla.Width) / 2));
    EXPECT_EQ(regla.Top, static_cast<float>((Banco::visorAlto - regla.Height) / 2));
}

}  // namespace

TEST(Regla, ElDobleClicEnLaHojaLaTumbaYLaAcopla) {
    Banco banco;
    esperarAcoplada(banco);
    banco.dobleClic(vacio);
    esperarTumbada(banco);
    banco.dobleClic(vacio);
    esperarAcoplada(banco);
}

TEST(Regla, EscondidaSaleEnElOtroLugar) {
    Banco banco;
    banco.bosquel.dobleClicRegla();
    EXPECT_FALSE(banco.sesion().regla.Visible);
    banco.dobleClic(vacio);
    esperarTumbada(banco);
    banco.bosquel.dobleClicRegla();
    banco.dobleClic(vacio);
    esperarAcoplada(banco);
}

TEST(Regla, MovidaDeSuSitioElDobleClicLaAcopla) {
    Banco banco;
    banco.bosquel.pulsarRegla(10, 10);
    banco.bosquel.moverRegla(false, 500, 500);
    esperarAcoplada(banco);
    banco.bosquel.moverRegla(true, 5, 30);
    EXPECT_EQ(banco.sesion().regla.Left, static_cast<float>(Banco::visorAncho - 385));
    EXPECT_EQ(banco.sesion().regla.Top, 20.0F);
    banco.bosquel.soltarRegla();
    banco.dobleClic(vacio);
    esperarAcoplada(banco);
}

TEST(Regla, CambiarElTamanoDeLaVentanaLaAcopla) {
    Banco banco;
    banco.dobleClic(vacio);
    esperarTumbada(banco);
    banco.bosquel.redimensionar(Banco::ventanaAncho, Banco::ventanaAlto);
    esperarAcoplada(banco);
    banco.bosquel.dobleClicRegla();
    banco.bosquel.redimensionar(Banco::ventanaAncho, Banco::ventanaAlto);
    esperarAcoplada(banco);
}

TEST(Regla, FueraDelAspaElDobleClicNoHaceNada) {
    for (const Modo modo : {Modo::Flecha, Modo::Pared, Modo::Seleccion, Modo::Separar, Modo::Ventana}) {
        Banco banco;
        banco.dibujo().ModoActual = modo;
        banco.bosquel.dobleClic(vacio.x, vacio.y);
        esperarAcoplada(banco);
    }
}

TEST(Regla, TieneElFactorDelZoom) {
    Banco banco;
    EXPECT_EQ(banco.sesion().regla.FactorZoom, 0.5);
    banco.boton("Zoom");
    EXPECT_EQ(banco.sesion().regla.FactorZoom, 1.0);
    banco.plataforma.respuestas = {Respuesta::si};
    banco.boton("Nuevo");
    EXPECT_EQ(banco.sesion().regla.FactorZoom, 0.5);
}
