#include "drawing/bosquel.h"
#include "ui/aplicacion.h"
#include "ui/carpeta.h"
#include "ui/plataforma_qt.h"
#include "ui/ventana_bosquel.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName("bosquel");
    QApplication::setApplicationDisplayName({});
    QApplication::setDesktopFileName("bosquel");

    bosquel::prepararAplicacion();

    bosquel::PlataformaQt plataforma;
    bosquel::Bosquel bosquel(plataforma, bosquel::carpetaDelPrograma());
    bosquel::VentanaBosquel ventana(bosquel);
    plataforma.ponerVentana(&ventana);
    bosquel.cargar();
    ventana.show();
    return QApplication::exec();
}
