#pragma once

#include <QStyledItemDelegate>

namespace bosquel {

/// A page that was found: its title, and below it, in as many lines as it takes, the text around the words.
/// The text of an item is both, with a line break between them.
class DelegadoHallazgo final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion, const QModelIndex& cual) const override;
    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& cual) const override;
};

}  // namespace bosquel
