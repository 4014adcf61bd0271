#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// Makes the rows of an element and sets its summary.
using DecodeElement = std::span<const Field> (*)(ElementDecoder& e);

/// The decoder of the elements of an identifier; that of any element where there is no other.
DecodeElement decoderForElement(std::uint8_t id);

} // namespace tessara
