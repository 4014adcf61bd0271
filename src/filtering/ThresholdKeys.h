#pragma once

#include <QChar>

#include <cstdint>
#include <optional>

namespace tessara {

/// The threshold that a key stands for: digits are tens, the letters below them lie between.
/// @return none for another key
std::optional<std::int64_t> thresholdOfKey(QChar key);

} // namespace tessara
