#pragma once

#include "ui/ayuda_archivo.h"

#include <QTextBrowser>

namespace bosquel {

/// The pages of a help file, with the way back and forward through them. Only what the file holds is shown:
/// a link that leads elsewhere does nothing.
class PaginaAyuda final : public QTextBrowser {
    Q_OBJECT

  public:
    explicit PaginaAyuda(ArchivoAyuda archivo, QWidget* padre = nullptr);

    /// "paredes.html#mover", from the root of the file.
    void mostrar(const QString& destino);
    /// A source as `mostrar` takes it.
    static QString destino(const QUrl& url);

    /// Text and pictures so many steps larger, or smaller; they stop at the last.
    void ampliar(int pasos);
    void escalarNormal();
    /// Marks these words, folded, in the page, and shows the first of them.
    void resaltar(const QStringList& palabras);

    QVariant loadResource(int tipo, const QUrl& nombre) override;

  signals:
    /// The size of text and pictures is another, in percent.
    void escalada(int porcentaje);

  protected:
    void doSetSource(const QUrl& url, QTextDocument::ResourceType tipo) override;
    void resizeEvent(QResizeEvent* suceso) override;
    void wheelEvent(QWheelEvent* suceso) override;

  private:
    void escalar(int porcentaje);
    QImage imagen(const QByteArray& bytes) const;
    /// Whether the lines are of another width now.
    bool ajustarColumna();
    /// The first character on view, from the beginning of the page.
    int primerCaracter() const;
    /// Reads the page anew, with this character in the line on top.
    void reponer(int primero);
    /// Answers where the first of the words stands, -1 without any.
    int marcar();

    ArchivoAyuda archivo_;
    QStringList resaltadas_;
    qreal puntos_;
    int porcentaje_;
};

}  // namespace bosquel
