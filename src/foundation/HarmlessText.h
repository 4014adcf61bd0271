#pragma once

#include <QString>

namespace tessara {

/// Text that a terminal shows and does not obey: what comes from the air or from a file may hold
/// escape sequences. Control and formatting characters become the replacement character.
QString harmless(const QString& text);

} // namespace tessara
