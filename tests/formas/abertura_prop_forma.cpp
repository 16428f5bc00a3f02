#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "openings/puerta_prop.h"
#include "openings/ventana_prop.h"
#include "ui/puerta_prop_forma.h"
#include "ui/ventana_prop_forma.h"
#include "walls/pared.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// The dialog of a window and that of a door, in a wall which a test prepares before it opens one.
struct PruebaAberturaForma : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    std::unique_ptr<AberturaProp> logica;
    std::unique_ptr<Dialogo> forma;

    PruebaAberturaForma() {
        Pared& pared = dibujo.Pared.crear(1);
        pared.Tipo = "Muro";
        DibujaPared(dibujo, 1, false);
        ventana().NumeroPared = 1;
        ventana().Tipo = "Muro";
        puerta().NumeroPared = 1;
    }

    Ventana& ventana() { return dibujo.Ventana.existe(1) ? *dibujo.Ventana.en(1) : dibujo.Ventana.crear(1); }
    Puerta& puerta() { return dibujo.Puerta.existe(1) ? *dibujo.Puerta.en(1) : dibujo.Puerta.crear(1); }

    template <class Logica, class Forma>
    void abrir() {
        auto nueva = std::make_unique<Logica>(dibujo, 1);
        forma = std::make_unique<Forma>(*nueva);
        logica = std::move(nueva);
        mostrarActiva(*forma);
    }
    void abrirVentana() { abrir<VentanaProp, VentanaPropForma>(); }
    void abrirPuerta() { abrir<PuertaProp, PuertaPropForma>(); }

    bool puesto(const QString& nombre) { return control<QRadioButton>(*forma, nombre).isChecked(); }
    bool activo(const QString& nombre) { return control(*forma, nombre).isEnabled(); }
    void pulsa(const QString& nombre) { pulsar(*forma, nombre); }
    /// Radios are hit on their indicator.
    void elige(const QString& nombre) { control<QRadioButton>(*forma, nombre).click(); }
    QImage croquis() { return control(*forma, "Croquis").grab().toImage(); }
};

}  // namespace

using VentanaPropFormaAbrir = PruebaAberturaForma;
using VentanaPropFormaElegir = PruebaAberturaForma;
using PuertaPropFormaAbrir = PruebaAberturaForma;
using PuertaPropFormaElegir = PruebaAberturaForma;

TEST_F(VentanaPropFormaAbrir, SeLlamaComoDebeYTieneSusRotulos) {
    abrirVentana();
    EXPECT_EQ(forma->objectName(), "VentanaProp");
    EXPECT_EQ(forma->windowTitle(), "Propiedades de Ventana");
    EXPECT_TRUE(forma->isModal());
    EXPECT_EQ(forma->findChild<QGroupBox*>()->title(), "Orientación y Alineación en la pared");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optAlineacion_0"), "Centrada en la pared");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optAlineacion_1"), "Situada a ");
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "Check1"), "Guardar como modelo");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
    EXPECT_EQ(control(*forma, "txtLongitud").accessibleName(), "Longitud de la ventana");
    esperarAccesible(*forma);
}

TEST_F(VentanaPropFormaAbrir, MuestraLaVentana) {
    ventana().Longitud = 1250;
    ventana().Distancia = 333;
    ventana().Alineacion = "Derecha";
    ventana().Orientacion = "Abajo";
    abrirVentana();
    EXPECT_EQ(texto(*forma, "txtLongitud"), "1,25");
    EXPECT_EQ(texto(*forma, "TxtDistancia"), "0,33");
    EXPECT_TRUE(puesto("optAlineacion_1"));
    EXPECT_TRUE(puesto("Punto2"));
    EXPECT_TRUE(puesto("Lado2"));
    EXPECT_TRUE(activo("Lado1") && activo("Punto1") && activo("TxtDistancia"));
}

TEST_F(VentanaPropFormaAbrir, CentradaEnUnTabiqueNoHayNadaQueElegirEnElCroquis) {
    dibujo.Pared.en(1)->Tipo = "Tabique";
    ventana().Orientacion = "Abajo";
    abrirVentana();
    for (const char* boton : {"Punto1", "Punto2", "Lado1", "Lado2"})
        EXPECT_FALSE(activo(boton)) << boton;
    EXPECT_TRUE(puesto("Punto1"));
    EXPECT_TRUE(puesto("Lado1"));
    EXPECT_TRUE(gris(control(*forma, "TxtDistancia")));
}

TEST_F(VentanaPropFormaElegir, LoElegidoYTecleadoLlegaALaVentana) {
    abrirVentana();
    elige("optAlineacion_1");
    EXPECT_TRUE(activo("TxtDistancia") && activo("Lado2"));
    teclear(*forma, "TxtDistancia", "0.75");
    teclear(*forma, "txtLongitud", "1,5");
    pulsa("Lado2");
    pulsa("Punto2");
    EXPECT_TRUE(puesto("Punto2") && !puesto("Punto1"));
    control<QCheckBox>(*forma, "Check1").setChecked(true);
    pulsa("Command1");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(ventana().Alineacion, "Derecha");
    EXPECT_EQ(ventana().Distancia, 750);
    EXPECT_EQ(ventana().Longitud, 1500);
    EXPECT_EQ(ventana().Orientacion, "Abajo");
    EXPECT_EQ(dibujo.Ventana.modelo().Longitud, 1500);
    EXPECT_TRUE(ventana().lineas[0].Visible);
}

TEST_F(VentanaPropFormaElegir, ElCroquisMuestraElLadoElegido) {
    abrirVentana();
    const QImage arriba = croquis();
    EXPECT_EQ(arriba.pixelColor(5, 5), QColor(Qt::white));
    pulsa("Punto2");
    EXPECT_NE(croquis(), arriba);
}

TEST_F(VentanaPropFormaElegir, CancelarYEscapeNoCambianNada) {
    for (const bool escape : {false, true}) {
        abrirVentana();
        teclear(*forma, "txtLongitud", "9");
        if (escape)
            QTest::keyClick(forma.get(), Qt::Key_Escape);
        else
            pulsa("Command2");
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(ventana().Longitud, 1000);
        EXPECT_EQ(ventana().Estado, estadoNuevo);
    }
}

TEST_F(PuertaPropFormaAbrir, SeLlamaComoDebeYTieneSusRotulos) {
    abrirPuerta();
    EXPECT_EQ(forma->objectName(), "PuertaProp");
    EXPECT_EQ(forma->windowTitle(), "Propiedades de Puerta");
    EXPECT_EQ(control<QGroupBox>(*forma, "fmeLado").title(), "Orientación pared");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optHojas_0"), "Una hoja");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optHojas_1"), "Dos Hojas");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optAlineacion_0"), "Centrada en Pared");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optAlineacion_1"), "Situada a ");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optLado_0"), "Izquierda");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "optLado_1"), "Derecha");
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "Check1"), "Guardar como modelo");
    EXPECT_EQ(control(*forma, "txtLongitud").accessibleName(), "Longitud Hoja");
    esperarAccesible(*forma);
}

TEST_F(PuertaPropFormaAbrir, MuestraLaPuerta) {
    puerta().Alineacion = "Derecha";
    puerta().OrientacionLateral = "Derecha";
    puerta().Orientacion = "Arriba";
    abrirPuerta();
    EXPECT_EQ(texto(*forma, "txtLongitud"), "0,72");
    EXPECT_TRUE(puesto("optHojas_0") && puesto("optAlineacion_1") && puesto("optLado_1"));
    EXPECT_TRUE(puesto("Punto1") && puesto("Lado2"));
    EXPECT_TRUE(activo("Lado1") && activo("fmeLado"));
}

TEST_F(PuertaPropFormaElegir, DosHojasApaganLaBisagraYUnaHojaLaEnciende) {
    abrirPuerta();
    const QImage una = croquis();
    elige("optHojas_1");
    EXPECT_FALSE(activo("Lado1") || activo("Lado2"));
    EXPECT_NE(croquis(), una);
    elige("optHojas_0");
    EXPECT_TRUE(activo("Lado1"));
    pulsa("Lado2");
    EXPECT_TRUE(puesto("Lado2"));
    pulsa("Command1");
    EXPECT_EQ(puerta().OrientacionLateral, "Derecha");
}

TEST_F(PuertaPropFormaElegir, LoElegidoLlegaALaPuerta) {
    abrirPuerta();
    elige("optHojas_1");
    elige("optLado_1");
    pulsa("Punto1");
    teclear(*forma, "txtLongitud", "0,8");
    pulsa("Command1");
    EXPECT_EQ(puerta().OrientacionLateral, "Doble");
    EXPECT_EQ(puerta().Alineacion, "Derecha");
    EXPECT_EQ(puerta().Orientacion, "Arriba");
    EXPECT_EQ(puerta().Longitud, 800);
}

TEST_F(PuertaPropFormaElegir, CentradaApagaElMarcoDelExtremo) {
    abrirPuerta();
    EXPECT_TRUE(activo("fmeLado") && activo("TxtDistancia"));
    elige("optAlineacion_0");
    EXPECT_FALSE(activo("fmeLado") || activo("optLado_0") || activo("TxtDistancia"));
    pulsa("Command1");
    EXPECT_EQ(puerta().Alineacion, "Centro");
}

TEST_F(VentanaPropFormaElegir, ElTabuladorVaDeArribaAbajoYALoElegidoDeCadaGrupo) {
    abrirVentana();
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"txtLongitud", "Punto1", "optAlineacion_0", "Check1", "Command1", "Command2"}));
}

TEST_F(PuertaPropFormaElegir, ElTabuladorVaDeArribaAbajoYALoElegidoDeCadaGrupo) {
    abrirPuerta();
    QStringList recorrido{"txtLongitud",  "optHojas_0", "Punto2", "Lado1",    "optAlineacion_1",
                          "TxtDistancia", "optLado_0",  "Check1", "Command1", "Command2"};
    EXPECT_EQ(recorridoTab(*forma), recorrido);
}
