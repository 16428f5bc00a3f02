#include "ui/entrada_forma.h"

#include "drawing/entrada.h"
#include "formas/apoyo_formas.h"

#include <QScreen>
#include <QTimer>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

const QString version = "Versión 2.5.0.5";

struct PruebaEntradaForma : testing::Test {
    Entrada logica;
    EntradaForma forma{logica};
    QTimer& Timer1 = *forma.findChild<QTimer*>("Timer1");

    PruebaEntradaForma() { forma.show(); }

    void tic(qsizetype veces = 1) {
        for (qsizetype i = 0; i < veces; ++i)
            QMetaObject::invokeMethod(&Timer1, "timeout");
    }
    QString lblVersion() { return control<QLabel>(forma, "lblVersion").text(); }
};

}  // namespace

TEST_F(PruebaEntradaForma, EmpiezaSinTextoConElRelojEnMarchaCada100Milisegundos) {
    EXPECT_EQ(forma.objectName(), "Entrada");
    EXPECT_EQ(lblVersion(), "");
    EXPECT_TRUE(Timer1.isActive());
    EXPECT_EQ(Timer1.interval(), 100);
}

TEST_F(PruebaEntradaForma, CadaTicEscribeUnCaracterMas) {
    tic();
    EXPECT_EQ(lblVersion(), "V");
    tic(5);
    EXPECT_EQ(lblVersion(), "Versió");
    tic(version.size() - 6);
    EXPECT_EQ(lblVersion(), version);
    EXPECT_EQ(Timer1.interval(), 100);
}

TEST_F(PruebaEntradaForma, ElTextoEnteroEsperaYLuegoSeCierra) {
    tic(version.size() + 1);
    EXPECT_EQ(Timer1.interval(), 3500);
    EXPECT_TRUE(forma.isVisible());
    tic();
    EXPECT_FALSE(forma.isVisible());
}

TEST_F(PruebaEntradaForma, UnaPulsacionLaCierraEnseguida) {
    tic(3);
    QTest::mousePress(&control(forma, "lblVersion"), Qt::LeftButton);
    EXPECT_FALSE(forma.isVisible());
    EXPECT_FALSE(Timer1.isActive());
}

TEST_F(PruebaEntradaForma, NoTieneMarcoYEstaEnElCentroDeLaPantalla) {
    EXPECT_TRUE(forma.windowFlags().testFlag(Qt::FramelessWindowHint));
    const QPoint lejania = forma.geometry().center() - forma.screen()->availableGeometry().center();
    EXPECT_LE(lejania.manhattanLength(), 2);
}

TEST_F(PruebaEntradaForma, ElTextoEnteroCabeEnSuEtiqueta) {
    tic(version.size());
    auto& etiqueta = control<QLabel>(forma, "lblVersion");
    EXPECT_LE(etiqueta.sizeHint().width(), etiqueta.width());
    esperarAccesible(forma);
}
