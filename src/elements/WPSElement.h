#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// Wi-Fi Protected Setup (Wi-Fi Alliance, Wi-Fi Simple Configuration 2.0.7, 12): the rows
/// behind those of the vendor; sets the summary.
std::span<const Field> parseWPS(ElementDecoder& e);

} // namespace tessara
