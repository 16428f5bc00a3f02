#pragma once

#include "ui/ayuda_archivo.h"

#include <QList>
#include <QStringList>

namespace bosquel {

// The search in the manual. What is looked for are beginnings of words, in small letters and without accents:
// texts are compared folded.

/// The text folded, as long as the text itself.
QString plegarAyuda(const QString& texto);

/// The words of what is typed, folded; those of a single letter are none.
QStringList palabrasAyuda(const QString& busqueda);

/// Where words of a text begin with this one. Both are folded.
QList<qsizetype> sitiosAyuda(const QString& texto, const QString& palabra);

/// A page in which all the words occur.
struct HallazgoAyuda {
    QString pagina;     ///< "paredes.html"
    QString titulo;     ///< of the page
    QString fragmento;  ///< the text around the first of the words
};

class BuscadorAyuda {
  public:
    /// `paginas` in the order in which they are to be found.
    BuscadorAyuda(const ArchivoAyuda& archivo, const QStringList& paginas);

    /// Pages whose title has all the words come first. Without words nothing is found.
    QList<HallazgoAyuda> buscar(const QString& busqueda) const;

  private:
    struct Pagina {
        QString nombre, titulo, texto;
        QString tituloPlegado, textoPlegado;
    };
    QList<Pagina> paginas_;
};

}  // namespace bosquel
