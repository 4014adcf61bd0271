#pragma once

class QAbstractItemView;
class QKeyEvent;
class QString;

namespace tessara {

// What the window's tables and trees have in common.

/// Whether a key press types a character: in these views that never selects a row.
bool isTyping(const QKeyEvent& event);

/// @param points size of the font of the rows
void setFontSizeOf(QAbstractItemView& view, double points);

/// Writes into the middle of an empty view what there is to do; to be called from its paint event.
void paintPlaceholder(QAbstractItemView& view, const QString& text);

} // namespace tessara
