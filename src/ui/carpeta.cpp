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

}  // namespace bosquel
