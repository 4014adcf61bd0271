#pragma once

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
    kDynamicWEP = 6,
    kWPAEnterprise = 7,
    kWPAAndWPA2Enterprise = 8,
    kWPA2Enterprise = 9,
    /// Nothing is known yet, or nothing protects the network: it counts as open.
    kUnknown = std::numeric_limits<std::int64_t>::max(),
};

} // namespace tessara
