#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <filesystem>

namespace bosquel {

/// What a compiled help file holds, by its path from the root: "paredes.html", "imagenes/piso.png".
using ArchivoAyuda = QMap<QString, QByteArray>;

/// The whole file, or nothing: of one that is missing, or damaged in any way that shows, nothing comes.
ArchivoAyuda leerArchivoAyuda(const std::filesystem::path& ruta);

/// A text of the file: UTF-8 if that is what it is, otherwise Windows-1252.
QString textoAyuda(const QByteArray& bytes);

}  // namespace bosquel
