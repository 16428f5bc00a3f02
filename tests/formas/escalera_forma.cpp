#include "ui/escalera_forma.h"

#include "apoyo/idioma.h"
#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"
#include "stairs_symbols/escalera_prop.h"
#include "ui/campo_numero.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <memory>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

const QColor azul(0, 0, 128), encarnado(255, 0, 0);

const QStringList camposDeUnTramo{"txtHuella", "txtAnchoOjo", "txtPeldaños_1", "txtAnchoTramo_1",
                                  "TxtAngulo"};

/// The dialog on a stair, or on a new one, which a test prepares before it opens it.
struct PruebaEscaleraForma : testing::Test {
    Idioma idioma{Idioma::espanol};
    Dibujo dibujo;
    std::unique_ptr<EscaleraProp> logica;
    std::unique_ptr<EscaleraForma> forma;

    Escalera& escalera() {
        return dibujo.Escalera.existe(2) ? *dibujo.Escalera.en(2) : dibujo.Escalera.crear(2);
    }

    void abrir(int indice = 0, int angulo = 0) {
        logica = std::make_unique<EscaleraProp>(dibujo, indice, angulo, 0.0F, 0.0F);
        forma = std::make_unique<EscaleraForma>(*logica);
        mostrarActiva(*forma);
    }

    QWidget& de(const QString& nombre) const { return control(*forma, nombre); }
    bool hay(const QString& nombre) const { return forma->findChild<QWidget*>(nombre) != nullptr; }
    bool puesta(const QString& nombre) const { return control<QAbstractButton>(*forma, nombre).isChecked(); }
    /// Radios and checks are hit on their indicator.
    void elige(const QString& nombre) const {
        control<QAbstractButton>(*forma, nombre).click();
        QApplication::processEvents();
    }
    QImage marco() const { return de("Marco").grab().toImage(); }
    const Escalera& vista() const { return logica->StairPreview(); }

    /// The number of the one spoke that is lit with its label, 0 for none.
    int encendido() const {
        int radio = 0;
        for (int i = 1; i <= 24; ++i) {
            const QColor tinta = color(de(QString("EtiquetaAngulo_%1").arg(i)), QPalette::WindowText);
            EXPECT_EQ(color(de(QString("LineaAngulo_%1").arg(i)), QPalette::WindowText), tinta);
            if (tinta == azul) continue;
            EXPECT_EQ(tinta, encarnado);
            EXPECT_EQ(radio, 0);
            radio = i;
        }
        return radio;
    }
};

/// Where there is ink on the paper of the preview, its border left out.
QRect tinta(const QImage& imagen) {
    QRect caja;
    for (int y = 2; y < imagen.height() - 2; ++y)
        for (int x = 2; x < imagen.width() - 2; ++x)
            if (imagen.pixelColor(x, y) != QColor(Qt::white)) caja |= QRect(x, y, 1, 1);
    return caja;
}

}  // namespace

using EscaleraFormaAbrir = PruebaEscaleraForma;
using EscaleraFormaTramos = PruebaEscaleraForma;
using EscaleraFormaCampos = PruebaEscaleraForma;
using EscaleraFormaAngulo = PruebaEscaleraForma;
using EscaleraFormaMarco = PruebaEscaleraForma;
using EscaleraFormaCerrar = PruebaEscaleraForma;
using EscaleraEnVentana = VentanaDePrueba;

TEST_F(EscaleraFormaAbrir, SeLlamaComoDebeYTieneSusRotulos) {
    dibujo.Escalera.modelo().Stairs = 3;
    abrir();
    EXPECT_EQ(forma->objectName(), "EscaleraProp");
    EXPECT_EQ(forma->windowTitle(), "Propiedades Escalera");
    EXPECT_TRUE(forma->isModal());
    QStringList marcos;
    for (const auto* marco : forma->findChildren<QGroupBox*>())
        marcos += marco->title().remove('&');
    EXPECT_EQ(marcos, QStringList({"Definición", "Angulo"}));
    QStringList rotulos;
    for (const auto* etiqueta : forma->findChildren<QLabel*>())
        rotulos += etiqueta->text().remove('&');
    for (const char* rotulo : {"Nº Tramos", "Peldaño", "Ancho Ojo", "Color", "Ancho", "Peldaños"})
        EXPECT_TRUE(rotulos.contains(rotulo)) << rotulo;
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(rotulo<QRadioButton>(*forma, QString("optTramos_%1").arg(i)), QString::number(i));
        EXPECT_EQ(rotulo<QLabel>(*forma, QString("lblTramo_%1").arg(i)), QString("Tramo %1").arg(i));
        EXPECT_EQ(rotulo<QCheckBox>(*forma, QString("chkBarandilla_%1").arg(i)), "Barandilla");
    }
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "chkOrientacion"), "Invertir el sentido de giro");
    EXPECT_EQ(rotulo<QCheckBox>(*forma, "Check1"), "Guardar como modelo");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "cmd90Plus_0"), "-90º");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "cmd90Plus_1"), "+90º");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command1"), "Aplicar");
    EXPECT_EQ(rotulo<QPushButton>(*forma, "Command2"), "Cancelar");
    for (int i = 1; i <= 24; ++i)
        EXPECT_EQ(rotulo<QLabel>(*forma, QString("EtiquetaAngulo_%1").arg(i)),
                  QString("%1º").arg(15 * (i - 1)));
    EXPECT_FALSE(hay("EtiquetaAngulo_25"));
    esperarAccesible(*forma);
}

TEST_F(EscaleraFormaAbrir, CadaControlSeLeeConSuNombre) {
    dibujo.Escalera.modelo().Stairs = 2;
    abrir();
    for (const auto& [nombre, leido] : {std::pair{"txtHuella", "Peldaño"},
                                        {"txtAnchoOjo", "Ancho Ojo"},
                                        {"optTramos_2", "Nº Tramos 2"},
                                        {"txtPeldaños_1", "Tramo 1, Peldaños"},
                                        {"txtAnchoTramo_2", "Tramo 2, Ancho"},
                                        {"chkBarandilla_2", "Tramo 2, Barandilla"},
                                        {"TxtAngulo", "Angulo"},
                                        {"cmd90Plus_0", "Restar 90 grados"},
                                        {"cmd90Plus_1", "Sumar 90 grados"},
                                        {"Marco", "Vista previa"},
                                        {"cmdLineColor", "Elegir color de línea"}})
        EXPECT_EQ(de(nombre).accessibleName(), leido);
}

TEST_F(EscaleraFormaAbrir, MuestraLaEscaleraSegunElIdioma) {
    for (const auto& [nombre, huella, ojo, ancho] :
         {std::tuple{Idioma::espanol, "0,30", "0,20", "1,25"}, {Idioma::ingles, "0.30", "0.20", "1.25"}}) {
        const Idioma puesto(nombre);
        escalera().Stairs = 2;
        escalera().WidthSteps = 300;
        escalera().StairEye = 200;
        escalera().WidthStair = {1000, 1250, 1000};
        escalera().StepsStair = {9, 4, 6};
        escalera().RailingSide = {false, true, false};
        escalera().Orientacion = "R";
        escalera().Angle = 30;
        escalera().LineColor = rojo;
        abrir(2);
        EXPECT_EQ(texto(*forma, "txtHuella"), huella);
        EXPECT_EQ(texto(*forma, "txtAnchoOjo"), ojo);
        EXPECT_EQ(texto(*forma, "txtAnchoTramo_2"), ancho);
        EXPECT_EQ(texto(*forma, "txtPeldaños_1"), "9");
        EXPECT_EQ(texto(*forma, "TxtAngulo"), "30");
        EXPECT_TRUE(puesta("optTramos_2") && puesta("chkOrientacion") && puesta("chkBarandilla_2"));
        EXPECT_FALSE(puesta("chkBarandilla_1") || puesta("Check1"));
        EXPECT_EQ(color(de("txtLineColor"), QPalette::Window), encarnado);
        EXPECT_EQ(encendido(), 3);
    }
}

TEST_F(EscaleraFormaTramos, LasFilasVanYVienenConSuNumero) {
    abrir();
    for (const int cuantos : {3, 1, 2, 3}) {
        elige(QString("optTramos_%1").arg(cuantos));
        for (int i = 0; i <= 4; ++i)
            for (const char* nombre :
                 {"lblTramo_%1", "txtPeldaños_%1", "txtAnchoTramo_%1", "chkBarandilla_%1"})
                EXPECT_EQ(hay(QString(nombre).arg(i)), i >= 1 && i <= cuantos) << nombre << i;
        EXPECT_EQ(vista().Stairs, cuantos);
        esperarAccesible(*forma);
    }
}

TEST_F(EscaleraFormaTramos, UnTramoQueVuelveTieneLoQueTenia) {
    abrir();
    elige("optTramos_3");
    teclear(*forma, "txtPeldaños_3", "11");
    teclear(*forma, "txtAnchoTramo_3", "1.4");
    elige("chkBarandilla_3");
    elige("optTramos_1");
    elige("optTramos_3");
    EXPECT_EQ(texto(*forma, "txtPeldaños_3"), "11");
    EXPECT_EQ(texto(*forma, "txtAnchoTramo_3"), "1,40");
    EXPECT_TRUE(puesta("chkBarandilla_3"));
}

TEST_F(EscaleraFormaTramos, ElDialogoNoCambiaDeTamano) {
    abrir();
    const QSize antes = forma->size();
    elige("optTramos_3");
    QApplication::processEvents();
    EXPECT_EQ(forma->size(), antes);
    for (const char* nombre : {"lblTramo_3", "txtPeldaños_3", "txtAnchoTramo_3", "chkBarandilla_3"})
        EXPECT_TRUE(de("frmTramo")
                        .rect()
                        .contains(QRect(de(nombre).mapTo(&de("frmTramo"), QPoint()), de(nombre).size())))
            << nombre;
}

TEST_F(EscaleraFormaCampos, CadaUnoLlegaALaVistaPrevia) {
    abrir();
    elige("optTramos_2");
    teclear(*forma, "txtHuella", "0,3");
    teclear(*forma, "txtAnchoOjo", "1.2");
    teclear(*forma, "txtPeldaños_2", "5");
    teclear(*forma, "txtAnchoTramo_1", "0,75");
    elige("chkBarandilla_1");
    elige("chkOrientacion");
    EXPECT_EQ(vista().WidthSteps, 300);
    EXPECT_EQ(vista().StairEye, 1200);
    EXPECT_EQ(vista().StepsStair[1], 5);
    EXPECT_EQ(vista().WidthStair[0], 750);
    EXPECT_TRUE(vista().RailingSide[0]);
    EXPECT_EQ(vista().Orientacion, "R");
}

TEST_F(EscaleraFormaCampos, TodosAdmitenCifrasComaYPuntoYNadaMas) {
    abrir();
    for (const QString& nombre : camposDeUnTramo) {
        QSignalSpy pitidos(&control<CampoNumero>(*forma, nombre), &CampoNumero::rechazada);
        teclear(*forma, nombre, "-1.5x");
        EXPECT_EQ(texto(*forma, nombre), "1,5") << nombre.toStdString();
        EXPECT_EQ(pitidos.count(), 2);
        QTest::keyClick(&de(nombre), Qt::Key_Backspace);
        EXPECT_EQ(texto(*forma, nombre), "1,");
    }
}

TEST_F(EscaleraFormaCampos, AlTomarElFocoSeSeleccionanEnteros) {
    abrir();
    EXPECT_EQ(control<QLineEdit>(*forma, "txtHuella").selectedText(), "0,28");
    for (const QString& nombre : camposDeUnTramo) {
        de("Command1").setFocus();
        pulsar(*forma, nombre);
        auto& campo = control<QLineEdit>(*forma, nombre);
        EXPECT_TRUE(campo.hasFocus());
        EXPECT_EQ(campo.selectedText(), campo.text()) << nombre.toStdString();
    }
}

TEST_F(EscaleraFormaCampos, ElTabuladorLosRecorreEnOrden) {
    dibujo.Escalera.modelo().Stairs = 3;
    abrir();
    de("optTramos_3").setFocus();
    QTest::keyClick(&de("optTramos_3"), Qt::Key_Left);
    QApplication::processEvents();
    de("txtHuella").setFocus();
    EXPECT_EQ(recorridoTab(*forma),
              QStringList({"txtHuella", "txtAnchoOjo", "cmdLineColor", "chkOrientacion", "optTramos_2",
                           "txtPeldaños_1", "txtAnchoTramo_1", "chkBarandilla_1", "txtPeldaños_2",
                           "txtAnchoTramo_2", "chkBarandilla_2", "TxtAngulo", "cmd90Plus_0", "cmd90Plus_1",
                           "Dial", "Check1", "Command1", "Command2"}));
}

TEST_F(EscaleraFormaCampos, ElTabuladorVaALaOpcionElegida) {
    dibujo.Escalera.modelo().Stairs = 3;
    abrir();
    EXPECT_EQ(recorridoTab(*forma)[4], "optTramos_3");
}

TEST_F(EscaleraFormaCampos, ElColorElegidoSeVeEnLaMuestraYLlegaALaVistaPrevia) {
    abrir();
    QTimer::singleShot(0, forma.get(), [] {
        auto* dialogo = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialogo);
        dialogo->setCurrentColor(QColor(0x12, 0x34, 0x56));
        dialogo->accept();
    });
    pulsar(*forma, "cmdLineColor");
    EXPECT_EQ(color(de("txtLineColor"), QPalette::Window), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(vista().LineColor, 0x563412);
}

TEST_F(EscaleraFormaAngulo, CadaEtiquetaEscribeSuAnguloYSeEnciendeSola) {
    abrir();
    for (int i = 1; i <= 24; ++i) {
        pulsar(*forma, QString("EtiquetaAngulo_%1").arg(i));
        EXPECT_EQ(texto(*forma, "TxtAngulo"), QString::number(15 * (i - 1)));
        EXPECT_EQ(vista().Angle, 15 * (i - 1));
        EXPECT_EQ(encendido(), i);
    }
    EXPECT_TRUE(forma->isVisible());
}

TEST_F(EscaleraFormaAngulo, LosBotonesGiranNoventaGrados) {
    abrir(0, -60);
    pulsar(*forma, "cmd90Plus_1");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "30");
    pulsar(*forma, "cmd90Plus_0");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "300");
    EXPECT_EQ(vista().Angle, 300);
    EXPECT_EQ(encendido(), 21);
}

TEST_F(EscaleraFormaAngulo, TecleadoNoPasaDeTrescientosSesentaYVacioEsCero) {
    abrir();
    teclear(*forma, "TxtAngulo", "45");
    EXPECT_EQ(encendido(), 4);
    QTest::keyClicks(&de("TxtAngulo"), "0");
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "360");
    EXPECT_EQ(vista().Angle, 360);
    EXPECT_EQ(encendido(), 0);
    control<QLineEdit>(*forma, "TxtAngulo").clear();
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "");
    EXPECT_EQ(vista().Angle, 0);
}

TEST_F(EscaleraFormaAngulo, LasFlechasRecorrenElDial) {
    abrir();
    QTest::keyClick(&de("Dial"), Qt::Key_Down);
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "15");
    QTest::keyClick(&de("Dial"), Qt::Key_Up);
    EXPECT_EQ(texto(*forma, "TxtAngulo"), "0");
}

TEST_F(EscaleraFormaMarco, CadaCambioSeVe) {
    abrir();
    QImage antes = marco();
    const auto cambia = [&](const char* que) {
        const QImage despues = marco();
        EXPECT_NE(despues, antes) << que;
        antes = despues;
    };
    teclear(*forma, "txtHuella", "0,4");
    cambia("txtHuella");
    elige("optTramos_3");
    cambia("optTramos");
    teclear(*forma, "txtAnchoOjo", "1,5");
    cambia("txtAnchoOjo");
    teclear(*forma, "txtPeldaños_3", "4");
    cambia("txtPeldaños");
    teclear(*forma, "txtAnchoTramo_2", "1,5");
    cambia("txtAnchoTramo");
    elige("chkBarandilla_1");
    cambia("chkBarandilla");
    pulsar(*forma, "EtiquetaAngulo_3");
    cambia("EtiquetaAngulo");
    pulsar(*forma, "cmd90Plus_0");
    cambia("cmd90Plus");
    elige("chkOrientacion");
    cambia("chkOrientacion");
}

TEST_F(EscaleraFormaMarco, LaEscaleraSeVeEnteraACualquierAngulo) {
    dibujo.Escalera.modelo().RailingSide = {true, true, true};
    for (const double zoom : {0.5, 1.5}) {
        dibujo.FactorZoomActual = zoom;
        for (const char* ojo : {"0", "0,15", "4"})
            for (const char* peldanos : {"1", "8", "300"})
                for (int angulo = 0; angulo < 360; angulo += 45) {
                    dibujo.Escalera.modelo().Stairs = 3;
                    abrir(0, angulo);
                    teclear(*forma, "txtPeldaños_1", peldanos);
                    teclear(*forma, "txtAnchoOjo", ojo);
                    const QImage imagen = marco();
                    const QRect trazos = tinta(imagen);
                    EXPECT_FALSE(trazos.isEmpty());
                    EXPECT_TRUE(imagen.rect().adjusted(8, 8, -8, -8).contains(trazos))
                        << ojo << " " << peldanos << " " << angulo;
                }
    }
}

TEST_F(EscaleraFormaMarco, UnTramoEstaEnElMedioYAprovechaElMarco) {
    abrir();
    const QImage imagen = marco();
    const QRect trazos = tinta(imagen);
    EXPECT_NEAR(trazos.center().x(), imagen.rect().center().x(), 4);
    EXPECT_NEAR(trazos.center().y(), imagen.rect().center().y(), 4);
    EXPECT_GT(trazos.width(), imagen.width() * 3 / 4);
}

TEST_F(EscaleraFormaMarco, ElPapelEsBlancoTambienEnUnEscritorioOscuro) {
    abrir();
    QPalette oscura;
    oscura.setColor(QPalette::Window, Qt::black);
    oscura.setColor(QPalette::Base, Qt::black);
    forma->setPalette(oscura);
    EXPECT_EQ(marco().pixelColor(4, 4), QColor(Qt::white));
}

TEST_F(EscaleraFormaCerrar, AplicarHaceLaEscaleraYConLaMarcaElModelo) {
    abrir();
    teclear(*forma, "txtHuella", "0,3");
    elige("Check1");
    pulsar(*forma, "Command1");
    EXPECT_FALSE(forma->isVisible());
    ASSERT_TRUE(dibujo.Escalera.existe(2));
    EXPECT_EQ(escalera().WidthSteps, 300);
    EXPECT_EQ(dibujo.Escalera.modelo().WidthSteps, 300);
    EXPECT_EQ(dibujo.Escalera.contador, 2);
}

TEST_F(EscaleraFormaCerrar, EnterAplicaEsteDondeEsteElFoco) {
    for (const char* nombre : {"txtHuella", "cmd90Plus_1", "chkBarandilla_1", "optTramos_1", "Dial"}) {
        abrir();
        teclear(*forma, "txtHuella", ",3");
        de(nombre).setFocus();
        QTest::keyClick(&de(nombre), Qt::Key_Return);
        EXPECT_FALSE(forma->isVisible()) << nombre;
        const int indice = dibujo.Escalera.contador;
        ASSERT_TRUE(dibujo.Escalera.existe(indice));
        EXPECT_EQ(dibujo.Escalera.en(indice)->WidthSteps, 300);
        EXPECT_EQ(dibujo.Escalera.en(indice)->Angle, 0);
    }
    EXPECT_EQ(dibujo.Escalera.contador, 6);
}

TEST_F(EscaleraFormaCerrar, CancelarEscapeYLaCajaDeCierreNoHacenNinguna) {
    for (const int como : {0, 1, 2}) {
        abrir();
        elige("Check1");
        elige("optTramos_3");
        if (como == 0) pulsar(*forma, "Command2");
        if (como == 1) QTest::keyClick(forma.get(), Qt::Key_Escape);
        if (como == 2) forma->close();
        EXPECT_FALSE(forma->isVisible());
        EXPECT_FALSE(dibujo.Escalera.existe(2));
        EXPECT_EQ(dibujo.Escalera.contador, 1);
        EXPECT_EQ(dibujo.Escalera.modelo().Stairs, 1);
    }
}

TEST_F(EscaleraEnVentana, SuBotonAbreElDialogoYLaEscaleraQuedaEnLaHoja) {
    cuandoSeAbra<EscaleraForma>([](EscaleraForma& forma) { apoyo::pulsar(forma, "Command1"); });
    pulsar("BttTipo_4");
    ASSERT_TRUE(dibujo().Escalera.existe(2));
    EXPECT_TRUE(dibujo().Escalera.en(2)->Visible);
    EXPECT_FALSE(control("FrUsuario").isVisible());
    pulsar("BttTipo_3");
    EXPECT_TRUE(control("FrUsuario").isVisible());
}
