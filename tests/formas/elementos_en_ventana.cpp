#include "formas/ventana_de_prueba.h"

#include <QLineEdit>

using namespace bosquel;

namespace {

class ElementosEnVentana : public apoyo::VentanaDePrueba {
  protected:
    QLineEdit& editor() { return control<QLineEdit>("TextoLibre_1"); }

    void arrastrar(QPoint de, QPoint a) {
        QWidget& hoja = control("Hoja");
        QTest::mousePress(&hoja, Qt::LeftButton, {}, de);
        for (const QPoint punto : {(de + a) / 2, a}) {
            QMouseEvent paso(QEvent::MouseMove, QPointF(punto), hoja.mapToGlobal(QPointF(punto)),
                             Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(&hoja, &paso);
        }
        QTest::mouseRelease(&hoja, Qt::LeftButton, {}, a);
    }
};

TEST_F(ElementosEnVentana, UnMuebleDeLaPaletaSeArrastra) {
    pulsar("BttTipo_0");
    pulsar("BttMueble_1");
    arrastrar({7, 7}, {107, 57});
    const MblSilla* silla = dibujo().MblSilla.en(1);
    ASSERT_TRUE(silla);
    EXPECT_EQ(silla->Left, 1500.0F);
    EXPECT_EQ(silla->Top, 750.0F);
}

TEST_F(ElementosEnVentana, UnTextoSeEscribeDondeEsta) {
    pulsar("BttUsuario_3");
    ASSERT_TRUE(editor().isVisible());
    EXPECT_TRUE(editor().hasFocus());
    QTest::keyClicks(&editor(), "Cocina");
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Text, "Cocina");
    EXPECT_GE(editor().width(), editor().fontMetrics().horizontalAdvance("Cocina"));
    clicEnHoja({300, 300});
    EXPECT_FALSE(editor().isVisible());
    EXPECT_TRUE(control("Hoja").hasFocus());
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Text, "Cocina");
}

TEST_F(ElementosEnVentana, ElCursorDelTextoVaDondeSePulsa) {
    pulsar("BttUsuario_3");
    QTest::keyClicks(&editor(), "Cocina");
    clicEnHoja({1, 3});
    ASSERT_TRUE(editor().isVisible());
    EXPECT_EQ(editor().cursorPosition(), 0);
    QTest::keyClicks(&editor(), "La ");
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Text, "La Cocina");
}

TEST_F(ElementosEnVentana, ElTextoSeArrastraConElCampoAbierto) {
    pulsar("BttUsuario_3");
    QTest::keyClicks(&editor(), "Cocina");
    arrastrar({4, 4}, {104, 54});
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Left, 1500.0F);
    EXPECT_EQ(editor().pos(), QPoint(100, 50));
}

TEST_F(ElementosEnVentana, ElTabuladorDejaElTexto) {
    pulsar("BttUsuario_3");
    QTest::keyClick(&editor(), Qt::Key_Tab);
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Text, "Texto Libre(1)");
    EXPECT_FALSE(bosquel.sesion().RectSel.Visible);
}

TEST_F(ElementosEnVentana, SuprimirQuitaElTextoQueSeEscribe) {
    pulsar("BttUsuario_3");
    QTest::keyClicks(&editor(), "Cocina");
    QTest::keyClick(&editor(), Qt::Key_Delete);
    EXPECT_EQ(dibujo().TextoLibre.en(1), nullptr);
    EXPECT_FALSE(control("TextoLibre_1").isVisible());
}

TEST_F(ElementosEnVentana, ElEditorYLaHojaEscribenConLaMismaLetra) {
    pulsar("BttUsuario_3");
    QTest::keyClicks(&editor(), "Cocina");
    QImage escrito = control("Hoja").grab(QRect(0, 0, 60, 14)).toImage();
    clicEnHoja({300, 300});
    const QImage dibujado = control("Hoja").grab(QRect(0, 0, 60, 14)).toImage();
    // Where the ink lies, give or take the caret and the frame.
    const auto tinta = [](const QImage& imagen) {
        QRect todo;
        for (int y = 2; y < imagen.height(); ++y)
            for (int x = 2; x < 30; ++x)
                if (qGray(imagen.pixel(x, y)) < 128) todo |= QRect(x, y, 1, 1);
        return todo;
    };
    EXPECT_NEAR(tinta(escrito).top(), tinta(dibujado).top(), 1);
    EXPECT_NEAR(tinta(escrito).left(), tinta(dibujado).left(), 1);
}

}  // namespace
