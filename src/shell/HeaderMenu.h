#pragma once

#include <functional>

class QMenu;
class QTreeView;

namespace tessara {

/// Adds the commands that fit columns to their contents.
/// @param clicked the column that the menu was asked for at; negative for none
/// @param first the first column that has contents
void addAutoSizeItems(QMenu& menu, QTreeView& view, int clicked, int first = 0);

/// Adds one checkable item a column, by title: checked while the column is shown.
/// @param canBeHidden whether the user may turn a column off
/// @param setShown is called when the user turns a column on or off
/// @param first the first column that has an item
void addColumnItems(QMenu& menu, const QTreeView& view,
                    const std::function<bool(int column)>& canBeHidden,
                    const std::function<void(int column, bool shown)>& setShown, int first = 0);

} // namespace tessara
