#include "formas/ventana_de_prueba.h"

#include <QMessageBox>
#include <array>

using namespace bosquel;

namespace {

/// Spokes of the dial by their angle.
int etiqueta(int angulo) {
    return (90 - angulo) / 15 + 1;
}

class UnionesEnVentana : public apoyo::VentanaDePrueba {
  protected:
    /// Lays a wall of 4 m in a direction of the dial, from a point of the sheet in pixels.
    int ponPared(QPoint punto, int angulo) {
        pulsar("BttUsuario_0");
        cuandoSeAbra<QDialog>([angulo](QDialog& dialogo) {
            auto* rotulo = dialogo.findChild<QWidget*>(QString("EtiquetaAngulo_%1").arg(etiqueta(angulo)));
            QTest::mouseClick(rotulo, Qt::LeftButton);
            QTest::mouseClick(dialogo.findChild<QWidget*>("Botones_1"), Qt::LeftButton);
        });
        clicEnHoja(punto);
        return dibujo().Pared.contador - 1;
    }

    /// A tool on the centre grips of two walls.
    void relacionar(const QString& boton, int una, int otra) {
        pulsar(boton);
        for (const int pared : {una, otra}) {
            const QPoint tirador = centro(dibujo().Pared.en(pared)->ParedPickCentro);
            clicEnHoja(tirador);
        }
    }

    void esperarAviso(const QString& texto) {
        cuandoSeAbra<QMessageBox>([this, texto](QMessageBox& caja) {
            EXPECT_EQ(caja.windowTitle(), "Aviso");
            EXPECT_EQ(caja.text(), texto);
            avisado_ = true;
            caja.accept();
        });
    }

    int grupo(int pared) { return dibujo().Pared.en(pared)->NumeroGrupo; }
    int paredes() { return dibujo().Pared.contador - 1; }

    bool avisado_ = false;
};

constexpr auto avisoUnion = "Las líneas señaladas son paralelas y no pueden formar una unión en 'X' o en 'T'";
constexpr auto avisoEsquina = "Las líneas señaladas son paralelas y no pueden formar una esquina";

}  // namespace

TEST_F(UnionesEnVentana, DosParedesQueSeCruzanDanCuatro) {
    const int una = ponPared({200, 300}, 0);
    const int otra = ponPared({250, 360}, 90);
    relacionar("BttOperacion_2", una, otra);
    EXPECT_EQ(paredes(), 4);
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(grupo(i), 1) << i;
}

TEST_F(UnionesEnVentana, UnaParedQueAcabaEnOtraDaTres) {
    const int una = ponPared({200, 300}, 0);
    const int otra = ponPared({260, 296}, 90);
    relacionar("BttOperacion_2", una, otra);
    EXPECT_EQ(paredes(), 3);
}

TEST_F(UnionesEnVentana, ConLaQueBajaPrimeroSoloSeAgrupan) {
    const int baja = ponPared({250, 240}, -90);
    const int una = ponPared({200, 300}, 0);
    const Segmento antes = dibujo().Pared.en(una)->lineas[0];
    relacionar("BttOperacion_2", baja, una);
    EXPECT_EQ(paredes(), 2);
    EXPECT_EQ(grupo(una), 1);
    EXPECT_EQ(grupo(baja), 1);
    EXPECT_EQ(dibujo().Pared.en(una)->lineas[0], antes);
}

TEST_F(UnionesEnVentana, ConLaQueBajaDespuesSeUnen) {
    const int baja = ponPared({250, 240}, -90);
    const int una = ponPared({200, 300}, 0);
    relacionar("BttOperacion_2", una, baja);
    EXPECT_EQ(paredes(), 4);
}

TEST_F(UnionesEnVentana, LasParalelasSeRechazan) {
    const int sube = ponPared({200, 400}, 90);
    const int baja = ponPared({300, 200}, -90);
    esperarAviso(avisoUnion);
    relacionar("BttOperacion_2", sube, baja);
    EXPECT_TRUE(avisado_);
    EXPECT_EQ(grupo(sube), 0);
}

TEST_F(UnionesEnVentana, LaEsquinaDeParalelasSeRechaza) {
    const int una = ponPared({200, 400}, 30);
    const int otra = ponPared({300, 500}, 30);
    esperarAviso(avisoEsquina);
    relacionar("BttOperacion_1", una, otra);
    EXPECT_TRUE(avisado_);
}

TEST_F(UnionesEnVentana, LaEsquinaAbreLaJunta) {
    const int una = ponPared({200, 300}, 0);
    const int otra = ponPared({196, 300}, -90);
    relacionar("BttOperacion_1", una, otra);
    EXPECT_FALSE(dibujo().Pared.en(una)->Visible1);
    EXPECT_FALSE(dibujo().Pared.en(otra)->Visible1);
    EXPECT_EQ(grupo(una), grupo(otra));
    EXPECT_EQ(paredes(), 2);
}

TEST_F(UnionesEnVentana, ElGrupoSeArrastraComoUno) {
    const int una = ponPared({200, 300}, 0);
    const int otra = ponPared({196, 300}, -90);
    relacionar("BttOperacion_1", una, otra);
    const float antes = dibujo().Pared.en(otra)->InicialX;
    const Pinza tirador = dibujo().Pared.en(una)->ParedPickCentro;
    bosquel.pulsar(tirador.Left + 30, tirador.Top + 30);
    bosquel.mover(true, true, tirador.Left + 330, tirador.Top + 30);
    bosquel.soltar(tirador.Left + 330, tirador.Top + 30);
    EXPECT_NEAR(dibujo().Pared.en(otra)->InicialX, antes + 300, 0.5);
}
