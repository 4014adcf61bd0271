#pragma once

#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/Nl80211Message.h"

#include <optional>

namespace tessara {

/// How a scan came to its end.
enum class ScanEnd {
    kFinished,
    kAborted,  ///< given up by the kernel; what was heard until then stands in its list
    kTimedOut, ///< no end in time
    kRefused,  ///< not begun, or the interface went away meanwhile
    kShutDown, ///< the program ends
};

/// Follows the events of the multicast group "scan" and tells the end of one scan from that of
/// others.
class ScanProgress {
public:
    /// A scan that we have triggered on an interface. Only an end that comes after its beginning
    /// is its own: what a socket received before may tell of an earlier scan.
    static ScanProgress ofOurs(const InterfaceInfo& interface);
    /// A scan that someone else has triggered on the same radio, on whichever interface.
    static ScanProgress ofOthers(const InterfaceInfo& interface);

    /// Takes one event. @return how the scan ended, if this is its end
    std::optional<ScanEnd> take(const Nl80211Message& event);

private:
    ScanProgress(unsigned radio, std::optional<unsigned> interfaceIndex, bool hasBegun);

    unsigned m_radio;
    std::optional<unsigned> m_interfaceIndex; ///< none: any interface of the radio
    bool m_hasBegun;
};

} // namespace tessara
