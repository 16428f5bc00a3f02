#include "ui/ayuda_pagina.h"

#include "ui/ayuda_busqueda.h"

#include <QImage>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

namespace bosquel {

namespace {

constexpr auto esquema = "chm";
constexpr int margen = 20;            // px around the text
constexpr int columna = 720;          // px, the widest that a line of text is easy to read
constexpr int puntosPorMetro = 3780;  // of a picture made at scale 1
constexpr qreal letra = 1.1;          // of the desktop's own

constexpr int tamanoNormal = 100;
constexpr std::array porcentajes{60, 75, 90, tamanoNormal, 115, 130, 150, 175, 200};

/// The path in the file; empty for whatever is not of the file.
QString camino(const QUrl& url) {
    return url.scheme() == esquema && url.host().isEmpty() ? url.path().mid(1) : QString();
}

}  // namespace

PaginaAyuda::PaginaAyuda(ArchivoAyuda archivo, QWidget* padre)
    : QTextBrowser(padre),
      archivo_(std::move(archivo)),
      puntos_(font().pointSizeF() * letra),
      porcentaje_(tamanoNormal) {
    setUndoRedoEnabled(false);
    document()->setDocumentMargin(margen);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    // Always there, or the width of the page would depend on its height.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    escalar(porcentaje_);
}

void PaginaAyuda::mostrar(const QString& destino) {
    setSource(QUrl(QString("%1:/%2").arg(esquema, destino)));
}

QString PaginaAyuda::destino(const QUrl& url) {
    return url.hasFragment() ? camino(url) + '#' + url.fragment() : camino(url);
}

void PaginaAyuda::ampliar(int pasos) {
    const auto actual = std::find(porcentajes.begin(), porcentajes.end(), porcentaje_) - porcentajes.begin();
    const auto nuevo = std::clamp<std::ptrdiff_t>(actual + pasos, 0, porcentajes.size() - 1);
    escalar(porcentajes[static_cast<std::size_t>(nuevo)]);
}

void PaginaAyuda::escalarNormal() {
    escalar(tamanoNormal);
}

void PaginaAyuda::escalar(int porcentaje) {
    const int primero = primerCaracter();
    porcentaje_ = porcentaje;
    QFont fuente = font();
    fuente.setPointSizeF(puntos_ * porcentaje / 100);
    setFont(fuente);
    ajustarColumna();
    reponer(primero);
    emit escalada(porcentaje_);
}

void PaginaAyuda::resaltar(const QStringList& palabras) {
    resaltadas_ = palabras;
    if (const int primera = marcar(); primera >= 0) {
        QTextCursor cursor(document());
        cursor.setPosition(primera);
        setTextCursor(cursor);
    }
}

int PaginaAyuda::marcar() {
    const QString texto = plegarAyuda(document()->toPlainText());
    QTextCharFormat formato;
    formato.setBackground(palette().highlight());
    formato.setForeground(palette().highlightedText());
    QList<ExtraSelection> marcas;
    int primera = -1;
    for (const QString& palabra : resaltadas_)
        for (const qsizetype sitio : sitiosAyuda(texto, palabra)) {
            QTextCursor cursor(document());
            cursor.setPosition(static_cast<int>(sitio));
            cursor.setPosition(static_cast<int>(sitio + palabra.size()), QTextCursor::KeepAnchor);
            marcas += {cursor, formato};
            if (primera < 0 || cursor.anchor() < primera) primera = cursor.anchor();
        }
    setExtraSelections(marcas);
    return primera;
}

int PaginaAyuda::primerCaracter() const {
    return cursorForPosition({0, 0}).position();
}

/// The document keeps the pictures at the size that they were asked for.
void PaginaAyuda::reponer(int primero) {
    reload();
    marcar();
    QTextCursor arriba(document());
    arriba.setPosition(std::min(primero, document()->characterCount() - 1));
    const int alto = verticalScrollBar()->value() + cursorRect(arriba).top();
    // What stands above the first letters belongs to them.
    verticalScrollBar()->setValue(arriba.atStart() ? 0 : alto);
}

QVariant PaginaAyuda::loadResource(int tipo, const QUrl& nombre) {
    const auto bytes = archivo_.constFind(camino(nombre));
    if (bytes == archivo_.constEnd()) return {};
    if (tipo == QTextDocument::ImageResource) return imagen(*bytes);
    return textoAyuda(*bytes);
}

/// No wider than the text. Scaled here, smoothly and to the pixels of the screen: the document would do it
/// roughly.
QImage PaginaAyuda::imagen(const QByteArray& bytes) const {
    // With a palette of its own, a picture would be scaled in the colours of the palette.
    const QImage leida = QImage::fromData(bytes).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (leida.isNull()) return {};
    const int finura = std::clamp(leida.dotsPerMeterX(), puntosPorMetro, 4 * puntosPorMetro);
    const double natural = static_cast<double>(leida.width()) * porcentaje_ / 100 * puntosPorMetro / finura;
    const double ancho = std::clamp<double>(natural, 1, std::max(1, lineWrapColumnOrWidth() - 2 * margen));
    QImage escalada = leida.scaledToWidth(qRound(ancho * devicePixelRatioF()), Qt::SmoothTransformation);
    escalada.setDevicePixelRatio(devicePixelRatioF());
    return escalada;
}

void PaginaAyuda::doSetSource(const QUrl& url, QTextDocument::ResourceType tipo) {
    if (!archivo_.contains(camino(url))) return;
    if (camino(url) != camino(source())) resaltadas_.clear();
    QTextBrowser::doSetSource(url, tipo);
}

void PaginaAyuda::resizeEvent(QResizeEvent* suceso) {
    const int primero = primerCaracter();
    QTextBrowser::resizeEvent(suceso);
    if (ajustarColumna()) reponer(primero);
}

/// The base class would enlarge the text alone.
void PaginaAyuda::wheelEvent(QWheelEvent* suceso) {
    if (!(suceso->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(suceso);
    const int giro = suceso->angleDelta().y();
    if (giro != 0) ampliar(giro > 0 ? 1 : -1);
    suceso->accept();
}

bool PaginaAyuda::ajustarColumna() {
    const int antes = lineWrapColumnOrWidth();
    setLineWrapColumnOrWidth(std::min(viewport()->width(), columna * porcentaje_ / 100));
    return lineWrapColumnOrWidth() != antes;
}

}  // namespace bosquel
