#pragma once

#include "ui/ayuda_archivo.h"

#include <QList>
#include <QStringList>

namespace bosquel {

/// A line of a table of contents or of an index.
struct EntradaAyuda {
    int nivel = 0;  ///< from 0, at most one deeper than the entry before it
    QString nombre;
    QString destino;  ///< "paredes.html#mover"; empty for a heading alone
};

/// Reads a .hhc or a .hhk. Whatever cannot be made out is passed over.
QList<EntradaAyuda> leerSumario(const QByteArray& mapa);

/// The table of contents of a help file, and its index; without entries if there is none.
QList<EntradaAyuda> contenidoAyuda(const ArchivoAyuda& archivo);
QList<EntradaAyuda> indiceAyuda(const ArchivoAyuda& archivo);

/// The pages in the order of the contents; those that the contents do not name come last.
QStringList paginasAyuda(const ArchivoAyuda& archivo);

}  // namespace bosquel
