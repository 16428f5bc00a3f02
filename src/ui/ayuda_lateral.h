#pragma once

#include "ui/ayuda_archivo.h"
#include "ui/ayuda_busqueda.h"
#include "ui/ayuda_sumario.h"

#include <QWidget>
#include <optional>

class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;

namespace bosquel {

/// The left side of the help window: contents and index, or, while something is looked for, what was found.
class AyudaLateral final : public QWidget {
    Q_OBJECT

  public:
    explicit AyudaLateral(ArchivoAyuda archivo, QWidget* padre = nullptr);

    /// The page on view is this: its line of the contents is marked, without `elegida`.
    void senalar(const QString& destino);
    void enfocarBusqueda();
    /// Ends the search; false if there was none.
    bool dejarBusqueda();

  signals:
    /// "paredes.html#mover", with the words that were looked for, folded.
    void elegida(const QString& destino, const QStringList& palabras);
    /// Nothing is looked for any more.
    void dejada();

  private:
    QTreeWidget* arbol(const char* nombre, const QString& leido, const QList<EntradaAyuda>& entradas);
    QWidget* campo();
    void buscar(const QString& texto);
    void elegirHallazgo(int fila);
    void irAHallazgos();

    ArchivoAyuda archivo_;
    std::optional<BuscadorAyuda> buscador_;  ///< made for the first search
    QLineEdit* busqueda_;
    QTreeWidget* contenido_;
    QTreeWidget* indice_;
    QListWidget* hallazgos_;
    QStackedWidget* cara_;
};

}  // namespace bosquel
