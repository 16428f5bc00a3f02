#include "ui/ayuda_busqueda.h"

#include <QTextDocument>
#include <algorithm>

namespace bosquel {

namespace {

constexpr int antes = 30, largo = 90;  // characters of a fragment: before the word, and in all

QChar plegar(QChar letra) {
    if (letra.decompositionTag() == QChar::Canonical) letra = letra.decomposition().front();
    return letra.toCaseFolded();
}

bool contiene(const QStringList& textos, const QStringList& palabras) {
    return std::all_of(palabras.begin(), palabras.end(), [&](const QString& palabra) {
        return std::any_of(textos.begin(), textos.end(),
                           [&](const QString& texto) { return !sitiosAyuda(texto, palabra).isEmpty(); });
    });
}

/// Whole words around a place of the text.
QString fragmento(const QString& texto, qsizetype sitio) {
    qsizetype desde = std::max<qsizetype>(0, sitio - antes);
    if (desde > 0) desde = std::min(sitio, texto.indexOf(' ', desde) + 1);
    qsizetype hasta = std::min(texto.size(), desde + largo);
    if (hasta < texto.size()) hasta = std::max(sitio, texto.lastIndexOf(' ', hasta));
    return (desde > 0 ? "… " : "") + texto.mid(desde, hasta - desde) + (hasta < texto.size() ? " …" : "");
}

}  // namespace

QString plegarAyuda(const QString& texto) {
    QString plegado = texto;
    std::transform(plegado.begin(), plegado.end(), plegado.begin(), plegar);
    return plegado;
}

QStringList palabrasAyuda(const QString& busqueda) {
    QStringList palabras = plegarAyuda(busqueda.simplified()).split(' ');
    palabras.removeIf([](const QString& palabra) { return palabra.size() < 2; });
    return palabras;
}

QList<qsizetype> sitiosAyuda(const QString& texto, const QString& palabra) {
    QList<qsizetype> sitios;
    for (qsizetype i = texto.indexOf(palabra); i >= 0; i = texto.indexOf(palabra, i + 1))
        if (i == 0 || !texto[i - 1].isLetterOrNumber()) sitios += i;
    return sitios;
}

BuscadorAyuda::BuscadorAyuda(const ArchivoAyuda& archivo, const QStringList& paginas) {
    for (const QString& nombre : paginas) {
        QTextDocument documento;
        documento.setHtml(textoAyuda(archivo.value(nombre)));
        const QString titulo = documento.metaInformation(QTextDocument::DocumentTitle);
        QString texto = documento.toPlainText().remove(QChar::ObjectReplacementCharacter).simplified();
        if (texto.startsWith(titulo)) texto = texto.mid(titulo.size()).trimmed();
        paginas_ += {nombre, titulo, texto, plegarAyuda(titulo), plegarAyuda(texto)};
    }
}

QList<HallazgoAyuda> BuscadorAyuda::buscar(const QString& busqueda) const {
    const QStringList palabras = palabrasAyuda(busqueda);
    if (palabras.isEmpty()) return {};
    QList<HallazgoAyuda> enTitulo;
    QList<HallazgoAyuda> enTexto;
    for (const Pagina& pagina : paginas_) {
        if (!contiene({pagina.tituloPlegado, pagina.textoPlegado}, palabras)) continue;
        const qsizetype sitio = sitiosAyuda(pagina.textoPlegado, palabras.front()).value(0);
        (contiene({pagina.tituloPlegado}, palabras) ? enTitulo : enTexto) +=
            {pagina.nombre, pagina.titulo, fragmento(pagina.texto, sitio)};
    }
    return enTitulo + enTexto;
}

}  // namespace bosquel
