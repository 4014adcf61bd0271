#pragma once

#include "elements/ValueText.h"

namespace tessara {

/// Where an access point stands (IEEE Std 802.11-2020, 9.4.1.34, tables 9-68 and 9-69).

/// Absent for a group that is reserved.
std::optional<std::string_view> textForVenueGroup(std::uint8_t group);
/// The types within a group; none for a group that is reserved.
std::span<const ValueText> venueTypesForVenueGroup(std::uint8_t group);

} // namespace tessara
