#pragma once

#include "model/ColumnRegistry.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

class QMimeData;

namespace tessara {

/// Rows of the table as readable text: for each row a block of lines "Title: value", one for each
/// column that has a value there, and an empty line between blocks.
QString textOfRows(const std::vector<const NetworkRow*>& rows,
                   const std::vector<const Column*>& columns, const CellContext& context);

/// A text in the fixed-width font Courier at 12 points, as an RTF document.
QByteArray richText(const QString& text);

/// What Copy puts on the clipboard: the rows as rich text, and as plain text for the many programs
/// that take no other.
std::unique_ptr<QMimeData> clipboardData(const QString& text);

} // namespace tessara
