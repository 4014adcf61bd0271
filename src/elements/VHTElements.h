#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// Very high throughput, 802.11ac (IEEE Std 802.11-2020, 9.4.2.157, 9.4.2.158, 9.4.2.161).

std::span<const Field> parseVHTCapability(ElementDecoder& e);
std::span<const Field> parseVHTOperation(ElementDecoder& e);
std::span<const Field> parseVHTTPE(ElementDecoder& e);

} // namespace tessara
