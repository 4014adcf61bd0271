#pragma once

#include "foundation/Localized.h"

#include <cstdint>
#include <limits>

namespace tessara {

/// Kinds of security, by the code that raw scan dictionaries, records and saved files hold.
enum class SecurityMode : std::int64_t {
    kNone = 0,
    kWEP = 1,
    kWPAPersonal = 2,
    kWPAAndWPA2Personal = 3,
    kWPA2Personal = 4,
    kDynamicWEP = 6, ///< only old files hold it
    kWPAEnterprise = 7,
    kWPAAndWPA2Enterprise = 8,
    kWPA2Enterprise = 9,
    /// Nothing is known yet, or nothing protects the network: it counts as open.
    kUnknown = std::numeric_limits<std::int64_t>::max(),
};

/// What there is to know of a kind of security.
struct SecurityModeInfo {
    SecurityMode mode;
    EnglishText name;      ///< "WPA2 Personal"
    const char* shortName; ///< "WPA2 (PSK)"; the same in every language
    bool isOpen = false;
    bool isWEP = false;
    bool isWPA = false;
    bool isWPA2 = false;
    bool isPSK = false;
    bool is80211X = false;
};

/// The entry of a kind; for a code that is no kind one without names that is nothing.
const SecurityModeInfo& securityModeInfo(SecurityMode mode);

} // namespace tessara
