#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// The elements that beacons of every generation carry: name, rates, channel, traffic, country,
/// load, power and protection (IEEE Std 802.11-2020, 9.4.2).

std::span<const Field> parseSSID(ElementDecoder& e);
std::span<const Field> parseSuppRates(ElementDecoder& e);
std::span<const Field> parseDSParameter(ElementDecoder& e);
std::span<const Field> parseTIM(ElementDecoder& e);
std::span<const Field> parseIBSSParameter(ElementDecoder& e);
std::span<const Field> parseCountryInfo(ElementDecoder& e);
std::span<const Field> parseQBSSLoad(ElementDecoder& e);
std::span<const Field> parseEDCAParamSet(ElementDecoder& e);
std::span<const Field> parsePowerConstraint(ElementDecoder& e);
std::span<const Field> parsePowerCapability(ElementDecoder& e);
std::span<const Field> parseTPCRequest(ElementDecoder& e);
std::span<const Field> parseTPCReport(ElementDecoder& e);
std::span<const Field> parseChannelSwitchAnnouncement(ElementDecoder& e);
std::span<const Field> parseQuiet(ElementDecoder& e);
std::span<const Field> parseERPInfo(ElementDecoder& e);

/// Any element: its bytes.
std::span<const Field> parseGeneric(ElementDecoder& e);

} // namespace tessara
