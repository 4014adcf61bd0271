#pragma once

#include "scanning/CWNetwork.h"
#include "scanning/nl80211/NetlinkAttributes.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace tessara {

/// What the kernel says of one wireless interface.
struct InterfaceInfo {
    unsigned index = 0; ///< ifindex
    unsigned radio = 0; ///< wiphy
    QString name;
    bool isStation = false;
    QByteArray ssidData;              ///< empty unless associated
    std::optional<CWChannel> channel; ///< none unless associated, and outside the known bands
};

/// Reads a message of NL80211_CMD_GET_INTERFACE; none if it describes no network interface.
std::optional<InterfaceInfo> interfaceInfo(const NetlinkAttributes& message);

/// All wireless interfaces of station type, lowest index first; none without nl80211.
std::vector<InterfaceInfo> readInterfaces();
/// The wireless interface of station type with this name.
std::optional<InterfaceInfo> readInterface(const QString& name);

} // namespace tessara
