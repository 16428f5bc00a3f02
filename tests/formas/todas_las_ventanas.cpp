#include "formas/apoyo_formas.h"
#include "formas/ventana_de_prueba.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSet>

using namespace bosquel;

namespace {

// What a small screen leaves to a window: a bar of the desktop and a title take their part.
constexpr QSize sitio{1366, 768 - 28 - 32};

/// Opens every dialog of the program from the main window, has each looked at once, and leaves it by Escape.
class TodasLasVentanas : public apoyo::VentanaDePrueba {
  protected:
    TodasLasVentanas() {
        QObject::connect(&reloj, &QTimer::timeout, [this] { mirar(); });
        reloj.start(5);
    }

    void abrirTodas(std::function<void(QDialog&)> mano) {
        revisar = std::move(mano);
        ponMuroMirado();
        for (const char* abertura : {"BttUsuario_4", "BttUsuario_5", "BttOperacion_0"}) {
            pulsar(abertura);
            clicEnHoja(centro(dibujo().Pared.en(1)->ParedPickCentro));
        }
        pulsar("BttUsuario_2");
        clicEnHoja({300, 500});
        for (const char* boton : {"BttTipo_4", "BttPrincipal_6", "BttPrincipal_10", "BttPrincipal_8"})
            pulsar(boton);
        for (const auto& [selector, grupo] :
             {std::pair{0, "BttMueble"}, {1, "BttBaño"}, {2, "BttCocina"}, {5, "BttElectrico"}}) {
            pulsar(QString("BttTipo_%1").arg(selector));
            for (int i = 0; i < 6; ++i) {
                pulsar(QString("%1_%2").arg(grupo).arg(i));
                pulsar("BttPrincipal_5");
            }
        }
        reloj.stop();
    }

    QSet<QString> vistas;

  private:
    /// Applied: the openings want a wall.
    void ponMuroMirado() {
        aplicar = true;
        pulsar("BttUsuario_0");
        clicEnHoja({100, 300});
        aplicar = false;
    }

    void mirar() {
        auto* abierta = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!abierta || !abierta->isVisible()) return;
        if (auto* pregunta = qobject_cast<QMessageBox*>(abierta))
            return pregunta->button(QMessageBox::No)->click();
        if (!vistas.contains(abierta->objectName())) revisar(*abierta);
        vistas.insert(abierta->objectName());
        QTest::keyClick(abierta, aplicar ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_FALSE(abierta->isVisible()) << abierta->objectName().toStdString();
    }

    std::function<void(QDialog&)> revisar;
    QTimer reloj;
    bool aplicar = false;
};

}  // namespace

TEST_F(TodasLasVentanas, CabenEnUnaPantallaPequena) {
    EXPECT_LE(ventana.minimumWidth(), sitio.width());
    EXPECT_LE(ventana.minimumHeight(), sitio.height());
    abrirTodas([](QDialog& abierta) {
        const QSize entera = abierta.minimumSizeHint().expandedTo(abierta.minimumSize());
        EXPECT_LE(entera.width(), sitio.width()) << abierta.objectName().toStdString();
        EXPECT_LE(entera.height(), sitio.height()) << abierta.objectName().toStdString();
    });
    EXPECT_EQ(vistas.size(), 27);
}

TEST_F(TodasLasVentanas, SeManejanConElTeclado) {
    abrirTodas([](QDialog& abierta) {
        SCOPED_TRACE(abierta.objectName().toStdString());
        apoyo::esperarAccesible(abierta);
        EXPECT_FALSE(abierta.accessibleName().isEmpty());
        for (const auto* boton : abierta.findChildren<QPushButton*>())
            EXPECT_EQ(boton->isDefault(), boton->text() == "&Aplicar" || boton->text() == "&Imprimir");
        ASSERT_TRUE(abierta.focusWidget());
        const QStringList recorrido = apoyo::recorridoTab(abierta);
        for (const auto* control : abierta.findChildren<QWidget*>()) {
            const bool parada = (control->focusPolicy() & Qt::TabFocus) && !control->focusProxy();
            if (!parada || !control->isEnabled() || !control->isVisibleTo(&abierta)) continue;
            EXPECT_TRUE(recorrido.contains(control->objectName())) << control->objectName().toStdString();
        }
    });
}
