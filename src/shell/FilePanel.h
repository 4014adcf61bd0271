#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace tessara {

/// Called with the path that the user has chosen; not at all if there is none.
using PathReceiver = std::function<void(const QString& path)>;

/// Asks where to write a CSV file. The window is blocked; the scan goes on.
/// @param suggestedName may be empty
void showExportPanel(QWidget& window, const QString& suggestedName, PathReceiver receiver);

/// Asks for a CSV file to read.
void showImportPanel(QWidget& window, PathReceiver receiver);

} // namespace tessara
