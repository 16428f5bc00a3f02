#include "ui/aplicacion.h"

#include "ui/iconos.h"
#include "ui/traductor.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLibraryInfo>
#include <QLocale>
#include <QProxyStyle>
#include <QTranslator>

namespace bosquel {

namespace {

/// The desktop's style, but for what would set the toolkit's boxes apart from the program's own dialogs.
class Estilo final : public QProxyStyle {
  public:
    int styleHint(StyleHint pista, const QStyleOption* opcion, const QWidget* control,
                  QStyleHintReturn* resultado) const override {
        switch (pista) {
            case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
            case SH_DialogButtonLayout: return QDialogButtonBox::WinLayout;
            default: return QProxyStyle::styleHint(pista, opcion, control, resultado);
        }
    }
};

}  // namespace

void prepararAplicacion() {
    auto* traductor = new QTranslator(qApp);
    if (traductor->load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(traductor);
    QApplication::installTranslator(new Traductor(qApp));
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    QApplication::setStyle(new Estilo);
    QApplication::setWindowIcon(icono("bosquel", QApplication::palette()));
}

}  // namespace bosquel
