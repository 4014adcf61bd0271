#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// The management elements of the later amendments (IEEE Std 802.11-2020, 9.4.2).

// Capabilities and measurement.
std::span<const Field> parseExtendedCapabities(ElementDecoder& e);
std::span<const Field> parseRMEnabledCapability(ElementDecoder& e);
std::span<const Field> parseAPChannelReport(ElementDecoder& e);

// Interworking with external networks.
std::span<const Field> parseInterworking(ElementDecoder& e);
std::span<const Field> parseAdvertisementProtocol(ElementDecoder& e);
std::span<const Field> parseRoamingConsortium(ElementDecoder& e);

// Mesh.
std::span<const Field> parseMeshConfiguration(ElementDecoder& e);
std::span<const Field> parseMeshID(ElementDecoder& e);

// Others.
std::span<const Field> parseMobilityDomain(ElementDecoder& e);
std::span<const Field> parseTimeAdvertisement(ElementDecoder& e);
std::span<const Field> parseMultipleBSSID(ElementDecoder& e);

} // namespace tessara
