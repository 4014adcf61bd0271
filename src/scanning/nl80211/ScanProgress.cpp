#include "scanning/nl80211/ScanProgress.h"

#include <linux/nl80211.h>

namespace tessara {

ScanProgress::ScanProgress(unsigned radio, std::optional<unsigned> interfaceIndex, bool hasBegun)
    : m_radio(radio)
    , m_interfaceIndex(interfaceIndex)
    , m_hasBegun(hasBegun)
{
}

ScanProgress ScanProgress::ofOurs(const InterfaceInfo& interface)
{
    return {interface.radio, interface.index, false};
}

ScanProgress ScanProgress::ofOthers(const InterfaceInfo& interface)
{
    return {interface.radio, std::nullopt, true};
}

std::optional<ScanEnd> ScanProgress::take(const Nl80211Message& event)
{
    if (event.attributes.u32(NL80211_ATTR_WIPHY) != m_radio)
        return std::nullopt;
    if (m_interfaceIndex && event.attributes.u32(NL80211_ATTR_IFINDEX) != m_interfaceIndex)
        return std::nullopt;
    if (event.command == NL80211_CMD_TRIGGER_SCAN)
        m_hasBegun = true;
    if (!m_hasBegun)
        return std::nullopt;
    if (event.command == NL80211_CMD_NEW_SCAN_RESULTS)
        return ScanEnd::kFinished;
    if (event.command == NL80211_CMD_SCAN_ABORTED)
        return ScanEnd::kAborted;
    return std::nullopt;
}

} // namespace tessara
