#pragma once

#include <QString>

namespace tessara {

/// Whether an interface exists and is up, administratively (IFF_UP).
bool isInterfaceUp(const QString& interfaceName);

/// Whether an interface can scan: it is up and nothing blocks its radio.
bool isPowerOn(const QString& interfaceName);

} // namespace tessara
