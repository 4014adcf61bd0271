#pragma once

#include <QLoggingCategory>

namespace tessara {

/// One category for each folder that has something to say. What happens in the background and
/// concerns nobody at once is one line here; what the user must act on is a TSAlert.
Q_DECLARE_LOGGING_CATEGORY(lcEnrichment)
Q_DECLARE_LOGGING_CATEGORY(lcFoundation)
Q_DECLARE_LOGGING_CATEGORY(lcPersistence)
Q_DECLARE_LOGGING_CATEGORY(lcScanning)
Q_DECLARE_LOGGING_CATEGORY(lcShell)

} // namespace tessara
