#include "formas/ventana_de_prueba.h"
#include "furnishing/recuadro.h"

#include <QLineEdit>

using namespace bosquel;

namespace {

/// The rows of a picture in which something dark stands.
std::vector<int> filasConTinta(const QImage& imagen) {
    std::vector<int> filas;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qRed(imagen.pixel(x, y)) < 160) {
                filas.push_back(y);
                break;
            }
    return filas;
}

class ElementosEnVentana : public apoyo::VentanaDePrueba {
  protected:
    QLineEdit& editor() { return control<QLineEdit>("TextoLibre_1"); }

    /// The pointer passes over the sheet without a button.
    void cruzarHoja(QPoint punto) {
        QWidget& hoja = control("Hoja");
        QMouseEvent paso(QEvent::MouseMove, QPointF(punto), hoja.mapToGlobal(QPointF(punto)), Qt::NoButton,
                         Qt::NoButton, {});
        QApplication::sendEvent(&hoja, &paso);
    }

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

/// The window of buttons on which a kind is made, and its button.
QString botonDe(const DatosClase& fila) {
    constexpr std::array<const char*, 6> grupos{"BttMueble",  "BttBaño",      "BttCocina",
                                                "BttUsuario", "BttElectrico", "BttTipo"};
    return QString("%1_%2").arg(grupos.at(static_cast<std::size_t>(fila.grupo))).arg(fila.boton);
}

QString selectorDe(Grupo grupo) {
    constexpr std::array<int, 5> selectores{0, 1, 2, 3, 5};
    return QString("BttTipo_%1").arg(selectores.at(static_cast<std::size_t>(grupo)));
}

TEST_F(ElementosEnVentana, CadaBotonDeCadaPaletaHaceLoSuyoQueSeArrastraSeDefineYSeElimina) {
    for (const DatosClase& fila : todasLasClases()) {
        const bool mueble = fila.clase <= Clase::MblVertedero;
        if (!mueble && fila.clase != Clase::Electrico) continue;
        SCOPED_TRACE(fila.nombre);
        pulsar(selectorDe(fila.grupo));
        pulsar(botonDe(fila));
        const Referencia cual{fila.clase, 1};
        const Situado* hecho = situado(dibujo(), cual);
        ASSERT_TRUE(hecho);
        const auto caja = recuadroDe(dibujo(), fila.clase, 1);
        const QPoint centro((QPointF(caja->Width, caja->Height) / 30).toPoint());
        arrastrar(centro, centro + QPoint(100, 50));
        EXPECT_EQ(hecho->Left, 1500.0F);
        EXPECT_EQ(hecho->Top, 750.0F);
        bool abierto = false;
        cuandoSeAbra<QDialog>([&](QDialog& dialogo) {
            abierto = dialogo.objectName() == QString::fromUtf8(fila.dialogo.data());
            dialogo.reject();
        });
        QTest::mouseDClick(&control("Hoja"), Qt::LeftButton, {}, centro + QPoint(100, 50));
        EXPECT_EQ(abierto, fila.dobleClic == DobleClic::enElActo) << "before the event has ended";
        ASSERT_TRUE(QTest::qWaitFor([&] { return abierto; }));
        pulsar("BttPrincipal_7");
        EXPECT_EQ(situado(dibujo(), cual), nullptr);
        clicEnHoja({600, 400});
    }
}

TEST_F(ElementosEnVentana, ElDialogoDeUnaMesaEscribeEnElArchivo) {
    pulsar("BttTipo_0");
    pulsar("BttMueble_0");
    cuandoSeAbra<QDialog>([](QDialog& dialogo) {
        dialogo.findChild<QLineEdit*>("TxtMesaX")->setText("1,60");
        QTest::mouseClick(dialogo.findChild<QWidget*>("OptSillas_2"), Qt::LeftButton);
        QTest::mouseClick(dialogo.findChild<QWidget*>("Dist2_0"), Qt::LeftButton);
        QTest::mouseClick(dialogo.findChild<QWidget*>("Command1"), Qt::LeftButton);
    });
    pulsar("BttPrincipal_5");
    EXPECT_EQ(dibujo().MblMesa.en(1)->MesaDimX, 1600);
    EXPECT_EQ(dibujo().MblMesa.en(1)->ColocacionSillas, "2UD");
    GuardarDibujo(bosquel.sesion(), carpeta / "AutoSave.bqr");
    const std::string bytes = apoyo::bytesDe(carpeta / "AutoSave.bqr");
    EXPECT_NE(bytes.find("ColocacionSillas=2UD\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("MesaDimX=1600\r\n"), std::string::npos);
}

TEST_F(ElementosEnVentana, ElImanAjustaEnElSiguientePaso) {
    pulsar("BttTipo_0");
    pulsar("BttMueble_1");
    dibujo().Iman = true;
    arrastrar({7, 7}, {17, 7});
    ASSERT_EQ(dibujo().MblSilla.en(1)->Left, 150.0F);
    dibujo().MblSilla.en(1)->Left = 149;
    anunciar(dibujo(), Clase::MblSilla, 1);
    cruzarHoja({17, 7});
    EXPECT_EQ(dibujo().MblSilla.en(1)->Left, 100.0F);
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

TEST_F(ElementosEnVentana, LasLetrasSeVenEnterasYEnSuSitioMientrasSeEscriben) {
    for (int indice = 1; indice <= 3; ++indice) {
        pulsar("BttUsuario_3");
        TextoLibre& texto = *dibujo().TextoLibre.en(indice);
        texto.Top += 450;
        anunciar(dibujo(), Clase::TextoLibre, indice);
        publicar(bosquel.sesion());
        auto& campo = control<QLineEdit>(QString("TextoLibre_%1").arg(indice));
        ASSERT_TRUE(campo.isVisible());
        campo.selectAll();
        QTest::keyClicks(&campo, "ÁÑÓjgp");
        // Without the caret, which stands at the end.
        const QRect letras(campo.pos(),
                           QSize(campo.fontMetrics().horizontalAdvance("ÁÑÓjg"), campo.height()));
        const auto tinta = [&] { return filasConTinta(control("Hoja").grab(letras).toImage()); };
        const auto escribiendo = tinta();
        clicEnHoja({300, 300});
        ASSERT_FALSE(campo.isVisible());
        const auto escritas = tinta();
        ASSERT_GT(escritas.size(), 5U);
        EXPECT_EQ(escribiendo.size(), escritas.size()) << dibujo().FactorZoomActual;
        // The toolkit rounds where a line of its edits stands.
        EXPECT_NEAR(escribiendo.front(), escritas.front(), 1) << dibujo().FactorZoomActual;
        texto.Left += 6000;
        anunciar(dibujo(), Clase::TextoLibre, indice);
        pulsar("BttPrincipal_4");
    }
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
    const QPoint antes = editor().pos();
    arrastrar({4, 4}, {104, 54});
    EXPECT_EQ(dibujo().TextoLibre.en(1)->Left, 1500.0F);
    EXPECT_EQ(editor().pos() - antes, QPoint(100, 50));
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
