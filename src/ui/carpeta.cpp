#include "ui/carpeta.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace bosquel {

std::filesystem::path carpetaDelPrograma() {
    const QString propia = QCoreApplication::applicationDirPath();
    if (QFileInfo(propia).isWritable()) return propia.toStdString();
    const QString delUsuario = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(delUsuario);
    return delUsuario.toStdString();
}

std::filesystem::path carpetaDelEjecutable() {
    return QCoreApplication::applicationDirPath().toStdString();
}

std::filesystem::path sitioDelManual(const std::filesystem::path& pedido,
                                     const std::filesystem::path& ejecutable) {
    const std::filesystem::path nombre = pedido.filename();
    const std::filesystem::path instalado = ejecutable.parent_path() / "share/bosquel-rapiz" / nombre;
    for (const auto& sitio : {pedido, ejecutable / nombre, instalado}) {
        std::error_code error;
        if (std::filesystem::is_regular_file(sitio, error)) return sitio;
    }
    return pedido;
}

}  // namespace bosquel
