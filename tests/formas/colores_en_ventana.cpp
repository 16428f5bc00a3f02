#include "formas/ventana_de_prueba.h"
#include "ui/selector_color.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QRadioButton>
#include <QScreen>

using namespace bosquel;
using ColoresEnVentana = apoyo::VentanaDePrueba;

namespace {

constexpr Color verdeOscuro = 0x006400;

void elegir(QDialog& dialogo, const char* boton, Color color) {
    auto* selector = qobject_cast<SelectorColor*>(dialogo.findChild<QAbstractButton*>(boton)->parentWidget());
    selector->ponerColor(color);
    emit selector->elegido(true);
}

void pulsarEn(QDialog& dialogo, const char* boton) {
    dialogo.findChild<QAbstractButton*>(boton)->click();
}

bool tiene(QWidget& hoja, const QColor& color) {
    const QImage imagen = hoja.grab().toImage();
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (imagen.pixelColor(x, y) == color) return true;
    return false;
}

}  // namespace

TEST_F(ColoresEnVentana, ElBotonAbreElDialogoEnElBordeDerecho) {
    bool abierto = false;
    cuandoSeAbra<QDialog>([&](QDialog& dialogo) {
        abierto = true;
        EXPECT_EQ(dialogo.objectName(), "Colores");
        EXPECT_TRUE(dialogo.isModal());
        const QRect pantalla = ventana.screen()->availableGeometry();
        const QRect marco = dialogo.frameGeometry();
        const int borde = std::min(ventana.frameGeometry().right(), pantalla.right());
        EXPECT_TRUE(marco.right() == borde || marco.width() > pantalla.width()) << marco.right();
        dialogo.reject();
    });
    pulsar("BttPrincipal_10");
    EXPECT_TRUE(abierto);
    EXPECT_FALSE(bosquel.sesion().Ocupado);
}

TEST_F(ColoresEnVentana, LaHojaSePintaConLosColoresAplicados) {
    ponMuro({200, 200});
    EXPECT_FALSE(tiene(control("Hoja"), QColor(0, 100, 0)));
    cuandoSeAbra<QDialog>([](QDialog& dialogo) {
        dialogo.findChild<QRadioButton*>("optSchemaColor_1")->click();
        elegir(dialogo, "cmdLineCatColor_4", verdeOscuro);
        pulsarEn(dialogo, "Command1");
    });
    pulsar("BttPrincipal_10");
    QApplication::processEvents();
    EXPECT_TRUE(tiene(control("Hoja"), QColor(0, 100, 0)));
    cuandoSeAbra<QDialog>([](QDialog& dialogo) {
        dialogo.findChild<QRadioButton*>("optSchemaColor_0")->click();
        pulsarEn(dialogo, "Command1");
    });
    pulsar("BttPrincipal_10");
    QApplication::processEvents();
    EXPECT_FALSE(tiene(control("Hoja"), QColor(0, 100, 0)));
    EXPECT_EQ(dibujo().Pared.modelo().LineColor, colorTextoVentana);
}

TEST_F(ColoresEnVentana, GuardarPideElNombreYAvisaDelanteDelDialogo) {
    cuandoSeAbra<QDialog>([this](QDialog& dialogo) {
        dialogo.findChild<QRadioButton*>("optSchemaColor_2")->click();
        cuandoSeAbra<QInputDialog>([&](QInputDialog& caja) {
            EXPECT_EQ(caja.parentWidget(), &dialogo);
            EXPECT_EQ(caja.windowTitle(), "Guardar Perfil");
            EXPECT_EQ(caja.labelText(), "Establezca el nombre para el nuevo perfil");
            caja.setTextValue("Ático");
            cuandoSeAbra<QMessageBox>([&](QMessageBox& aviso) {
                EXPECT_EQ(aviso.parentWidget(), &dialogo);
                EXPECT_EQ(aviso.windowTitle(), "Aviso");
                EXPECT_EQ(aviso.text(), "Perfil Guardado con éxito");
                aviso.accept();
            });
            caja.accept();
        });
        pulsarEn(dialogo, "cmdGuardarPerfil");
        pulsarEn(dialogo, "Command1");
    });
    pulsar("BttPrincipal_10");
    EXPECT_EQ(dibujo().Perfil, "Ático");
    EXPECT_TRUE(std::filesystem::exists(carpeta.ruta() / "PerfilesColor.ini"));
}
