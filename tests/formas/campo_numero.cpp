#include "ui/campo_numero.h"

#include "formas/apoyo_formas.h"
#include "model/standard.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

struct CampoNumeroPrueba : testing::Test {
    QWidget ventana;
    QVBoxLayout columna{&ventana};
    CampoNumero decimal{FiltraDecimal};
    CampoNumero entero{FiltraEntero};
    CampoNumero quieto{FiltraEntero, CampoNumero::AlEnfocar::dejarCursor};
    QSignalSpy pitidos{&decimal, &CampoNumero::rechazada};

    CampoNumeroPrueba() {
        for (auto* campo : {&entero, &decimal, &quieto})
            columna.addWidget(campo);
        decimal.setText("12,34");
        quieto.setText("56");
        mostrarActiva(ventana);
        entero.setFocus();
    }

    static void pegar(CampoNumero& campo, const QString& texto) {
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
    }
};

}  // namespace

using CampoNumeroFoco = CampoNumeroPrueba;
using CampoNumeroFiltro = CampoNumeroPrueba;

TEST_F(CampoNumeroFiltro, ElPuntoSeConvierteEnComa) {
    decimal.clear();
    QTest::keyClicks(&decimal, "2.5");
    EXPECT_EQ(decimal.text(), "2,5");
    EXPECT_EQ(pitidos.count(), 0);
}

TEST_F(CampoNumeroFiltro, UnCaracterRehusadoPitaYNoEntra) {
    decimal.clear();
    QTest::keyClicks(&decimal, "-1a");
    EXPECT_EQ(decimal.text(), "1");
    EXPECT_EQ(pitidos.count(), 2);
}

TEST_F(CampoNumeroFiltro, UnCaracterRehusadoNoBorraLoSeleccionado) {
    decimal.selectAll();
    QTest::keyClick(&decimal, 'x');
    EXPECT_EQ(decimal.text(), "12,34");
    EXPECT_EQ(decimal.selectedText(), "12,34");
}

TEST_F(CampoNumeroFiltro, UnaTeclaConAltTampocoEscribe) {
    QTest::keyClick(&decimal, 'q', Qt::AltModifier);
    EXPECT_EQ(decimal.text(), "12,34");
}

TEST_F(CampoNumeroFiltro, LasTeclasDeEdicionPasanSinPitar) {
    decimal.setCursorPosition(5);
    QTest::keyClick(&decimal, Qt::Key_Backspace);
    QTest::keyClick(&decimal, Qt::Key_Home);
    QTest::keyClick(&decimal, Qt::Key_Delete);
    EXPECT_EQ(decimal.text(), "2,3");
    QTest::keyClick(&decimal, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(decimal.selectedText(), "2,3");
    QTest::keyClick(&decimal, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pitidos.count(), 0);
}

TEST_F(CampoNumeroFiltro, LoPegadoPasaPorElFiltroCaracterACaracter) {
    decimal.clear();
    pegar(decimal, "-1.5 m");
    EXPECT_EQ(decimal.text(), "1,5");
    EXPECT_EQ(pitidos.count(), 1);
    pegar(entero, "3,7");
    EXPECT_EQ(entero.text(), "37");
}

TEST_F(CampoNumeroFiltro, ElMenuTambienPegaPorElFiltro) {
    decimal.clear();
    QApplication::clipboard()->setText("a2.b");
    QContextMenuEvent suceso(QContextMenuEvent::Mouse, {2, 2}, decimal.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&decimal, &suceso);
    auto* menu = decimal.findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    for (auto* orden : menu->actions())
        if (orden->text() == "&Pegar") orden->trigger();
    menu->close();
    EXPECT_EQ(decimal.text(), "2,");
}

TEST_F(CampoNumeroFiltro, ElMetodoDeEntradaPasaPorElFiltro) {
    decimal.clear();
    QInputMethodEvent suceso;
    suceso.setCommitString("ñ4.");
    QApplication::sendEvent(&decimal, &suceso);
    EXPECT_EQ(decimal.text(), "4,");
    EXPECT_EQ(pitidos.count(), 1);
}

TEST_F(CampoNumeroFiltro, LoQuePoneElProgramaNoSeFiltra) {
    decimal.setText("-75");
    EXPECT_EQ(decimal.text(), "-75");
    EXPECT_EQ(pitidos.count(), 0);
}

TEST_F(CampoNumeroFoco, PorTecladoSeleccionaTodo) {
    QTest::keyClick(&entero, Qt::Key_Tab);
    EXPECT_TRUE(decimal.hasFocus());
    EXPECT_EQ(decimal.selectedText(), "12,34");
}

TEST_F(CampoNumeroFoco, PorProgramaSeleccionaTodo) {
    decimal.setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(decimal.selectedText(), "12,34");
}

TEST_F(CampoNumeroFoco, PorRatonSeleccionaTodoYLoConservaAlSoltar) {
    QTest::mousePress(&decimal, Qt::LeftButton, {}, {8, 8});
    QTest::mouseMove(&decimal, {11, 9});
    QTest::mouseRelease(&decimal, Qt::LeftButton, {}, {11, 9});
    EXPECT_TRUE(decimal.hasFocus());
    EXPECT_EQ(decimal.selectedText(), "12,34");
}

TEST_F(CampoNumeroFoco, UnSegundoClicPoneElCursor) {
    QTest::mouseClick(&decimal, Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(&decimal, Qt::LeftButton, {}, {8, 8}, QApplication::doubleClickInterval() + 1);
    EXPECT_EQ(decimal.selectedText(), "");
}

TEST_F(CampoNumeroFoco, AlVolverALaVentanaNoSeleccionaDeNuevo) {
    decimal.setFocus();
    decimal.deselect();
    QFocusEvent sale(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent vuelve(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&decimal, &sale);
    QApplication::sendEvent(&decimal, &vuelve);
    EXPECT_EQ(decimal.selectedText(), "");
}

TEST_F(CampoNumeroFoco, ElCampoQuietoNoSeleccionaNada) {
    decimal.setFocus();
    QTest::keyClick(&decimal, Qt::Key_Tab);
    EXPECT_TRUE(quieto.hasFocus());
    EXPECT_EQ(quieto.selectedText(), "");
}

TEST_F(CampoNumeroPrueba, InhabilitadoTieneElColorDeLosBotones) {
    decimal.setEnabled(false);
    EXPECT_TRUE(gris(decimal));
    decimal.setEnabled(true);
    EXPECT_TRUE(blanca(decimal));
}
