#include "ui/ayuda_lateral.h"

#include "ui/ayuda_hallazgo.h"
#include "ui/rotulos.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace bosquel {

namespace {

constexpr int separacion = 6, aire = 3;  // px, of the lines above and below
constexpr int papelDestino = Qt::UserRole;

QTreeWidgetItem* itemDe(QTreeWidget& arbol, const QString& destino) {
    for (QTreeWidgetItemIterator i(&arbol); *i; ++i)
        if ((*i)->data(0, papelDestino).toString() == destino) return *i;
    return nullptr;
}

}  // namespace

AyudaLateral::AyudaLateral(ArchivoAyuda archivo, QWidget* padre)
    : QWidget(padre),
      archivo_(std::move(archivo)),
      busqueda_(nombrar(new QLineEdit, "Busqueda")),
      contenido_(arbol("Contenido", "Contenido de la ayuda", contenidoAyuda(archivo_))),
      indice_(arbol("Indice", "Índice de la ayuda", indiceAyuda(archivo_))),
      hallazgos_(nombrar(new QListWidget, "Hallazgos")),
      cara_(new QStackedWidget) {
    contenido_->expandAll();
    indice_->setRootIsDecorated(false);
    hallazgos_->setAccessibleName("Páginas halladas");
    hallazgos_->setItemDelegate(new DelegadoHallazgo(hallazgos_));
    hallazgos_->setResizeMode(QListView::Adjust);
    hallazgos_->setAlternatingRowColors(true);
    connect(hallazgos_, &QListWidget::currentRowChanged, this, &AyudaLateral::elegirHallazgo);

    auto* solapas = nombrar(new QTabWidget, "Solapas");
    nombrar(solapas->tabBar(), "Pestanas")->setAccessibleName("Contenido e índice");
    solapas->setAccessibleName(solapas->tabBar()->accessibleName());
    solapas->addTab(contenido_, "&Contenido");
    solapas->addTab(indice_, "Í&ndice");
    cara_->addWidget(solapas);
    cara_->addWidget(hallazgos_);

    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(separacion);
    todo->addWidget(campo());
    todo->addWidget(cara_, 1);
}

QWidget* AyudaLateral::campo() {
    auto* campo = new QWidget;
    auto* fila = new QHBoxLayout(campo);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(separacion);
    fila->addWidget(rotular("&Buscar:", busqueda_));
    fila->addWidget(busqueda_, 1);
    busqueda_->setClearButtonEnabled(true);
    connect(busqueda_, &QLineEdit::textChanged, this, &AyudaLateral::buscar);
    connect(busqueda_, &QLineEdit::returnPressed, this, &AyudaLateral::irAHallazgos);
    return campo;
}

QTreeWidget* AyudaLateral::arbol(const char* nombre, const QString& leido,
                                 const QList<EntradaAyuda>& entradas) {
    auto* arbol = nombrar(new QTreeWidget, nombre);
    arbol->setAccessibleName(leido);
    arbol->setHeaderHidden(true);
    QList<QTreeWidgetItem*> rama{arbol->invisibleRootItem()};
    for (const EntradaAyuda& entrada : entradas) {
        rama.resize(entrada.nivel + 1);
        auto* item = new QTreeWidgetItem(rama.constLast(), {entrada.nombre});
        item->setData(0, papelDestino, entrada.destino);
        item->setSizeHint(0, {0, fontMetrics().height() + 2 * aire});
        rama += item;
    }
    const auto elegir = [this](const QTreeWidgetItem* item) {
        if (item) emit elegida(item->data(0, papelDestino).toString(), {});
    };
    // Clicked, to come back to a page that the links have left.
    connect(arbol, &QTreeWidget::currentItemChanged, this, elegir);
    connect(arbol, &QTreeWidget::itemClicked, this, elegir);
    return arbol;
}

void AyudaLateral::senalar(const QString& destino) {
    const QSignalBlocker callado(contenido_);
    QTreeWidgetItem* item = itemDe(*contenido_, destino);
    contenido_->setCurrentItem(item ? item : itemDe(*contenido_, destino.section('#', 0, 0)));
}

void AyudaLateral::enfocarBusqueda() {
    busqueda_->setFocus(Qt::ShortcutFocusReason);
    busqueda_->selectAll();
}

bool AyudaLateral::dejarBusqueda() {
    if (busqueda_->text().isEmpty()) return false;
    busqueda_->clear();
    return true;
}

void AyudaLateral::buscar(const QString& texto) {
    if (!buscador_) buscador_.emplace(archivo_, paginasAyuda(archivo_));
    const QStringList palabras = palabrasAyuda(texto);
    const QSignalBlocker callada(hallazgos_);
    hallazgos_->clear();
    for (const HallazgoAyuda& hallazgo : buscador_->buscar(texto)) {
        auto* item = new QListWidgetItem(hallazgo.titulo + '\n' + hallazgo.fragmento, hallazgos_);
        item->setData(papelDestino, hallazgo.pagina);
    }
    if (hallazgos_->count() == 0)
        (new QListWidgetItem("\nNo se ha encontrado nada.", hallazgos_))->setFlags(Qt::NoItemFlags);
    cara_->setCurrentIndex(palabras.isEmpty() ? 0 : 1);
    if (palabras.isEmpty()) emit dejada();
}

void AyudaLateral::elegirHallazgo(int fila) {
    if (const QListWidgetItem* item = hallazgos_->item(fila))
        emit elegida(item->data(papelDestino).toString(), palabrasAyuda(busqueda_->text()));
}

void AyudaLateral::irAHallazgos() {
    hallazgos_->setFocus();
    hallazgos_->setCurrentRow(0);
}

}  // namespace bosquel
