#include "shell/TableHeader.h"

#include <QStyleOptionHeader>

namespace tessara {

TableHeader::TableHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsMovable(true);
    setDefaultAlignment(Qt::AlignCenter);
    setHighlightSections(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
}

/// Of itself a header cuts titles at both ends.
void TableHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    int room = sectionSize(logicalIndex) - 2 * margin;
    if (isSortIndicatorShown() && logicalIndex == sortIndicatorSection())
        room -= margin + style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this);
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}

} // namespace tessara
