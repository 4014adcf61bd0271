#pragma once

#include "foundation/ByteReader.h"

#include <QString>

#include <string_view>

namespace tessara {

/// Text from the air. A byte order mark is a character of it like any other.
/// @return none if the bytes are no UTF-8
std::optional<QString> textFromUtf8(std::string_view utf8);

/// Bytes from the air as characters of one byte each; valid as long as the bytes.
inline std::string_view charactersOf(Bytes bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace tessara
