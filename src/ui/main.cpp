#include "drawing/bosquel.h"
#include "ui/carpeta.h"
#include "ui/iconos.h"
#include "ui/plataforma_qt.h"
#include "ui/ventana_bosquel.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

int main(int argc, char* argv[]) {
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName("bosquel");
    QApplication::setApplicationDisplayName({});
    QApplication::setDesktopFileName("bosquel");

    // The toolkit's own dialogs speak the language of the program, whatever the desktop's.
    QTranslator traductor;
    if (traductor.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traductor);
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QApplication::setWindowIcon(bosquel::icono("bosquel", QApplication::palette()));

    bosquel::PlataformaQt plataforma;
    bosquel::Bosquel bosquel(plataforma, bosquel::carpetaDelPrograma());
    bosquel::VentanaBosquel ventana(bosquel);
    plataforma.ponerVentana(&ventana);
    bosquel.cargar();
    ventana.show();
    return QApplication::exec();
}
