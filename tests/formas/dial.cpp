#include "ui/dial.h"

#include "formas/apoyo_formas.h"

#include <QSignalSpy>

using namespace bosquel;
using namespace bosquel::apoyo;

namespace {

const QColor azul(0, 0, 128), encarnado(255, 0, 0);

/// The full circle of a stair: 24 spokes in steps of 15 degrees.
Dial::Traza circulo() {
    Dial::Traza traza{"Etiqueta_", "Linea_", {}, 124};
    for (int angulo = 0; angulo < 360; angulo += 15)
        traza.radios.push_back({QString::number(angulo) + "º", angulo});
    return traza;
}

QColor tinta(Dial& dial, const QString& nombre) {
    return color(control(dial, nombre), QPalette::WindowText);
}

}  // namespace

TEST(Dial, EnReposoTodoEsAzulOscuro) {
    Dial dial(circulo());
    for (int i = 1; i <= 24; ++i) {
        EXPECT_EQ(tinta(dial, QString("Etiqueta_%1").arg(i)), azul);
        EXPECT_EQ(tinta(dial, QString("Linea_%1").arg(i)), azul);
    }
}

TEST(Dial, EnciendeUnRadioYSoloUno) {
    Dial dial(circulo());
    dial.encender(3);
    dial.encender(24);
    EXPECT_EQ(tinta(dial, "Etiqueta_3"), azul);
    EXPECT_EQ(tinta(dial, "Linea_3"), azul);
    EXPECT_EQ(tinta(dial, "Etiqueta_24"), encarnado);
    EXPECT_EQ(tinta(dial, "Linea_24"), encarnado);
    dial.encender(0);
    EXPECT_EQ(tinta(dial, "Etiqueta_24"), azul);
}

TEST(Dial, LasEtiquetasNoSePisanYCabenTodas) {
    Dial dial(circulo());
    const auto etiquetas = dial.findChildren<EtiquetaDial*>();
    ASSERT_EQ(etiquetas.size(), 24);
    for (int i = 0; i < etiquetas.size(); ++i) {
        EXPECT_TRUE(dial.rect().contains(etiquetas[i]->geometry()));
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(etiquetas[i]->geometry().intersects(etiquetas[j]->geometry())) << i << " " << j;
    }
}

TEST(Dial, UnClicAvisaAlSoltarDentro) {
    Dial dial(circulo());
    QSignalSpy pulsaciones(&dial, &Dial::pulsado);
    auto& etiqueta = control(dial, "Etiqueta_7");
    QTest::mousePress(&etiqueta, Qt::LeftButton);
    EXPECT_EQ(pulsaciones.count(), 0);
    QTest::mouseRelease(&etiqueta, Qt::LeftButton);
    ASSERT_EQ(pulsaciones.count(), 1);
    EXPECT_EQ(pulsaciones[0][0].toInt(), 7);

    QTest::mousePress(&etiqueta, Qt::LeftButton);
    QTest::mouseRelease(&etiqueta, Qt::LeftButton, {}, {-20, -20});
    QTest::mouseClick(&etiqueta, Qt::RightButton);
    EXPECT_EQ(pulsaciones.count(), 1);
}

TEST(Dial, UnDobleClicAvisaComoTal) {
    Dial dial(circulo());
    QSignalSpy dobles(&dial, &Dial::doblePulsado);
    QTest::mouseDClick(&control(dial, "Etiqueta_2"), Qt::LeftButton);
    ASSERT_EQ(dobles.count(), 1);
    EXPECT_EQ(dobles[0][0].toInt(), 2);
}

TEST(Dial, SobreUnaEtiquetaElPunteroEsLaManoYLosRadiosDejanPasarElRaton) {
    Dial dial(circulo());
    EXPECT_EQ(control(dial, "Etiqueta_1").cursor().shape(), Qt::PointingHandCursor);
    EXPECT_NE(dial.cursor().shape(), Qt::PointingHandCursor);
    for (int i = 1; i <= 24; ++i)
        EXPECT_TRUE(
            control(dial, QString("Linea_%1").arg(i)).testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST(Dial, LasFlechasRecorrenLosRadios) {
    Dial dial(circulo());
    QObject::connect(&dial, &Dial::pulsado, &dial, &Dial::encender);
    QSignalSpy pulsaciones(&dial, &Dial::pulsado);
    dial.encender(23);
    QTest::keyClick(&dial, Qt::Key_Down);
    QTest::keyClick(&dial, Qt::Key_Right);
    EXPECT_EQ(tinta(dial, "Etiqueta_24"), encarnado);
    QTest::keyClick(&dial, Qt::Key_Up);
    EXPECT_EQ(tinta(dial, "Etiqueta_23"), encarnado);
    EXPECT_EQ(pulsaciones.count(), 2);
}

TEST(Dial, ElFondoEsBlancoTambienEnUnEscritorioOscuro) {
    Dial dial(circulo());
    QPalette oscura;
    oscura.setColor(QPalette::Window, Qt::black);
    dial.setPalette(oscura);
    EXPECT_EQ(dial.grab().toImage().pixelColor(3, 3), QColor(Qt::white));
}
