#include "ui/ayuda_sumario.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>

namespace bosquel {

namespace {

constexpr int nivelMaximo = 8;

/// The tags of such a file: nested lists of objects, each with its parameters.
const QRegularExpression& marca() {
    static const QRegularExpression expresion(R"re(<(/?)(ul|object|param)\b((?:"[^"]*"|[^">])*+)>)re",
                                              QRegularExpression::CaseInsensitiveOption);
    return expresion;
}

QString atributo(const QString& atributos, const QString& nombre) {
    const QRegularExpression expresion(QString(R"re(\b%1\s*=\s*"([^"]*)")re").arg(nombre),
                                       QRegularExpression::CaseInsensitiveOption);
    return QTextDocumentFragment::fromHtml(expresion.match(atributos).captured(1)).toPlainText();
}

/// The first of the file with this extension.
QByteArray primero(const ArchivoAyuda& archivo, const QString& extension) {
    const QStringList nombres = archivo.keys();
    const auto hallado = std::find_if(nombres.begin(), nombres.end(),
                                      [&](const QString& nombre) { return nombre.endsWith(extension); });
    return hallado == nombres.end() ? QByteArray() : archivo.value(*hallado);
}

class Lector {
  public:
    void leer(const QString& nombre, bool cierra, const QString& atributos) {
        if (nombre == "ul")
            lista(cierra);
        else if (nombre == "object")
            objeto(cierra);
        else
            parametro(atributos);
    }

    QList<EntradaAyuda> entradas;

  private:
    void lista(bool cierra) { hondura_ = std::max(0, hondura_ + (cierra ? -1 : 1)); }

    void objeto(bool cierra) {
        if (cierra && !actual_.nombre.isEmpty()) {
            const int siguiente = entradas.isEmpty() ? 0 : entradas.constLast().nivel + 1;
            actual_.nivel = std::clamp(hondura_ - 1, 0, std::min(siguiente, nivelMaximo));
            entradas += actual_;
        }
        actual_ = {};
    }

    /// An object may carry more than one destination: the first is taken.
    void parametro(const QString& atributos) {
        const QString nombre = atributo(atributos, "name").toLower();
        QString* campo = nombre == "name" ? &actual_.nombre : nombre == "local" ? &actual_.destino : nullptr;
        if (campo && campo->isEmpty()) *campo = atributo(atributos, "value");
    }

    EntradaAyuda actual_;
    int hondura_ = 0;
};

}  // namespace

QList<EntradaAyuda> leerSumario(const QByteArray& mapa) {
    Lector lector;
    const QString texto = textoAyuda(mapa);
    for (const QRegularExpressionMatch& hallada : marca().globalMatch(texto))
        lector.leer(hallada.captured(2).toLower(), !hallada.captured(1).isEmpty(), hallada.captured(3));
    return lector.entradas;
}

QList<EntradaAyuda> contenidoAyuda(const ArchivoAyuda& archivo) {
    return leerSumario(primero(archivo, ".hhc"));
}

QList<EntradaAyuda> indiceAyuda(const ArchivoAyuda& archivo) {
    return leerSumario(primero(archivo, ".hhk"));
}

QStringList paginasAyuda(const ArchivoAyuda& archivo) {
    QStringList paginas;
    for (const EntradaAyuda& entrada : contenidoAyuda(archivo))
        paginas += entrada.destino.section('#', 0, 0);
    paginas += archivo.keys().filter(QRegularExpression("\\.html?$"));
    paginas.removeDuplicates();
    paginas.removeIf([&](const QString& pagina) { return !archivo.contains(pagina); });
    return paginas;
}

}  // namespace bosquel
