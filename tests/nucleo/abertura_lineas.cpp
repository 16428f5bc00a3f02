#include "apoyo/aberturas_de_referencia.h"
#include "openings/puerta.h"
#include "openings/trazar_abertura.h"
#include "openings/ventana.h"
#include "surface/grabadora.h"
#include "walls/pared.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace bosquel;
using apoyo::referencia;

namespace {

constexpr std::array tipos{"Muro", "Tabique", "Pilar"};
constexpr std::array angulos{0, 1, 30, 45, 67, 89, 90, -90, -89, -45, -30, -7, 120};
constexpr std::array alineaciones{"Centro", "Izquierda", "Derecha"};
constexpr std::array lados{"Arriba", "Abajo"};
constexpr std::array laterales{"Izquierda", "Derecha", "Doble"};
constexpr std::array factores{0.5, 1.0, 1.5};

/// A drawing with one wall that stands where nothing is round, and nothing in it yet.
struct Casa {
    Dibujo dibujo;

    Casa(const char* tipo, int angulo, double factor) {
        dibujo.FactorZoomActual = factor;
        Pared& muro = dibujo.Pared.crear(1);
        muro.Tipo = tipo;
        muro.Angulo = static_cast<std::int16_t>(angulo);
        muro.InicialX = 3001.37F;
        muro.InicialY = 2999.61F;
        muro.Longitud = 4321.7;
        muro.AnchoMuro = 213.3;
        muro.AnchoTabique = 87.4;
        DibujaPared(dibujo, 1, false);
    }

    Pared& pared() { return *dibujo.Pared.en(1); }

    void copiar(Abertura& abertura, const char* alineacion, const char* lado) {
        abertura.NumeroPared = 1;
        abertura.Angulo = pared().Angulo;
        abertura.AnchoMuro = pared().AnchoMuro;
        abertura.AnchoTabique = pared().AnchoTabique;
        abertura.Alineacion = alineacion;
        abertura.Orientacion = lado;
        abertura.Distancia = 312.9;
    }

    Ventana& ventana(const char* alineacion = "Centro", const char* lado = "Arriba") {
        Ventana& nueva = dibujo.Ventana.crear(1);
        copiar(nueva, alineacion, lado);
        nueva.Tipo = pared().Tipo;
        nueva.Longitud = 1033.3;
        return nueva;
    }

    Puerta& puerta(const char* alineacion = "Centro", const char* lado = "Arriba",
                   const char* lateral = "Izquierda") {
        Puerta& nueva = dibujo.Puerta.crear(1);
        copiar(nueva, alineacion, lado);
        nueva.OrientacionLateral = lateral;
        nueva.Longitud = 727.1;
        return nueva;
    }
};

template <class Abertura, class Referencia>
void esperarIgual(const Abertura& abertura, const Pinza& pinza, const Referencia& esperada) {
    for (std::size_t i = 0; i < esperada.lineas.size(); ++i) {
        const Segmento &real = abertura.lineas[i], &debida = esperada.lineas[i];
        EXPECT_EQ(real.Visible, debida.Visible) << "line " << i + 1;
        if (!debida.Visible && i >= 8) continue;
        EXPECT_EQ(real.X1, debida.X1) << "line " << i + 1;
        EXPECT_EQ(real.Y1, debida.Y1) << "line " << i + 1;
        EXPECT_EQ(real.X2, debida.X2) << "line " << i + 1;
        EXPECT_EQ(real.Y2, debida.Y2) << "line " << i + 1;
    }
    EXPECT_TRUE(pinza.Visible);
    EXPECT_EQ(pinza.Left, esperada.Left);
    EXPECT_EQ(pinza.Top, esperada.Top);
    EXPECT_EQ(pinza.Lado, esperada.Lado);
}

bool finita(const Segmento& s) {
    return std::isfinite(s.X1) && std::isfinite(s.Y1) && std::isfinite(s.X2) && std::isfinite(s.Y2);
}

/// Calls `paso` for each kind of wall, angle and zoom.
template <class Paso>
void porCasas(Paso paso) {
    for (const char* tipo : tipos)
        for (const int angulo : angulos)
            for (const double factor : factores) {
                SCOPED_TRACE(testing::Message() << tipo << " " << angulo << " " << factor);
                Casa casa(tipo, angulo, factor);
                paso(casa);
            }
}

}  // namespace

TEST(VentanaLineas, SonLasDelCalculoALaLargaEnCadaCaso) {
    porCasas([](Casa& casa) {
        for (const char* alineacion : alineaciones)
            for (const char* lado : lados) {
                SCOPED_TRACE(testing::Message() << alineacion << " " << lado);
                const Ventana& ventana = casa.ventana(alineacion, lado);
                ColocaVentana(casa.dibujo, 1, false);
                esperarIgual(ventana, ventana.VentanaPick,
                             referencia(ventana, casa.pared(), casa.dibujo.FactorZoomActual));
            }
    });
}

TEST(PuertaLineas, SonLasDelCalculoALaLargaEnCadaCaso) {
    porCasas([](Casa& casa) {
        for (const char* alineacion : alineaciones)
            for (const char* lado : lados)
                for (const char* lateral : laterales) {
                    SCOPED_TRACE(testing::Message() << alineacion << " " << lado << " " << lateral);
                    const Puerta& puerta = casa.puerta(alineacion, lado, lateral);
                    ColocaPuerta(casa.dibujo, 1, false);
                    esperarIgual(puerta, puerta.PuertaPick,
                                 referencia(puerta, casa.pared(), casa.dibujo.FactorZoomActual));
                }
    });
}

TEST(VentanaLineas, LasCopiasDelMuroValenAunqueElMuroSeaYaOtro) {
    porCasas([](Casa& casa) {
        const Ventana& ventana = casa.ventana("Centro", "Abajo");
        const Puerta& puerta = casa.puerta("Derecha", "Abajo", "Derecha");
        casa.pared().AnchoMuro = 300;
        casa.pared().AnchoTabique = 120.5;
        casa.pared().Angulo = static_cast<std::int16_t>(-casa.pared().Angulo);
        casa.pared().Tipo = casa.pared().esMuro() ? "Tabique" : "Muro";
        ColocaVentana(casa.dibujo, 1, false);
        ColocaPuerta(casa.dibujo, 1, false);
        const double factor = casa.dibujo.FactorZoomActual;
        esperarIgual(ventana, ventana.VentanaPick, referencia(ventana, casa.pared(), factor));
        esperarIgual(puerta, puerta.PuertaPick, referencia(puerta, casa.pared(), factor));
    });
}

TEST(VentanaLineas, EnUnMuroDeDoscientosElMarcoVaPorAbajoALosCien) {
    Casa casa("Muro", 0, 1);
    Pared& muro = casa.pared();
    muro.InicialX = 1000;
    muro.InicialY = 1000;
    muro.AnchoMuro = 200;
    muro.AnchoTabique = 100;
    muro.Longitud = 4000;
    DibujaPared(casa.dibujo, 1, false);
    Ventana& ventana = casa.ventana("Centro", "Abajo");
    ventana.Longitud = 1000;
    ColocaVentana(casa.dibujo, 1, false);
    EXPECT_EQ(ventana.lineas[0], (Segmento{2500, 1000, 2500, 1200, true}));
    for (std::size_t i = 2; i < 7; ++i) {
        EXPECT_EQ(ventana.lineas[i].Y1, 1100.0F);
        EXPECT_EQ(ventana.lineas[i].Y2, 1200.0F);
    }
    EXPECT_EQ(ventana.lineas[7], (Segmento{2500, 1100, 3500, 1100, true}));
}

TEST(VentanaLineas, ConAnguloNegativoAbajoSigueSiendoAbajoEnLaPantalla) {
    Casa casa("Muro", -30, 1);
    const Ventana& abajo = casa.ventana("Centro", "Abajo");
    ColocaVentana(casa.dibujo, 1, false);
    const Segmento marcoAbajo = abajo.lineas[4];
    const float pinzaAbajo = abajo.VentanaPick.Top;
    const Ventana& arriba = casa.ventana("Centro", "Arriba");
    ColocaVentana(casa.dibujo, 1, false);
    EXPECT_GT(marcoAbajo.Y1, arriba.lineas[4].Y1);
    EXPECT_GT(pinzaAbajo, arriba.VentanaPick.Top);
}

TEST(VentanaLineas, ADistanciaCeroDelInicioLaJambaEsLaTapaDelMuro) {
    for (const int angulo : angulos) {
        Casa casa("Muro", angulo, 1);
        Ventana& ventana = casa.ventana("Izquierda");
        ventana.Distancia = 0;
        ColocaVentana(casa.dibujo, 1, false);
        const Segmento& tapa = casa.pared().lineas[1];
        EXPECT_EQ(ventana.lineas[0].X1, tapa.X1) << angulo;
        EXPECT_EQ(ventana.lineas[0].Y1, tapa.Y1) << angulo;
        EXPECT_NEAR(ventana.lineas[0].X2, tapa.X2, 0.001) << angulo;
        EXPECT_NEAR(ventana.lineas[0].Y2, tapa.Y2, 0.001) << angulo;
    }
}

TEST(VentanaLineas, LaDerechaSigueAlExtremoDelMuroAcortado) {
    Casa casa("Muro", 0, 1);
    const Ventana& ventana = casa.ventana("Derecha");
    ColocaVentana(casa.dibujo, 1, false);
    const float antes = ventana.lineas[1].X1;
    casa.pared().Longitud -= 500;
    ColocaVentana(casa.dibujo, 1, false);
    EXPECT_NEAR(ventana.lineas[1].X1, antes - 500, 0.001);
}

TEST(VentanaLineas, UnaAlineacionDesconocidaEsAlInicioDeLaPared) {
    Casa casa("Muro", 30, 1);
    const Ventana& ventana = casa.ventana("Diagonal");
    ColocaVentana(casa.dibujo, 1, false);
    const auto desconocida = ventana.lineas;
    casa.ventana("Izquierda").Distancia = 0;
    ColocaVentana(casa.dibujo, 1, false);
    EXPECT_EQ(desconocida, ventana.lineas);
    EXPECT_EQ(desconocida[0].X1, casa.pared().lineas[0].X1);
}

TEST(VentanaLineas, LaMayorQueSuParedPasaDeSusExtremos) {
    Casa casa("Tabique", 0, 1);
    casa.ventana().Longitud = 9000;
    ColocaVentana(casa.dibujo, 1, false);
    const auto& lineas = casa.dibujo.Ventana.en(1)->lineas;
    EXPECT_LT(lineas[0].X1, casa.pared().lineas[0].X1);
    EXPECT_GT(lineas[1].X1, casa.pared().lineas[0].X2);
}

TEST(PuertaLineas, LaLongitudEsLaDeUnaHoja) {
    Casa casa("Tabique", 0, 1);
    Pared& tabique = casa.pared();
    tabique.InicialX = 1000;
    tabique.AnchoTabique = 100;
    tabique.Longitud = 4000;
    DibujaPared(casa.dibujo, 1, false);
    Puerta& puerta = casa.puerta();
    puerta.Longitud = 720;
    ColocaPuerta(casa.dibujo, 1, false);
    EXPECT_EQ(puerta.lineas[0].X1, 1000.0F + 1540);
    EXPECT_EQ(puerta.lineas[1].X1, 1000.0F + 1540 + 920);
    puerta.OrientacionLateral = "Doble";
    ColocaPuerta(casa.dibujo, 1, false);
    EXPECT_EQ(puerta.lineas[0].X1, 1000.0F + 1180);
    EXPECT_EQ(puerta.lineas[1].X1, 1000.0F + 1180 + 1640);
}

TEST(PuertaLineas, ConAnguloNegativoLaHojaDeArribaSaleDelFinDelCerco) {
    Casa casa("Muro", -30, 1);
    const Puerta& puerta = casa.puerta("Centro", "Arriba", "Izquierda");
    ColocaPuerta(casa.dibujo, 1, false);
    EXPECT_EQ(puerta.lineas[4].X1, puerta.lineas[2].X2);
    EXPECT_EQ(puerta.lineas[4].Y1, puerta.lineas[2].Y2);
    EXPECT_EQ(puerta.lineas[7].X2, puerta.lineas[3].X2);
    EXPECT_LT(puerta.lineas[4].Y2, puerta.lineas[4].Y1);
}

TEST(PuertaLineas, LaSegundaHojaTieneElMismoCantoACualquierZoom) {
    for (const double factor : factores) {
        Casa casa("Tabique", 0, factor);
        const Puerta& puerta = casa.puerta("Centro", "Arriba", "Doble");
        ColocaPuerta(casa.dibujo, 1, false);
        EXPECT_NEAR(puerta.lineas[4].X1 - puerta.lineas[5].X1, 60 * factor, 0.001);
        EXPECT_NEAR(puerta.lineas[9].X1 - puerta.lineas[8].X1, 60, 0.001);
        const float centro = puerta.PuertaPick.Top + puerta.PuertaPick.Lado / 2;
        EXPECT_NEAR(puerta.lineas[7].Y2 - centro, puerta.Longitud / 2, 0.001);
    }
}

TEST(PuertaLineas, AlVolverAUnaHojaSeEscondeLaSegunda) {
    Casa casa("Tabique", 0, 1);
    Puerta& puerta = casa.puerta("Centro", "Arriba", "Doble");
    ColocaPuerta(casa.dibujo, 1, false);
    for (const Segmento& linea : puerta.lineas)
        EXPECT_TRUE(linea.Visible);
    puerta.OrientacionLateral = "Derecha";
    ColocaPuerta(casa.dibujo, 1, false);
    for (std::size_t i = 0; i < 12; ++i)
        EXPECT_EQ(puerta.lineas[i].Visible, i < 8) << i;
}

TEST(PuertaLineas, UnTabiqueQueNoCabeEnDieciseisBitsCuentaComoCero) {
    for (const double ancho : {32767.4, 32767.6, 100.5, 101.5}) {
        Casa casa("Muro", 0, 1);
        casa.pared().AnchoTabique = ancho;
        const Puerta& puerta = casa.puerta("Izquierda");
        ColocaPuerta(casa.dibujo, 1, false);
        esperarIgual(puerta, puerta.PuertaPick, referencia(puerta, casa.pared(), 1));
    }
}

TEST(PuertaLineas, UnaPalabraDesconocidaDejaLasHojasComoEstan) {
    Casa casa("Muro", 0, 1);
    Puerta& puerta = casa.puerta("Centro", "Arriba", "Izquierda");
    ColocaPuerta(casa.dibujo, 1, false);
    const auto antes = puerta.lineas;
    puerta.OrientacionLateral = "Corredera";
    puerta.Distancia = 77;
    puerta.Alineacion = "Izquierda";
    ColocaPuerta(casa.dibujo, 1, false);
    EXPECT_NE(puerta.lineas[0], antes[0]);
    for (std::size_t i = 4; i < 8; ++i)
        EXPECT_EQ(puerta.lineas[i], antes[i]);
    puerta.OrientacionLateral = "Doble";
    puerta.Orientacion = "Fuera";
    ColocaPuerta(casa.dibujo, 1, false);
    for (std::size_t i = 4; i < 8; ++i)
        EXPECT_EQ(puerta.lineas[i], antes[i]);
}

TEST(AberturaColocar, SinParedOSinLineasEnEllaNoTieneLineasPeroSeSelecciona) {
    for (const int numero : {0, 2, 7, -4, 32767}) {
        Casa casa("Muro", 0, 1);
        casa.dibujo.Pared.crear(2);
        Ventana& ventana = casa.ventana();
        Puerta& puerta = casa.puerta();
        ventana.NumeroPared = static_cast<std::int16_t>(numero);
        puerta.NumeroPared = static_cast<std::int16_t>(numero);
        ColocaVentana(casa.dibujo, 1, true);
        EXPECT_EQ(casa.dibujo.ElementoActual, Clase::Ventana);
        ColocaPuerta(casa.dibujo, 1, true);
        EXPECT_EQ(casa.dibujo.ElementoActual, Clase::Puerta);
        EXPECT_EQ(casa.dibujo.IndiceActual, 1);
        EXPECT_EQ(casa.dibujo.VentanaBajoPuntero, 1);
        EXPECT_EQ(casa.dibujo.PuertaBajoPuntero, 1);
        for (const Segmento& linea : ventana.lineas)
            EXPECT_FALSE(linea.Visible);
        for (const Segmento& linea : puerta.lineas)
            EXPECT_FALSE(linea.Visible);
        EXPECT_FALSE(ventana.VentanaPick.Visible);
        EXPECT_FALSE(puerta.PuertaPick.Visible);
    }
}

TEST(AberturaColocar, LaSeleccionadaQuitaLasMarcasDeSuParedYDeLaAnterior) {
    Casa casa("Muro", 0, 1);
    casa.ventana();
    casa.dibujo.Ventana.crear(2) = *casa.dibujo.Ventana.en(1);
    ColocaVentana(casa.dibujo, 1, true);
    PintaPinzasPared(casa.dibujo, 1, rojo);
    ColocaVentana(casa.dibujo, 2, true);
    EXPECT_EQ(casa.pared().ParedPick.BackColor, blanco);
    EXPECT_EQ(casa.dibujo.Ventana.en(1)->VentanaPick.BackColor, blanco);
    EXPECT_EQ(casa.dibujo.Ventana.en(2)->VentanaPick.BackColor, rojo);
    EXPECT_EQ(casa.dibujo.IndiceActual, 2);
}

TEST(AberturaColocar, LaPinzaDeLaVentanaVaDetrasYLaDeLaPuertaDelante) {
    Casa casa("Muro", 0, 1);
    ColocaVentana(casa.dibujo, (casa.ventana(), 1), false);
    ColocaPuerta(casa.dibujo, (casa.puerta(), 1), false);
    EXPECT_LT(casa.dibujo.Ventana.en(1)->VentanaPick.orden, casa.pared().ParedPick.orden);
    EXPECT_GT(casa.dibujo.Puerta.en(1)->PuertaPick.orden, casa.pared().ParedPick.orden);
    DeseleccionaPuerta(casa.dibujo, 1);
    EXPECT_LT(casa.dibujo.Puerta.en(1)->PuertaPick.orden, casa.dibujo.Ventana.en(1)->VentanaPick.orden);
}

TEST(AberturaColocar, UnHuecoYElModeloNoSonNada) {
    Casa casa("Muro", 0, 1);
    for (const int indice : {0, 1, -1, 900}) {
        ColocaVentana(casa.dibujo, indice, true);
        RedibujaPuerta(casa.dibujo, indice);
        DeseleccionaVentana(casa.dibujo, indice);
    }
    EXPECT_EQ(casa.dibujo.ElementoActual, Clase::Pared);
    EXPECT_FALSE(casa.dibujo.Ventana.modelo().lineas[0].Visible);
}

TEST(AberturaColocar, MedidasDesmesuradasNoDejanNumerosQueNoLoSean) {
    Casa casa("Muro", 37, 1.5);
    Ventana& ventana = casa.ventana("Derecha", "Abajo");
    Puerta& puerta = casa.puerta("Derecha", "Abajo", "Doble");
    ventana.Longitud = puerta.Longitud = 1e300;
    ventana.AnchoMuro = -1e308;
    ventana.AnchoTabique = 1e308;
    ColocaVentana(casa.dibujo, 1, true);
    ColocaPuerta(casa.dibujo, 1, true);
    for (const Segmento& linea : ventana.lineas)
        EXPECT_TRUE(finita(linea));
    for (const Segmento& linea : puerta.lineas)
        EXPECT_TRUE(finita(linea));
    EXPECT_TRUE(std::isfinite(ventana.VentanaPick.Left) && std::isfinite(puerta.PuertaPick.Top));
}

TEST(AberturaTrazar, UnaPuertaTieneUnaCuerdaARayasYLaDobleDos) {
    for (const auto& [lateral, trazos] : {std::pair{"Izquierda", 7U + 4U}, std::pair{"Doble", 10U + 8U}}) {
        Casa casa("Muro", 0, 1);
        const Puerta& puerta = casa.puerta("Centro", "Abajo", lateral);
        ColocaPuerta(casa.dibujo, 1, false);
        Grabadora grabadora;
        TrazarPuerta(grabadora, puerta, rojo, 1);
        EXPECT_EQ(grabadora.trazos().size(), trazos);
    }
}

TEST(AberturaTrazar, ElFondoDelMarcoSoloSeVeEnUnMuro) {
    for (const auto& [tipo, trazos] : {std::pair{"Muro", 8U}, std::pair{"Tabique", 7U}}) {
        Casa casa(tipo, 0, 1);
        const Ventana& ventana = casa.ventana();
        ColocaVentana(casa.dibujo, 1, false);
        Grabadora grabadora;
        TrazarVentana(grabadora, ventana, negro, 1);
        EXPECT_EQ(grabadora.trazos().size(), trazos);
    }
}
