// Takes a picture of every window of the program: capturas FOLDER. It works the program as a user would; what
// opens is painted, answered and closed. With QT_QPA_PLATFORM=offscreen it needs no display; QT_SCALE_FACTOR
// says how dense the pictures are.

#include "ui/aplicacion.h"
#include "ui/plataforma_qt.h"
#include "ui/ventana_bosquel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMessageBox>
#include <QPixmap>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdlib>

using namespace bosquel;

namespace {

constexpr int mirada = 60;           // ms between two looks at what is open
constexpr int hastaElRotulo = 2600;  // ms that the splash takes to write its line

/// Paints the windows that open and closes them again.
class Fotografo {
  public:
    explicit Fotografo(const QString& carpeta) : carpeta_(carpeta) {
        QObject::connect(&reloj_, &QTimer::timeout, [this] { mirar(); });
        reloj_.start(mirada);
    }

    /// Each window once in each of its states; `estado` is empty for the one that it opens in.
    void retratar(QWidget& ventana, const QString& estado = {}) {
        QString nombre = ventana.objectName() + estado;
        if (vistas_.contains(nombre)) return;
        vistas_.insert(nombre);
        nombre.replace("ñ", "n");
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        ventana.grab().save(carpeta_.filePath(nombre + ".png"), "PNG", 0);
    }

  private:
    void mirar() {
        auto* abierta = QApplication::activeModalWidget();
        if (abierta == nullptr) return;
        if (auto* pregunta = qobject_cast<QMessageBox*>(abierta)) return contestar(*pregunta);
        if (abierta->objectName() == "Entrada" && (esperado_ += mirada) < hastaElRotulo) return;
        const bool nueva = !vistas_.contains(abierta->objectName());
        retratar(*abierta);
        retratarEstados(*abierta);
        auto* imprimir = abierta->findChild<QAbstractButton*>("BotonEdicion_0");
        // Not from within: what the click opens waits for the next look.
        if (imprimir && nueva) return QTimer::singleShot(0, imprimir, &QAbstractButton::click);
        if (auto* dialogo = qobject_cast<QDialog*>(abierta); dialogo && !imprimir)
            dialogo->accept();
        else
            abierta->close();
    }

    /// What a window shows only once something in it has been chosen.
    void retratarEstados(QWidget& abierta) {
        if (const auto opciones = abierta.findChildren<QWidget*>(QRegularExpression("^opt_[0-9]$"));
            !opciones.isEmpty())
            retratar(abierta, QString("-%1-opciones").arg(opciones.size()));
        if (auto* tresTramos = abierta.findChild<QAbstractButton*>("optTramos_3")) {
            tresTramos->click();
            retratar(abierta, "-3-tramos");
        }
        if (auto* personalizados = abierta.findChild<QAbstractButton*>("optSchemaColor_1")) {
            personalizados->click();
            auto* solapas = abierta.findChild<QTabWidget*>("Solapas");
            for (int i = 0; i < solapas->count(); ++i) {
                solapas->setCurrentIndex(i);
                retratar(abierta, QString("-solapa-%1").arg(i + 1));
            }
        }
    }

    /// The whole drawing is sent out; a stair is aligned to nothing.
    static void contestar(QMessageBox& pregunta) {
        const bool si = pregunta.windowTitle() == "Selección de área";
        pregunta.button(si ? QMessageBox::Yes : QMessageBox::No)->click();
    }

    QDir carpeta_;
    QSet<QString> vistas_;
    QTimer reloj_;
    int esperado_ = 0;
};

void clic(Bosquel& bosquel, float x, float y) {
    bosquel.mover(false, false, x, y);
    bosquel.pulsar(x, y);
    bosquel.soltar(x, y);
}

void clicEnPared(Bosquel& bosquel) {
    const Pinza pinza = bosquel.sesion().dibujo.Pared.en(1)->ParedPickCentro;
    clic(bosquel, pinza.Left + pinza.Lado / 2, pinza.Top + pinza.Lado / 2);
}

/// A piece of each paleta, and its dialog.
void amueblar(Bosquel& bosquel) {
    for (void (Bosquel::*paleta)(int) :
         {&Bosquel::pulsarMueble, &Bosquel::pulsarBaño, &Bosquel::pulsarCocina, &Bosquel::pulsarElectrico})
        for (int boton = 0; boton < 6; ++boton) {
            (bosquel.*paleta)(boton);
            bosquel.pulsarPrincipal(Principal::Definir);
        }
}

void levantar(Bosquel& bosquel) {
    bosquel.pulsarUsuario(0);
    clic(bosquel, 3000, 6000);
    for (const int abertura : {4, 5}) {
        bosquel.pulsarUsuario(abertura);
        clicEnPared(bosquel);
    }
    bosquel.pulsarOperacion(0);
    clicEnPared(bosquel);
    bosquel.pulsarTipo(4);
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication aplicacion(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) return EXIT_FAILURE;
    prepararAplicacion();

    const QTemporaryDir carpeta;
    Fotografo fotografo(QString::fromLocal8Bit(argv[1]));
    PlataformaQt plataforma;
    Bosquel bosquel(plataforma, carpeta.path().toStdString());
    VentanaBosquel ventana(bosquel);
    plataforma.ponerVentana(&ventana);
    bosquel.cargar();
    ventana.show();
    levantar(bosquel);
    amueblar(bosquel);
    bosquel.pulsarPrincipal(Principal::Opciones);
    bosquel.pulsarPrincipal(Principal::Colores);
    bosquel.pulsarPrincipal(Principal::Imprimir);
    bosquel.pulsarTipo(0);
    fotografo.retratar(ventana);
    return EXIT_SUCCESS;
}
