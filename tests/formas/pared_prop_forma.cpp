#include "ui/pared_prop_forma.h"

#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "ui/campo_numero.h"
#include "walls/pared_prop.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSignalSpy>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

const QColor azul(0, 0, 128), encarnado(255, 0, 0);

/// The dialog on a wall of its own, which a test prepares before it opens it.
struct PruebaParedProp : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    QWidget principal;
    std::unique_ptr<ParedProp> logica;
    std::unique_ptr<ParedPropForma> forma;

    PruebaParedProp() {
        pared().Tipo = "Muro";
        pared().Estado = estadoEdicion;
        principal.setGeometry(50, 40, 700, 500);
        principal.show();
    }

    Pared& pared() { return dibujo.Pared.existe(1) ? *dibujo.Pared.en(1) : dibujo.Pared.crear(1); }

    ParedPropForma& abrir() {
        logica = std::make_unique<ParedProp>(dibujo, 1);
        forma = std::make_unique<ParedPropForma>(*logica, &principal);
        mostrarActiva(*forma);
        return *forma;
    }

    QWidget& de(const QString& nombre) const { return control(*forma, nombre); }
    QColor tinta(const QString& nombre) const { return color(de(nombre), QPalette::WindowText); }
    int arriba(const QString& nombre) const { return de(nombre).mapTo(forma.get(), QPoint()).y(); }

    /// The number of the one spoke that is lit with its label, 0 for none.
    int encendido() const {
        int radio = 0;
        for (int i = 1; i <= 13; ++i) {
            const QColor color = tinta(QString("EtiquetaAngulo_%1").arg(i));
            EXPECT_EQ(tinta(QString("LineaAngulo_%1").arg(i)), color);
            if (color == azul) continue;
            EXPECT_EQ(color, encarnado);
            EXPECT_EQ(radio, 0);
            radio = i;
        }
        return radio;
    }
};

}  // namespace

using ParedPropFormaAbrir = PruebaParedProp;
using ParedPropFormaTipo = PruebaParedProp;
using ParedPropFormaPilar = PruebaParedProp;
using ParedPropFormaCampos = PruebaParedProp;
using ParedPropFormaDial = PruebaParedProp;
using ParedPropFormaCerrar = PruebaParedProp;

TEST_F(ParedPropFormaAbrir, SeLlamaComoDebeYTieneSusRotulos) {
    abrir();
    EXPECT_EQ(forma->objectName(), "ParedProp");
    EXPECT_EQ(forma->windowTitle(), "Propiedades de Muros y Tabiques");
    EXPECT_TRUE(forma->isModal());
    EXPECT_EQ(forma->findChild<QGroupBox*>()->title(), "Coordenadas punto inicial");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "Tipo_0"), "Ancho Muro");
    EXPECT_EQ(rotulo<QRadioButton>(*forma, "Tipo_1"), "Ancho Tabique");
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "ChkPredeterminar"), "Salvar  como predeterminados");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Botones_0"), "Cancelar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Botones_1"), "Aplicar");
    EXPECT_EQ(rotulo<QLabel>(*forma, "EtiquetaAngulo_1"), "90º");
    EXPECT_EQ(rotulo<QLabel>(*forma, "EtiquetaAngulo_13"), "-90º");
    esperarAccesible(*forma);
}

TEST_F(ParedPropFormaAbrir, MuestraLasMedidasEnMetros) {
    pared().Longitud = 1234567;
    pared().AnchoMuro = 250;
    pared().AnchoTabique = 85;
    pared().Angulo = 20;
    pared().InicialX = 1500;
    pared().InicialY = 250;
    abrir();
    EXPECT_EQ(texto(*forma, "txtLongitud"), "1.234,57");
    EXPECT_EQ(texto(*forma, "TxtAnchoMuro"), "0,25");
    EXPECT_EQ(texto(*forma, "TxtAnchoTabique"), "0,09");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "20");
    EXPECT_EQ(texto(*forma, "TxtInicialX"), "3");
    EXPECT_EQ(texto(*forma, "TxtInicialY"), "0,5");
}

TEST_F(ParedPropFormaAbrir, VaAlBordeDerechoDeLaVentanaPrincipal) {
    abrir();
    EXPECT_EQ(forma->frameGeometry().right(), principal.frameGeometry().right());
    EXPECT_EQ(forma->frameGeometry().top(), principal.frameGeometry().top() + 23);
}

TEST_F(ParedPropFormaAbrir, NoSeSaleDeLaPantalla) {
    principal.move(-900, 2000);
    abrir();
    EXPECT_TRUE(forma->screen()->availableGeometry().contains(forma->frameGeometry()));
}

TEST_F(ParedPropFormaAbrir, UnaParedQueNoExisteDaUnDialogoVacio) {
    dibujo.Pared.quitar(1);
    abrir();
    EXPECT_EQ(texto(*forma, "txtLongitud"), "");
    EXPECT_TRUE(gris(de("TxtAnchoMuro")));
    pulsar(*forma, "Botones_1");
    EXPECT_FALSE(dibujo.Pared.existe(1));
}

TEST_F(ParedPropFormaTipo, UnMuroTieneSuAnchoBlancoYElOtroGris) {
    abrir();
    EXPECT_TRUE(control<QRadioButton>(*forma, "Tipo_0").isChecked());
    EXPECT_TRUE(blanca(de("TxtAnchoMuro")));
    EXPECT_TRUE(gris(de("TxtAnchoTabique")));
    EXPECT_TRUE(de("Label4_1").isHidden());
}

TEST_F(ParedPropFormaTipo, UnTabiqueAlReves) {
    pared().Tipo = "Tabique";
    abrir();
    EXPECT_TRUE(control<QRadioButton>(*forma, "Tipo_1").isChecked());
    EXPECT_TRUE(gris(de("TxtAnchoMuro")));
    EXPECT_TRUE(blanca(de("TxtAnchoTabique")));
}

TEST_F(ParedPropFormaTipo, ElegirElOtroTipoCambiaLasCasillasYSeAplica) {
    abrir();
    pulsar(*forma, "Tipo_1");
    EXPECT_TRUE(gris(de("TxtAnchoMuro")));
    EXPECT_TRUE(blanca(de("TxtAnchoTabique")));
    pulsar(*forma, "Tipo_0");
    EXPECT_TRUE(blanca(de("TxtAnchoMuro")));
    EXPECT_TRUE(gris(de("TxtAnchoTabique")));
    pulsar(*forma, "Tipo_1");
    pulsar(*forma, "Botones_1");
    EXPECT_EQ(pared().Tipo, "Tabique");
}

TEST_F(ParedPropFormaPilar, EscondeElTipoYMuestraLaAnchuraEnSuLugar) {
    abrir();
    const int longitud = arriba("txtLongitud");
    const int etiqueta = arriba("Label4_0");
    const int primero = arriba("Tipo_0");
    const int ultimo = arriba("TxtAnchoTabique");
    pared().Tipo = "Pilar";
    abrir();
    for (const char* nombre : {"Tipo_0", "Tipo_1", "TxtAnchoTabique", "ChkPredeterminar"})
        EXPECT_TRUE(de(nombre).isHidden()) << nombre;
    EXPECT_TRUE(de("Label4_1").isVisible());
    EXPECT_EQ(rotulo<QLabel>(*forma, "Label4_1"), "Anchura");
    EXPECT_TRUE(blanca(de("TxtAnchoMuro")));
    EXPECT_EQ(arriba("TxtAnchoMuro"), arriba("Label4_1"));
    EXPECT_GE(arriba("Label4_1"), primero);
    EXPECT_LE(arriba("Label4_1"), ultimo);
    EXPECT_EQ(arriba("txtLongitud"), longitud + 13);
    EXPECT_EQ(arriba("Label4_0"), etiqueta + 13);
    esperarAccesible(*forma);
}

TEST_F(ParedPropFormaPilar, AlAplicarSeVuelveTabique) {
    pared().Tipo = "Pilar";
    abrir();
    pulsar(*forma, "Botones_1");
    EXPECT_EQ(pared().Tipo, "Tabique");
}

TEST_F(ParedPropFormaCampos, ElPuntoTecleadoEsComaYLaLongitudSonMilimetros) {
    abrir();
    teclear(*forma, "txtLongitud", "2.5");
    EXPECT_EQ(texto(*forma, "txtLongitud"), "2,5");
    pulsar(*forma, "Botones_1");
    EXPECT_EQ(pared().Longitud, 2500.0);
}

TEST_F(ParedPropFormaCampos, NingunoAdmiteElSignoMenos) {
    abrir();
    for (const char* nombre : {"TxtAnchoMuro", "txtLongitud", "TxtAngulo"}) {
        QSignalSpy pitidos(&control<CampoNumero>(*forma, nombre), &CampoNumero::rechazada);
        teclear(*forma, nombre, "-3");
        EXPECT_EQ(texto(*forma, nombre), "3");
        EXPECT_EQ(pitidos.count(), 1);
    }
}

TEST_F(ParedPropFormaCampos, AlTomarElFocoSeSeleccionanEnteros) {
    abrir();
    EXPECT_EQ(control<QLineEdit>(*forma, "txtLongitud").selectedText(), "4,00");
    for (const char* nombre : {"TxtAnchoMuro", "TxtAngulo", "TxtInicialX", "txtLongitud"}) {
        pulsar(*forma, nombre);
        auto& campo = control<QLineEdit>(*forma, nombre);
        EXPECT_TRUE(campo.hasFocus());
        EXPECT_EQ(campo.selectedText(), campo.text()) << nombre;
    }
}

TEST_F(ParedPropFormaCampos, ElTabuladorLosRecorreEnOrden) {
    abrir();
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"txtLongitud", "ChkPredeterminar", "TxtAngulo", "Dial", "Botones_1", "Botones_0",
                           "TxtInicialX", "TxtInicialY", "Tipo_0", "TxtAnchoMuro"}));
}

TEST_F(ParedPropFormaCampos, LasCoordenadasSoloSeMuestran) {
    abrir();
    const QString antes = texto(*forma, "TxtInicialX");
    QTest::keyClicks(&de("TxtInicialX"), "77");
    EXPECT_EQ(texto(*forma, "TxtInicialX"), antes);
}

TEST_F(ParedPropFormaCampos, UnAnguloTecleadoSeTomaComoEsta) {
    abrir();
    teclear(*forma, "TxtAngulo", "120");
    EXPECT_EQ(encendido(), 7);
    pulsar(*forma, "Botones_1");
    EXPECT_EQ(pared().Angulo, 120);
}

TEST_F(ParedPropFormaDial, TreintaGradosEnciendeElQuintoRadio) {
    pared().Angulo = 30;
    abrir();
    EXPECT_EQ(encendido(), 5);
}

TEST_F(ParedPropFormaDial, VeinteGradosNoEnciendeNinguno) {
    pared().Angulo = 20;
    abrir();
    EXPECT_EQ(encendido(), 0);
}

TEST_F(ParedPropFormaDial, UnClicEnElRadioEscribeElAngulo) {
    abrir();
    pulsar(*forma, "EtiquetaAngulo_12");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "-75");
    EXPECT_EQ(encendido(), 12);
    pulsar(*forma, "EtiquetaAngulo_2");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "75");
    EXPECT_EQ(encendido(), 2);
    EXPECT_TRUE(forma->isVisible());
    EXPECT_EQ(pared().Angulo, 0);
}

TEST_F(ParedPropFormaDial, UnDobleClicAplicaYCierra) {
    abrir();
    auto& etiqueta = de("EtiquetaAngulo_10");
    QTest::mouseClick(&etiqueta, Qt::LeftButton);
    QTest::mouseDClick(&etiqueta, Qt::LeftButton);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_EQ(pared().Angulo, -45);
}

TEST_F(ParedPropFormaDial, ElTecladoTambienLlegaALosAngulosNegativos) {
    abrir();
    QTest::keyClick(&de("Dial"), Qt::Key_Down);
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "-15");
    EXPECT_EQ(encendido(), 8);
}

TEST_F(ParedPropFormaDial, ElAbanicoVaDeArribaAbajoPasandoPorLaDerecha) {
    abrir();
    const auto centro = [&](int i) { return de(QString("EtiquetaAngulo_%1").arg(i)).geometry().center(); };
    for (int i = 1; i < 13; ++i)
        EXPECT_LT(centro(i).y(), centro(i + 1).y());
    EXPECT_GT(centro(7).x(), centro(1).x() + 100);
    EXPECT_NEAR(centro(1).x(), centro(13).x(), 1);
}

TEST_F(ParedPropFormaDial, SobreUnaEtiquetaElPunteroEsLaMano) {
    abrir();
    EXPECT_EQ(de("EtiquetaAngulo_4").cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(ParedPropFormaCerrar, EnterAplica) {
    abrir();
    teclear(*forma, "TxtAnchoMuro", ",3");
    QTest::keyClick(&de("TxtAnchoMuro"), Qt::Key_Return);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(pared().AnchoMuro, 300.0);
}

TEST_F(ParedPropFormaCerrar, ConLaCasillaMarcadaTambienElModelo) {
    abrir();
    control<QCheckBox>(*forma, "ChkPredeterminar").click();
    teclear(*forma, "txtLongitud", "7");
    pulsar(*forma, "Botones_1");
    EXPECT_EQ(dibujo.Pared.modelo().Longitud, 7000.0);
    EXPECT_EQ(dibujo.Pared.modelo().Tipo, "Muro");
}

TEST_F(ParedPropFormaCerrar, CancelarNoCambiaUnaParedQueYaExistia) {
    abrir();
    teclear(*forma, "txtLongitud", "9");
    pulsar(*forma, "Botones_0");
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(pared().Longitud, 4000.0);
}

TEST_F(ParedPropFormaCerrar, EscapeQuitaUnaParedNueva) {
    pared().Estado = estadoNuevo;
    abrir();
    QTest::keyClick(forma.get(), Qt::Key_Escape);
    EXPECT_FALSE(forma->isVisible());
    EXPECT_FALSE(dibujo.Pared.existe(1));
}

TEST_F(ParedPropFormaCerrar, LaCajaDeCierreQuitaUnaParedNueva) {
    pared().Estado = estadoNuevo;
    abrir();
    forma->close();
    EXPECT_FALSE(forma->isVisible());
    EXPECT_FALSE(dibujo.Pared.existe(1));
}
