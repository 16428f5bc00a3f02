#include "apoyo/aberturas_de_referencia.h"
#include "apoyo/banco.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"

#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::Banco;
using apoyo::Punto;

namespace {

/// A program with one wall, and a user who sets openings into it.
struct Casa : Banco {
    Casa() {
        plataforma.alAbrirVentana = [](VentanaProp& dialogo) { dialogo.Aplicar(); };
        plataforma.alAbrirPuerta = [](PuertaProp& dialogo) { dialogo.Aplicar(); };
    }

    int pon(const char* clase, int muro) {
        boton(clase);
        clic(final(muro));
        return (clase == std::string_view("Ventana") ? dibujo().Ventana.contador : dibujo().Puerta.contador) -
               1;
    }
    int ponVentana(int muro) { return pon("Ventana", muro); }
    int ponPuerta(int muro) { return pon("Puerta", muro); }

    Ventana& ventana(int i) { return *dibujo().Ventana.en(i); }
    Puerta& puerta(int i) { return *dibujo().Puerta.en(i); }
    Punto enVentana(int i) { return centro(ventana(i).VentanaPick); }
    Punto enPuerta(int i) { return centro(puerta(i).PuertaPick); }

    void esperarEnSuSitio(int v, int p) {
        const double factor = dibujo().FactorZoomActual;
        const auto debidaV = apoyo::referencia(ventana(v), pared(ventana(v).NumeroPared), factor);
        const auto debidaP = apoyo::referencia(puerta(p), pared(puerta(p).NumeroPared), factor);
        EXPECT_EQ(ventana(v).lineas, debidaV.lineas);
        EXPECT_EQ(ventana(v).VentanaPick.Left, debidaV.Left);
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_EQ(puerta(p).lineas[i], debidaP.lineas[i]) << i;
        EXPECT_EQ(puerta(p).PuertaPick.Top, debidaP.Top);
    }
};

Punto mas(Punto a, float dx, float dy) {
    return {a.x + dx, a.y + dy};
}

}  // namespace

TEST(AberturasCrear, SinNingunaParedElBotonNoHaceNadaYDejaLaCompuertaCerrada) {
    for (const char* clase : {"Ventana", "Puerta"}) {
        Casa casa;
        casa.boton(clase);
        EXPECT_EQ(casa.modo(), Modo::Aspa);
        EXPECT_EQ(casa.dibujo().Ventana.contador, 1);
        EXPECT_EQ(casa.dibujo().Puerta.contador, 1);
        EXPECT_TRUE(casa.sesion().Ocupado);
        casa.boton("Cocina");
        EXPECT_FALSE(casa.sesion().Ocupado);
    }
}

TEST(AberturasCrear, TrasQuitarTodasLasParedesElBotonSigueCreando) {
    Casa casa;
    casa.clic(casa.inicial(casa.ponMuro()));
    casa.boton("Eliminar");
    casa.boton("Ventana");
    EXPECT_EQ(casa.modo(), Modo::Ventana);
    EXPECT_TRUE(casa.dibujo().Ventana.existe(1));
    EXPECT_FALSE(casa.sesion().Ocupado);
}

TEST(AberturasCrear, LaNuevaEsperaSuParedConElCursorDeSeleccion) {
    Casa casa;
    casa.ponMuro();
    casa.dibujo().Puerta.modelo().Longitud = 840;
    casa.boton("Puerta");
    EXPECT_EQ(casa.modo(), Modo::Puerta);
    EXPECT_EQ(casa.plataforma.cursor(), Cursor::IcoSeleccion);
    EXPECT_EQ(casa.dibujo().Puerta.contador, 2);
    EXPECT_EQ(casa.puerta(1).Estado, estadoNuevo);
    EXPECT_EQ(casa.puerta(1).Longitud, 840);
    EXPECT_FALSE(casa.puerta(1).lineas[0].Visible);
}

TEST(AberturasSituar, CopiaLaParedAbreSuDialogoYLaCierra) {
    Casa casa;
    casa.ponMuro({.angulo = -30, .ancho = "0,25"});
    casa.pared(1).AnchoTabique = 80;
    casa.dibujo().TotalGrupos = 6;
    casa.plataforma.alAbrirVentana = [&](VentanaProp& dialogo) {
        EXPECT_EQ(casa.modo(), Modo::Aspa);
        EXPECT_EQ(casa.plataforma.cursor(), Cursor::Cruz);
        EXPECT_EQ(casa.ventana(1).Tipo, "Muro");
        EXPECT_EQ(casa.ventana(1).AnchoMuro, 250);
        EXPECT_EQ(casa.ventana(1).AnchoTabique, 80);
        EXPECT_EQ(casa.ventana(1).Angulo, -30);
        EXPECT_EQ(casa.ventana(1).NumeroPared, 1);
        EXPECT_EQ(casa.pared(1).NumeroGrupo, 0);
        dialogo.Aplicar();
    };
    casa.ponVentana(1);
    EXPECT_EQ(casa.plataforma.dialogosDeVentana, 1);
    EXPECT_EQ(casa.ventana(1).Estado, estadoEdicion);
    EXPECT_EQ(casa.ventana(1).GrupoInicialPared, 0);
    EXPECT_EQ(casa.pared(1).NumeroGrupo, 7);
    EXPECT_EQ(casa.dibujo().TotalGrupos, 7);
    EXPECT_EQ(casa.dibujo().ElementoActual, Clase::Ventana);
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, rojo);
    EXPECT_EQ(casa.colorDe(1), blanco);

    casa.ponPuerta(1);
    EXPECT_EQ(casa.puerta(1).GrupoInicialPared, 7);
    EXPECT_EQ(casa.dibujo().TotalGrupos, 7);
    casa.esperarEnSuSitio(1, 1);
}

TEST(AberturasSituar, LaCanceladaQuedaSinDibujarConSuParedYLaParedLibre) {
    Casa casa;
    casa.ponMuro();
    casa.plataforma.alAbrirVentana = nullptr;
    casa.ponVentana(1);
    EXPECT_EQ(casa.plataforma.dialogosDeVentana, 1);
    ASSERT_TRUE(casa.dibujo().Ventana.existe(1));
    EXPECT_EQ(casa.ventana(1).Estado, estadoNuevo);
    EXPECT_EQ(casa.ventana(1).NumeroPared, 1);
    EXPECT_FALSE(casa.ventana(1).lineas[0].Visible);
    EXPECT_FALSE(casa.ventana(1).VentanaPick.Visible);
    EXPECT_EQ(casa.pared(1).NumeroGrupo, 0);
    EXPECT_EQ(casa.dibujo().TotalGrupos, 0);
    casa.guarda("c.bqr");
    const auto lineas = casa.lineas("c.bqr");
    EXPECT_NE(std::find(lineas.begin(), lineas.end(), "[Ventana(1)]"), lineas.end());

    casa.arrastra(casa.medio(1), mas(casa.medio(1), 100, 0));
    EXPECT_TRUE(casa.ventana(1).lineas[0].Visible) << "the next drag of its wall places it";
    EXPECT_EQ(casa.ventana(1).Estado, estadoNuevo);
}

TEST(AberturasSituar, UnBotonPrincipalLaDejaEsperandoSinPared) {
    Casa casa;
    casa.ponMuro();
    casa.boton("Ventana");
    casa.boton("Zoom");
    EXPECT_EQ(casa.modo(), Modo::Aspa);
    EXPECT_EQ(casa.ventana(1).NumeroPared, 0);
    EXPECT_FALSE(casa.ventana(1).lineas[0].Visible);
    EXPECT_EQ(casa.ponVentana(1), 2);
}

TEST(AberturasEliminar, ElDeberDeCerrarLaParedPasaALaSiguienteDeSuClase) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponVentana(1);
    const auto grupo = casa.pared(1).NumeroGrupo;
    EXPECT_EQ(casa.ventana(2).GrupoInicialPared, grupo);
    casa.ventana(2).Distancia = 100;
    casa.clic(casa.enVentana(1));
    casa.boton("Eliminar");
    ASSERT_TRUE(casa.dibujo().Ventana.existe(1) != casa.dibujo().Ventana.existe(2));
    const int queda = casa.dibujo().Ventana.ultimo();
    EXPECT_EQ(casa.ventana(queda).GrupoInicialPared, 0);
    EXPECT_EQ(casa.pared(1).NumeroGrupo, grupo);
    casa.clic(casa.enVentana(queda));
    casa.suprimir();
    EXPECT_EQ(casa.dibujo().Ventana.ultimo(), 0);
    EXPECT_EQ(casa.pared(1).NumeroGrupo, 0);
    EXPECT_EQ(casa.dibujo().Ventana.contador, 3);
}

TEST(AberturasEliminar, VentanasYPuertasNoSeVen) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.clic(casa.enVentana(1));
    casa.boton("Eliminar");
    EXPECT_EQ(casa.pared(1).NumeroGrupo, 0);
    EXPECT_TRUE(casa.dibujo().Puerta.existe(1));
}

TEST(AberturasEliminar, LaQueEntroEnUnaParedCerradaNoLaAbre) {
    Casa casa;
    casa.ponMuro();
    casa.pared(1).NumeroGrupo = 4;
    casa.ponPuerta(1);
    EXPECT_EQ(casa.puerta(1).GrupoInicialPared, 4);
    casa.boton("Eliminar");
    EXPECT_FALSE(casa.dibujo().Puerta.existe(1));
    EXPECT_EQ(casa.pared(1).NumeroGrupo, 4);
}

TEST(AberturasEliminar, SeVanConSuPared) {
    Casa casa;
    casa.ponMuro();
    casa.ponMuro({.inicio = {3000, 6000}});
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.ponPuerta(2);
    casa.clic(casa.inicial(1));
    casa.plataforma.respuestas = {Respuesta::si};
    casa.boton("Eliminar");
    EXPECT_EQ(casa.dibujo().Ventana.ultimo(), 0);
    EXPECT_FALSE(casa.dibujo().Puerta.existe(1));
    EXPECT_TRUE(casa.dibujo().Puerta.existe(2));
}

TEST(AberturasSeguir, AcompananASuParedEnElArrastreYEnElImanSinSeleccionarse) {
    Casa casa;
    casa.ponMuro({.inicio = {3013, 3027}, .angulo = 35});
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.pulsa(casa.inicial(1));
    for (const float paso : {37.0F, 171.5F, 402.25F}) {
        casa.mueve(mas(casa.inicial(1), paso, -paso / 2));
        casa.esperarEnSuSitio(1, 1);
    }
    casa.suelta(casa.inicial(1));
    EXPECT_EQ(casa.dibujo().ElementoActual, Clase::Pared);
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, blanco);
    casa.pared(1).NumeroGrupo = 0;
    casa.dibujo().Iman = true;
    casa.clic(casa.inicial(1));
    casa.esperarEnSuSitio(1, 1);
}

TEST(AberturasSeguir, AcompananACadaParedDelGrupoArrastrado) {
    Casa casa;
    casa.ponMuro();
    casa.ponMuro({.inicio = {3000, 6000}, .angulo = -60, .boton = "Tabique"});
    casa.ponVentana(1);
    casa.ponPuerta(2);
    casa.pared(2).NumeroGrupo = casa.pared(1).NumeroGrupo;
    const auto antes = casa.puerta(1).lineas[0];
    casa.arrastra(casa.medio(1), mas(casa.medio(1), 330, 210));
    EXPECT_NEAR(casa.puerta(1).lineas[0].X1, antes.X1 + 330, 1);
    casa.esperarEnSuSitio(1, 1);
}

TEST(AberturasSeguir, MientrasSeArrastraSoloSePintanPorEncima) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.mueve(casa.inicial(1));
    casa.pulsa(casa.inicial(1));
    casa.mueve(mas(casa.inicial(1), 50, 50));
    casa.plataforma.repintados.clear();
    casa.plataforma.pasos.clear();
    const Recuadro antes = casa.ventana(1).VentanaPick.recuadro();
    casa.mueve(mas(casa.inicial(1), 500, 500));
    ASSERT_EQ(casa.plataforma.pasos.size(), 1U);
    EXPECT_TRUE(casa.plataforma.repintados.back().limpia());
    const auto cubre = [](const ZonaSucia& zona, const Recuadro& parte) {
        return std::any_of(zona.zonas().begin(), zona.zonas().end(), [&](const Recuadro& una) {
            return una.contiene(parte.Left, parte.Top) && unir(una, parte) == una;
        });
    };
    EXPECT_TRUE(cubre(casa.plataforma.pasos.back(), antes));
    EXPECT_TRUE(cubre(casa.plataforma.pasos.back(), casa.ventana(1).VentanaPick.recuadro()));
    casa.suelta(casa.inicial(1));
    EXPECT_TRUE(cubre(casa.plataforma.repintados.back(), casa.ventana(1).VentanaPick.recuadro()));
}

TEST(AberturasZoom, SeRehacenYLaUltimaPuertaEsElElementoActualSinMarca) {
    Casa casa;
    casa.ponMuro({.inicio = {1000, 3000}, .angulo = -45});
    casa.ponMuro({.inicio = {1000, 2000}});
    for (const int muro : {1, 2, 1}) {
        casa.ponVentana(muro);
        casa.ponPuerta(muro);
    }
    casa.dibujo().Puerta.quitar(3);
    casa.clic(casa.enVentana(1));
    for (int paso = 0; paso < 3; ++paso) {
        casa.boton("Zoom");
        casa.esperarEnSuSitio(1, 1);
        casa.esperarEnSuSitio(2, 2);
        EXPECT_EQ(casa.dibujo().ElementoActual, Clase::Puerta);
        EXPECT_EQ(casa.dibujo().IndiceActual, 2);
        for (const int i : {1, 2}) {
            EXPECT_EQ(casa.ventana(i).VentanaPick.BackColor, blanco);
            EXPECT_EQ(casa.puerta(i).PuertaPick.BackColor, blanco);
        }
    }
}

TEST(AberturasPinza, PulsarlaSeleccionaYPulsarLaHojaDeselecciona) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.clic(casa.enVentana(1));
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, rojo);
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, blanco);
    EXPECT_EQ(casa.dibujo().ElementoActual, Clase::Ventana);
    EXPECT_EQ(casa.modo(), Modo::Flecha);
    casa.clic(casa.enPuerta(1));
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, blanco);
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, rojo);
    for (const Pinza* pinza : casa.pared(1).pinzas())
        EXPECT_GT(casa.puerta(1).PuertaPick.orden, pinza->orden);
    casa.clic({9000, 9000});
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, blanco);
    EXPECT_FALSE(casa.dibujo().ElementoActual);
}

TEST(AberturasPinza, NoSeArrastra) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    const auto antes = casa.ventana(1).lineas;
    casa.arrastra(casa.enVentana(1), mas(casa.enVentana(1), 700, 900));
    EXPECT_EQ(casa.ventana(1).lineas, antes);
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, rojo);
}

TEST(AberturasPinza, AlCruzarlaSeSenalaYEnLaHojaSeApaga) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.clic({9000, 9000});
    casa.mueve(casa.enVentana(1));
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, verdeAzulado);
    EXPECT_EQ(casa.modo(), Modo::Flecha);
    EXPECT_EQ(casa.plataforma.cursor(), Cursor::Flecha);
    casa.mueve(casa.enPuerta(1));
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, verdeAzulado);
    casa.mueve({9000, 9000});
    EXPECT_EQ(casa.modo(), Modo::Aspa);
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, blanco);
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, blanco);
}

TEST(AberturasPinza, AlCruzarOtraDeSuClaseSeApagaLaAnteriorSalvoLaSeleccionada) {
    Casa casa;
    casa.ponMuro();
    casa.ponMuro({.inicio = {3000, 6000}});
    casa.ponVentana(1);
    casa.ponVentana(2);
    casa.clic({9000, 9000});
    casa.mueve(casa.enVentana(1));
    casa.mueve(casa.enVentana(2));
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, blanco);
    EXPECT_EQ(casa.ventana(2).VentanaPick.BackColor, verdeAzulado);
    casa.clic(casa.enVentana(2));
    casa.mueve(casa.enVentana(1));
    EXPECT_EQ(casa.ventana(2).VentanaPick.BackColor, rojo);
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, verdeAzulado);
}

TEST(AberturasPinza, EnLosModosDeEsperaSoloSeSenalaYPasaDelante) {
    for (const Modo modo : {Modo::Seleccion, Modo::Separar, Modo::Union1, Modo::Puerta, Modo::Escalera}) {
        Casa casa;
        casa.ponMuro();
        casa.ponVentana(1);
        casa.clic({9000, 9000});
        casa.mueve({9000, 9000});
        casa.dibujo().ModoActual = modo;
        casa.mueve(casa.enVentana(1));
        EXPECT_EQ(casa.modo(), modo);
        EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, verdeAzulado);
        EXPECT_GT(casa.ventana(1).VentanaPick.orden, 0);
    }
}

TEST(AberturasPinza, EnLosModosDeEsperaElDobleClicNoAbreSuDialogo) {
    for (const char* boton : {"Esquina", "Union", "Separar"}) {
        Casa casa;
        casa.ponMuro();
        casa.ponVentana(1);
        casa.ponPuerta(1);
        casa.boton(boton);
        const Modo modo = casa.modo();
        casa.dobleClic(casa.enVentana(1));
        casa.dobleClic(casa.enPuerta(1));
        EXPECT_EQ(casa.plataforma.dialogosDeVentana, 1) << "the one when it was set";
        EXPECT_EQ(casa.plataforma.dialogosDePuerta, 1);
        EXPECT_EQ(casa.modo(), modo);
    }
}

TEST(AberturasPinza, MientrasEsperaUnaDeSuClaseNoSeSenala) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.clic({9000, 9000});
    casa.boton("Ventana");
    casa.mueve(casa.enVentana(1));
    EXPECT_EQ(casa.ventana(1).VentanaPick.BackColor, blanco);
    casa.mueve(casa.enPuerta(1));
    EXPECT_EQ(casa.puerta(1).PuertaPick.BackColor, verdeAzulado);
    EXPECT_EQ(casa.modo(), Modo::Ventana);
    casa.clic(casa.enPuerta(1));
    EXPECT_EQ(casa.modo(), Modo::Ventana) << "only a wall takes it";
}

TEST(AberturasPinza, EnModoParedSuPasoAcabaConLaParedPendiente) {
    Casa casa;
    casa.ponMuro();
    casa.ponPuerta(1);
    casa.boton("Muro");
    casa.mueve(casa.enPuerta(1));
    EXPECT_EQ(casa.modo(), Modo::Flecha);
    EXPECT_EQ(casa.pared(2).Estado, estadoNuevo);
}

TEST(AberturasPinza, LaDeEncimaRecibeElPuntero) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.puerta(1).PuertaPick.Left = casa.ventana(1).VentanaPick.Left;
    casa.puerta(1).PuertaPick.Top = casa.ventana(1).VentanaPick.Top;
    const Punto punto = casa.enVentana(1);
    alFrente(casa.dibujo(), casa.puerta(1).PuertaPick);
    EXPECT_EQ(dianaBajo(casa.sesion(), punto.x, punto.y)->clase, Clase::Puerta);
    alFrente(casa.dibujo(), casa.ventana(1).VentanaPick);
    EXPECT_EQ(dianaBajo(casa.sesion(), punto.x, punto.y)->clase, Clase::Ventana);
    casa.pared(1).ParedPick.Left = casa.ventana(1).VentanaPick.Left;
    casa.pared(1).ParedPick.Top = casa.ventana(1).VentanaPick.Top;
    alFrente(casa.dibujo(), casa.pared(1).ParedPick);
    EXPECT_EQ(dianaBajo(casa.sesion(), punto.x, punto.y)->clase, Clase::Pared);
}

TEST(AberturasDialogo, ElDobleClicYDefinirLoAbren) {
    Casa casa;
    casa.ponMuro();
    casa.ponVentana(1);
    casa.ponPuerta(1);
    casa.plataforma.alAbrirVentana = [](VentanaProp& dialogo) {
        dialogo.txtLongitud = "2,5";
        dialogo.Aplicar();
    };
    casa.dobleClic(casa.enVentana(1));
    EXPECT_EQ(casa.plataforma.dialogosDeVentana, 2);
    EXPECT_EQ(casa.ventana(1).Longitud, 2500);
    casa.boton("Definir");
    EXPECT_EQ(casa.plataforma.dialogosDeVentana, 3);
    casa.dobleClic(casa.enPuerta(1));
    casa.boton("Definir");
    EXPECT_EQ(casa.plataforma.dialogosDePuerta, 3);
    casa.boton("Eliminar");
    casa.boton("Definir");
    EXPECT_EQ(casa.plataforma.dialogosDePuerta, 3);
    casa.esperarEnSuSitio(1, casa.ponPuerta(1));
}
