#pragma once

#include <cstdint>

namespace tessara {

/// Identifiers of elements (IEEE Std 802.11-2020, table 9-92) and two of Cisco's own.
namespace ElementID {
inline constexpr std::uint8_t kSSID = 0;
inline constexpr std::uint8_t kSupportedRates = 1;
inline constexpr std::uint8_t kDSParameterSet = 3;
inline constexpr std::uint8_t kCountry = 7;
inline constexpr std::uint8_t kBSSLoad = 11;
inline constexpr std::uint8_t kPowerConstraint = 32;
inline constexpr std::uint8_t kTPCReport = 35;
inline constexpr std::uint8_t kChannelSwitchAnnouncement = 37;
inline constexpr std::uint8_t kQuiet = 40;
inline constexpr std::uint8_t kHTCapabilities = 45;
inline constexpr std::uint8_t kRSN = 48;
inline constexpr std::uint8_t kExtendedSupportedRates = 50;
inline constexpr std::uint8_t kMobilityDomain = 54;
inline constexpr std::uint8_t kHTOperation = 61;
inline constexpr std::uint8_t kTimeAdvertisement = 69;
inline constexpr std::uint8_t kRMEnabledCapabilities = 70;
inline constexpr std::uint8_t kMeshConfiguration = 113;
inline constexpr std::uint8_t kMeshID = 114;
inline constexpr std::uint8_t kExtendedCapabilities = 127;
inline constexpr std::uint8_t kCiscoCCX1 = 133;
inline constexpr std::uint8_t kCiscoCCX4 = 150;
inline constexpr std::uint8_t kVHTCapabilities = 191;
inline constexpr std::uint8_t kVHTOperation = 192;
inline constexpr std::uint8_t kVendorSpecific = 221;
} // namespace ElementID

} // namespace tessara
