#include "apoyo/invariantes.h"
#include "apoyo/semillas.h"
#include "apoyo/uniones_muros.h"
#include "formas/ventana_de_prueba.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QScrollBar>

namespace bosquel::apoyo {

namespace {

/// The real windows, but for what would end the program or leave its folder.
class PlataformaCercada : public PlataformaQt {
  public:
    PlataformaCercada(std::filesystem::path carpeta, Azar& azar)
        : carpeta_(std::move(carpeta)), azar_(azar) {}

    std::optional<std::filesystem::path> elegirArchivo(const PeticionArchivo&) override {
        static constexpr std::array nombres{"a.bqr", "b.bqr", "c.bmp"};
        const int cual = azar_.entre(0, 3);
        if (cual == 3) return std::nullopt;
        return carpeta_ / nombres.at(static_cast<std::size_t>(cual));
    }
    void terminar() override {}

  private:
    std::filesystem::path carpeta_;
    Azar& azar_;
};

/// A user without sense or patience before the real window. A dialog is worked for a few turns, and closed if
/// it is still there.
class MonoEnVentana : public testing::TestWithParam<unsigned> {
  protected:
    MonoEnVentana() {
        plataforma_.ponerVentana(&ventana_);
        ventana_.resize(1000, 700);
        ResetearDibujo(bosquel_.sesion());
        ventana_.show();
        QApplication::processEvents();
        vigila();
    }

    void paso() {
        switch (azar_.entre(0, 9)) {
            case 0: return tecla(*(ventana_.focusWidget() ? ventana_.focusWidget() : &ventana_));
            case 1: return bosquel_.minutoDeAutoSave();
            case 2: return ventana_.resize(azar_.entre(300, 1200), azar_.entre(300, 900));
            case 3:
            case 4:
            case 5: return enUno(ventana_);
            default: return arrastra(*ventana_.findChild<QWidget*>("Hoja"));
        }
    }

    Azar azar_{GetParam()};
    CarpetaTemporal carpeta_;
    PlataformaCercada plataforma_{carpeta_.ruta(), azar_};
    Bosquel bosquel_{plataforma_, carpeta_.ruta()};
    VentanaBosquel ventana_{bosquel_};

  private:
    /// One event on a control at random, of those that can be worked.
    void enUno(QWidget& ventana) {
        QList<QWidget*> hijos;
        for (QWidget* hijo : ventana.findChildren<QWidget*>())
            if (hijo->isVisible() && hijo->isEnabled() && hijo->window() == &ventana) hijos += hijo;
        if (hijos.isEmpty()) return;
        QWidget& uno = *hijos.at(azar_.entre(0, static_cast<int>(hijos.size()) - 1));
        if (auto* campo = qobject_cast<QLineEdit*>(&uno)) return escribe(*campo);
        if (auto* barra = qobject_cast<QScrollBar*>(&uno)) return barra->setValue(azar_.entre(0, 100));
        if (azar_.entre(0, 9) == 0) return tecla(uno);
        QTest::mouseClick(&uno, Qt::LeftButton, {}, lugar(uno));
    }

    void escribe(QLineEdit& campo) {
        static const QStringList textos{"", "0", "1,5", "2.25", "-3", "1e308", "abc", "99999999999", "[a]"};
        campo.selectAll();
        QTest::keyClicks(&campo, textos.at(azar_.entre(0, static_cast<int>(textos.size()) - 1)));
    }

    void tecla(QWidget& donde) {
        static constexpr std::array teclas{Qt::Key_Delete, Qt::Key_Tab,   Qt::Key_Return,   Qt::Key_Space,
                                           Qt::Key_Left,   Qt::Key_Down,  Qt::Key_A,        Qt::Key_5,
                                           Qt::Key_Escape, Qt::Key_Comma, Qt::Key_Backspace};
        QTest::keyClick(&donde, teclas.at(static_cast<std::size_t>(azar_.entre(0, int{teclas.size()} - 1))));
    }

    QPoint lugar(const QWidget& en) {
        return {azar_.entre(0, std::max(en.width() - 1, 0)), azar_.entre(0, std::max(en.height() - 1, 0))};
    }

    void raton(QWidget& donde, QEvent::Type tipo, QPoint punto, bool pulsado) {
        const bool cambia = tipo != QEvent::MouseMove;
        QMouseEvent evento(tipo, QPointF(punto), QPointF(donde.mapToGlobal(punto)),
                           cambia ? Qt::LeftButton : Qt::NoButton, pulsado ? Qt::LeftButton : Qt::NoButton,
                           {});
        QApplication::sendEvent(&donde, &evento);
    }

    /// A click, a double click, or a drag of a few steps. Elements come to stand in the upper left corner.
    void arrastra(QWidget& hoja) {
        const QPoint de =
            azar_.entre(0, 2) == 0 ? QPoint(azar_.entre(0, 50), azar_.entre(0, 50)) : lugar(hoja);
        raton(hoja, QEvent::MouseMove, de, false);
        raton(hoja, azar_.entre(0, 5) == 0 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, de,
              true);
        QPoint a = de;
        for (int i = azar_.entre(0, 4); i > 0; --i) {
            a += QPoint(azar_.entre(-60, 60), azar_.entre(-60, 60));
            raton(hoja, QEvent::MouseMove, a, true);
        }
        raton(hoja, QEvent::MouseButtonRelease, a, false);
    }

    /// A timer of its own for each turn: one that goes off does not do so again before its hand is done, and
    /// a dialog may open another.
    void vigila() {
        QTimer::singleShot(1, &ventana_, [this] {
            vigila();
            trabajaDialogo();
        });
    }

    void trabajaDialogo() {
        if (QWidget* desplegado = QApplication::activePopupWidget()) desplegado->close();
        QWidget* dialogo = QApplication::activeModalWidget();
        if (!dialogo) return;
        // Those of the toolkit are none of ours.
        const bool ajeno = dialogo->inherits("QColorDialog") || dialogo->inherits("QPrintDialog") ||
                           dialogo->findChild<QWidget*>("Image1");
        if (ajeno || azar_.entre(0, 7) == 0)
            dialogo->close();
        else
            enUno(*dialogo);
    }
};

}  // namespace

TEST_P(MonoEnVentana, NadaSeRompe) {
    const int pasos = pasosDelMono(150);
    for (int i = 1; i <= pasos && !HasFailure(); ++i) {
        SCOPED_TRACE("BOSQUEL_MONO_SEMILLA=" + std::to_string(GetParam()) +
                     " BOSQUEL_MONO_PASOS=" + std::to_string(i));
        paso();
        QApplication::processEvents();
        comprobar(bosquel_.sesion());
    }
}

INSTANTIATE_TEST_SUITE_P(Semillas, MonoEnVentana, testing::ValuesIn(semillas(3)));

}  // namespace bosquel::apoyo
