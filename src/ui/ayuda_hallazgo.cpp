#include "ui/ayuda_hallazgo.h"

#include <QListView>
#include <QPainter>

namespace bosquel {

namespace {

constexpr int aire = 5;     // px on all sides
constexpr int alto = 1000;  // px, more than any text takes
constexpr int lineas = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop;

struct Renglones {
    QString titulo, fragmento;
};

Renglones renglones(const QModelIndex& cual) {
    const QString texto = cual.data().toString();
    return {texto.section('\n', 0, 0), texto.section('\n', 1)};
}

QFont negrita(QFont fuente) {
    fuente.setBold(true);
    return fuente;
}

int altoDe(const QString& texto, const QFont& fuente, int ancho) {
    return texto.isEmpty() ? 0 : QFontMetrics(fuente).boundingRect(0, 0, ancho, alto, lineas, texto).height();
}

}  // namespace

void DelegadoHallazgo::paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
                             const QModelIndex& cual) const {
    QStyleOptionViewItem fondo = opcion;
    initStyleOption(&fondo, cual);
    fondo.text.clear();
    const QStyle& estilo = *opcion.widget->style();
    estilo.drawControl(QStyle::CE_ItemViewItem, &fondo, pintor, opcion.widget);

    const bool elegido = opcion.state.testFlag(QStyle::State_Selected);
    const auto grupo = opcion.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    QRect sitio = opcion.rect.adjusted(aire, aire, -aire, -aire);
    pintor->save();
    pintor->setPen(opcion.palette.color(grupo, elegido ? QPalette::HighlightedText : QPalette::Text));
    const auto [titulo, fragmento] = renglones(cual);
    pintor->setFont(negrita(opcion.font));
    pintor->drawText(sitio, lineas, titulo);
    sitio.setTop(sitio.top() + altoDe(titulo, negrita(opcion.font), sitio.width()));
    pintor->setFont(opcion.font);
    pintor->drawText(sitio, lineas, fragmento);
    pintor->restore();
}

QSize DelegadoHallazgo::sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& cual) const {
    const auto* lista = qobject_cast<const QListView*>(opcion.widget);
    const int ancho = (lista ? lista->viewport()->width() : opcion.rect.width()) - 2 * aire;
    const auto [titulo, fragmento] = renglones(cual);
    return {0,
            altoDe(titulo, negrita(opcion.font), ancho) + altoDe(fragmento, opcion.font, ancho) + 2 * aire};
}

}  // namespace bosquel
