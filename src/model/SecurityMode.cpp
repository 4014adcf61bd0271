#include "model/SecurityMode.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

using enum SecurityMode;

constexpr SecurityModeInfo kModes[] = {
    {.mode = kNone, .name = "None"_en, .shortName = "", .isOpen = true},
    {.mode = kWEP, .name = "WEP"_en, .shortName = "WEP", .isWEP = true},
    {.mode = kWPAPersonal,
     .name = "WPA Personal"_en,
     .shortName = "WPA (PSK)",
     .isWPA = true,
     .isPSK = true},
    {.mode = kWPAAndWPA2Personal,
     .name = "WPA/WPA2 Personal"_en,
     .shortName = "WPA/WPA2 (PSK)",
     .isWPA = true,
     .isWPA2 = true,
     .isPSK = true},
    {.mode = kWPA2Personal,
     .name = "WPA2 Personal"_en,
     .shortName = "WPA2 (PSK)",
     .isWPA2 = true,
     .isPSK = true},
    {.mode = kDynamicWEP, .name = "Dynamic WEP"_en, .shortName = "WEP (802.1X)"},
    {.mode = kWPAEnterprise,
     .name = "WPA Enterprise"_en,
     .shortName = "WPA (802.1X)",
     .isWPA = true,
     .is80211X = true},
    {.mode = kWPAAndWPA2Enterprise,
     .name = "WPA/WPA2 Enterprise"_en,
     .shortName = "WPA/WPA2 (802.1X)",
     .isWPA = true,
     .isWPA2 = true,
     .is80211X = true},
    {.mode = kWPA2Enterprise,
     .name = "WPA2 Enterprise"_en,
     .shortName = "WPA2 (802.1X)",
     .isWPA2 = true,
     .is80211X = true},
    {.mode = kUnknown, .name = {}, .shortName = "", .isOpen = true},
};

constexpr SecurityModeInfo kNoSuchMode = {.mode = kUnknown, .name = {}, .shortName = ""};

} // namespace

const SecurityModeInfo& securityModeInfo(SecurityMode mode)
{
    const auto* info = std::ranges::find(kModes, mode, &SecurityModeInfo::mode);
    return info == std::end(kModes) ? kNoSuchMode : *info;
}

} // namespace tessara
