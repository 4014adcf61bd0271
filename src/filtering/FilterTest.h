#pragma once

#include "filtering/FilterIdentifiers.h"
#include "filtering/FilterSubject.h"

#include <functional>
#include <optional>

namespace tessara {

/// What a term means, ready to be held against any number of networks: the column on which a
/// network passes, or none.
using FilterTest = std::function<std::optional<FilterColumn>(const FilterSubject&)>;

} // namespace tessara
