#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// RSN (IEEE Std 802.11-2020, 9.4.2.24).
std::span<const Field> parseRSNIE(ElementDecoder& e);

} // namespace tessara
