#include "formas/ventana_de_prueba.h"

#include <QLineEdit>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

/// A user sets openings into a wall by the buttons, the sheet and the dialogs of the real window.
class AberturasEnVentana : public VentanaDePrueba {
  protected:
    /// Types a length, if any, and presses a button of the next dialog.
    void enElDialogo(const char* boton, const QString& longitud = {}) {
        cuandoSeAbra<QDialog>([boton, longitud](QDialog& dialogo) {
            if (!longitud.isEmpty()) dialogo.findChild<QLineEdit*>("txtLongitud")->setText(longitud);
            QTest::mouseClick(dialogo.findChild<QWidget*>(boton), Qt::LeftButton);
        });
    }
    void pon(const char* paleta, const char* boton, const QString& longitud = {}) {
        pulsar(paleta);
        enElDialogo(boton, longitud);
        clicEnHoja(centro(pared().ParedPickBIS));
    }
    void ponVentana() { pon("BttUsuario_5", "Command1"); }

    void cruzarHoja(QPoint punto, Qt::MouseButtons botones = {}) {
        QWidget& hoja = control("Hoja");
        QMouseEvent paso(QEvent::MouseMove, punto, hoja.mapToGlobal(punto), Qt::NoButton, botones, {});
        QApplication::sendEvent(&hoja, &paso);
    }
    void elegir(const Pinza& pinza) {
        cruzarHoja(centro(pinza));
        clicEnHoja(centro(pinza));
    }

    Pared& pared() { return *dibujo().Pared.en(1); }
    Ventana& ventanaDibujada(int i) { return *dibujo().Ventana.en(i); }
    QColor tinta(const Segmento& linea) {
        const QPoint medio = (QPointF(linea.X1 + linea.X2, linea.Y1 + linea.Y2) / 30).toPoint();
        return control("Hoja").grab(QRect(medio, QSize(1, 1))).toImage().pixelColor(0, 0);
    }
};

}  // namespace

TEST_F(AberturasEnVentana, SePonenSeEditanSeArrastranSeAmplianYSeEliminan) {
    ponMuro({100, 200});
    ponVentana();
    pon("BttUsuario_4", "Command1", "0,9");
    EXPECT_EQ(dibujo().Puerta.en(1)->Longitud, 900);
    EXPECT_EQ(tinta(ventanaDibujada(1).lineas[4]), QColor(Qt::black));
    EXPECT_NE(pared().NumeroGrupo, 0);

    elegir(ventanaDibujada(1).VentanaPick);
    enElDialogo("Command1", "1,5");
    QTest::mouseDClick(&control("Hoja"), Qt::LeftButton, {}, centro(ventanaDibujada(1).VentanaPick));
    EXPECT_EQ(ventanaDibujada(1).Longitud, 1500);

    const Segmento antes = ventanaDibujada(1).lineas[4];
    const QPoint de = centro(pared().ParedPick);
    cruzarHoja(de);
    QTest::mousePress(&control("Hoja"), Qt::LeftButton, {}, de);
    cruzarHoja(de + QPoint(40, 60), Qt::LeftButton);
    EXPECT_EQ(ventanaDibujada(1).lineas[4].Y1, antes.Y1 + 900);
    EXPECT_EQ(tinta(ventanaDibujada(1).lineas[4]), QColor(Qt::black)) << "in the middle of the drag";
    EXPECT_EQ(tinta(antes), QColor(Qt::white));
    QTest::mouseRelease(&control("Hoja"), Qt::LeftButton, {}, de + QPoint(40, 60));

    pulsar("BttPrincipal_4");
    EXPECT_FLOAT_EQ(ventanaDibujada(1).lineas[4].Y1, 2 * (antes.Y1 + 900));

    elegir(ventanaDibujada(1).VentanaPick);
    pulsar("BttPrincipal_7");
    EXPECT_FALSE(dibujo().Ventana.existe(1));
    EXPECT_TRUE(dibujo().Puerta.existe(1));
}

TEST_F(AberturasEnVentana, LaParedSeAbreAlQuitarLaUltimaVentana) {
    ponMuro({100, 200});
    ponVentana();
    ponVentana();
    for (const bool ultima : {false, true}) {
        elegir(ventanaDibujada(dibujo().Ventana.ultimo()).VentanaPick);
        QTest::keyClick(&control("Hoja"), Qt::Key_Delete);
        EXPECT_EQ(pared().NumeroGrupo == 0, ultima);
    }
}

TEST_F(AberturasEnVentana, LaCanceladaQuedaSinDibujar) {
    ponMuro({100, 200});
    pon("BttUsuario_5", "Command2");
    EXPECT_EQ(ventanaDibujada(1).Estado, estadoNuevo);
    EXPECT_FALSE(ventanaDibujada(1).lineas[0].Visible);
    EXPECT_EQ(pared().NumeroGrupo, 0);
}
