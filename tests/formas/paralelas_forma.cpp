#include "ui/paralelas_forma.h"

#include "formas/apoyo_formas.h"
#include "walls/paralelas.h"
#include "walls/pared.h"

#include <QRadioButton>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

class ParalelasFormaPrueba : public testing::Test {
  protected:
    ParalelasFormaPrueba() {
        Pared& pared = dibujo.Pared.crear(1);
        pared.InicialX = 3000;
        pared.InicialY = 3000;
        dibujo.Pared.contador = 2;
        dibujo.FactorZoomActual = 1;
        DibujaPared(dibujo, 1, false);
    }

    Dibujo dibujo;
};

}  // namespace

TEST_F(ParalelasFormaPrueba, SeLlamaComoSuTituloYSusControlesTienenNombre) {
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    EXPECT_EQ(forma.objectName(), "Paralelas");
    EXPECT_EQ(forma.windowTitle(), "Situar Paralela");
    EXPECT_EQ(control<QLabel>(forma, "Label1").text(), "Posición de la pared");
    for (const auto* nombre : {"TxtDistancia", "Punto1", "Punto2", "Line1", "Command1", "Command2"})
        EXPECT_TRUE(forma.findChild<QWidget*>(nombre)) << nombre;
    esperarAccesible(forma);
}

TEST_F(ParalelasFormaPrueba, EmpiezaConElPrimerLadoYLaUltimaDistancia) {
    dibujo.DistParalela = 2.5;
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    EXPECT_TRUE(control<QRadioButton>(forma, "Punto1").isChecked());
    EXPECT_EQ(texto(forma, "TxtDistancia").toStdString(), logica.TxtDistancia);
}

TEST_F(ParalelasFormaPrueba, ElegirUnLadoDevuelveElFocoALaDistancia) {
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    mostrarActiva(forma);
    control(forma, "Command2").setFocus();
    pulsar(forma, "Punto2");
    EXPECT_EQ(logica.elegido, Paralelas::Punto::Punto2);
    EXPECT_TRUE(control(forma, "TxtDistancia").hasFocus());
    EXPECT_EQ(control<QLineEdit>(forma, "TxtDistancia").selectedText(), texto(forma, "TxtDistancia"));
}

TEST_F(ParalelasFormaPrueba, AplicarCopiaLaParedALaDistanciaTecleada) {
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    teclear(forma, "TxtDistancia", "1.5");
    EXPECT_EQ(texto(forma, "TxtDistancia"), "1,5");
    pulsar(forma, "Command1");
    ASSERT_TRUE(dibujo.Pared.en(2));
    EXPECT_EQ(dibujo.Pared.en(2)->InicialY, 3000.0F + 100 + 1500);
    EXPECT_EQ(dibujo.DistParalela, 1.5);
}

TEST_F(ParalelasFormaPrueba, CancelarNoCambiaNada) {
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    teclear(forma, "TxtDistancia", "9");
    pulsar(forma, "Command2");
    EXPECT_FALSE(dibujo.Pared.en(2));
    EXPECT_EQ(dibujo.DistParalela, 1.0);
}

TEST_F(ParalelasFormaPrueba, LosBotonesEstanACadaLadoDelTrazo) {
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    const QPoint uno = control(forma, "Punto1").geometry().center();
    const QPoint dos = control(forma, "Punto2").geometry().center();
    const QPoint medio = control(forma, "Line1").geometry().center();
    EXPECT_NEAR((uno + dos).y() / 2.0, medio.y(), 1);
    EXPECT_NEAR(uno.x(), medio.x(), 1);
    EXPECT_NE(uno.y(), dos.y());
}

TEST_F(ParalelasFormaPrueba, ElBocetoEsPapelTambienEnUnEscritorioOscuro) {
    const QPalette antes = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    Paralelas logica(dibujo, 1);
    ParalelasForma forma(logica);
    forma.ensurePolished();
    const QWidget& lado = control(forma, "Punto1");
    EXPECT_EQ(color(*lado.parentWidget(), QPalette::Window), QColor(Qt::white));
    EXPECT_EQ(color(lado, QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(color(lado, QPalette::Text), QColor(Qt::black));
    QApplication::setPalette(antes);
}
