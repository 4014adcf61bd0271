#pragma once

#include "elements/ElementDecoder.h"
#include "elements/JoinedText.h"

namespace tessara {

/// Bytes of a Supported MCS Set field.
inline constexpr std::size_t kMCSSetSize = 16;

/// Shows a Supported MCS Set field (IEEE Std 802.11-2020, 9.4.2.55.4): one group of indices for
/// each spatial stream that the set offers, the rest of it as bits.
/// @param offset where the field begins
/// @param basic whether it is the set that every station has to support
/// @param array takes the row
/// @param summaryItems takes the number of streams, if there is one
/// @return the bytes that were read
std::size_t parseMCSSetIntoArray(ElementDecoder& e, std::size_t offset, bool basic,
                                 FieldList& array, JoinedText& summaryItems);

} // namespace tessara
