#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tessara {

/// The weakest signal that stays in the list, as the keys of the keyboard set it: the same number
/// means -70 dBm or 70 per cent, depending on the unit of the settings.
struct SignalThreshold {
    std::int64_t value = 0; ///< 0 is off
    bool dBm = false;       ///< the number is a level below 0 dBm, not a percentage

    bool isOn() const { return value != 0; }
    /// @param rssi dBm; -120 for a network that the last scan did not see, which fails always
    bool passes(std::int64_t rssi) const;
    /// For the footer; none if the threshold is off.
    std::optional<QString> text() const;
};

} // namespace tessara
