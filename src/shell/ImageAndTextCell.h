#pragma once

#include <QStyledItemDelegate>

namespace tessara {

/// A cell of the side view: an image and a text between two margins, in the colour of its kind.
class ImageAndTextCell final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace tessara
