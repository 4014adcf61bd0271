#pragma once

#include "foundation/ByteReader.h"

#include <QString>

namespace tessara {

/// The maker that an OUI, the first three bytes, stands for.
/// @return none for fewer than three bytes, and for an OUI that nobody knows
std::optional<QString> vendorOfOUI(Bytes bytes);

} // namespace tessara
