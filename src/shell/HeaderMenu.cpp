#include "shell/HeaderMenu.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"

#include <QHeaderView>
#include <QMenu>
#include <QTreeView>

#include <algorithm>
#include <numeric>

namespace tessara {

void addAutoSizeItems(QMenu& menu, QTreeView& view, int clicked, int first)
{
    menu.addAction(localized("Auto Size Column"), &view,
                   [&view, clicked] { view.resizeColumnToContents(clicked); })
        ->setEnabled(clicked >= first);
    menu.addAction(localized("Auto Size All Columns"), &view, [&view, first] {
        for (int column = first; column < view.header()->count(); ++column)
            view.resizeColumnToContents(column);
    });
}

void addColumnItems(QMenu& menu, const QTreeView& view,
                    const std::function<bool(int column)>& canBeHidden,
                    const std::function<void(int column, bool shown)>& setShown, int first)
{
    const auto titleOf = [&view](int column) {
        return view.model()->headerData(column, Qt::Horizontal).toString();
    };
    std::vector<int> columns(static_cast<std::size_t>(view.header()->count() - first));
    std::iota(columns.begin(), columns.end(), first);
    std::ranges::sort(columns, [&](int a, int b) {
        return localizedStandardCompare(titleOf(a), titleOf(b)) < 0;
    });
    for (const int column : columns) {
        QAction* item = menu.addAction(titleOf(column));
        item->setCheckable(true);
        item->setChecked(!view.isColumnHidden(column));
        item->setEnabled(canBeHidden(column));
        item->setToolTip(
            view.model()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString());
        QObject::connect(item, &QAction::toggled, &view,
                         [setShown, column](bool shown) { setShown(column, shown); });
    }
}

} // namespace tessara
