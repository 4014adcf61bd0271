#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace tessara {

/// Where the kernel tells of changes of the switches and takes wishes.
inline constexpr auto kRfkillDevice = "/dev/rfkill";

/// A switch that can keep a radio from sending.
struct RfkillSwitch {
    std::uint32_t index = 0;
    bool isSoftBlocked = false; ///< by a program
    bool isHardBlocked = false; ///< by a key or slider of the machine

    bool isBlocked() const { return isSoftBlocked || isHardBlocked; }
};

/// The switches of the radio of an interface. None if the machine has none: nothing is blocked.
/// @param sysfs where sysfs is mounted
std::vector<RfkillSwitch> rfkillSwitches(const QString& interfaceName,
                                         const QString& sysfs = QStringLiteral("/sys"));

/// Blocks or releases a switch. @return an errno: EACCES without the permission, ENOENT without
/// the device file
int setSoftBlocked(const RfkillSwitch& rfkill, bool blocked);

} // namespace tessara
