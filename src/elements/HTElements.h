#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// High throughput, 802.11n (IEEE Std 802.11-2020, 9.4.2.55, 9.4.2.56, 9.4.2.19).

std::span<const Field> parseHTCapability(ElementDecoder& e);
std::span<const Field> parseHTInfo(ElementDecoder& e);
std::span<const Field> parseSecondaryChannelOffset(ElementDecoder& e);

} // namespace tessara
