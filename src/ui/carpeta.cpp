#include "ui/carpeta.h"

#include "drawing/archivo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <system_error>

namespace bosquel {

namespace fs = std::filesystem;

namespace {

/// From the folder of an installed executable.
constexpr const char* datosInstalados = "../../share/bosquel-rapiz";

/// A user's first start: the file dialogs are to open on something worth opening.
void ponerEjemplos(const fs::path& carpeta) {
    std::error_code error;
    const fs::path dibujos = carpeta / carpetaDibujos;
    if (!fs::exists(dibujos, error)) fs::copy(carpetaDeDatos() / carpetaDibujos, dibujos, error);
}

}  // namespace

fs::path carpetaDelPrograma() {
    const QString propia = QCoreApplication::applicationDirPath();
    if (QFileInfo(propia).isWritable()) return propia.toStdString();
    const QString delUsuario = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(delUsuario);
    ponerEjemplos(delUsuario.toStdString());
    return delUsuario.toStdString();
}

fs::path carpetaDeDatos() {
    const QDir propia(QCoreApplication::applicationDirPath());
    return (propia.exists(datosInstalados) ? QDir::cleanPath(propia.filePath(datosInstalados))
                                           : propia.path())
        .toStdString();
}

fs::path sitioDelManual(const fs::path& pedido, const fs::path& datos) {
    std::error_code error;
    const fs::path propio = datos / pedido.filename();
    return !fs::is_regular_file(pedido, error) && fs::is_regular_file(propio, error) ? propio : pedido;
}

}  // namespace bosquel
