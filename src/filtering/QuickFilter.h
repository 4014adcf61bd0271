#pragma once

#include "foundation/Localized.h"
#include "model/TSNetwork.h"

#include <limits>
#include <span>

namespace tessara {

/// The kinds of networks that one click leaves in the list. The numbers are those of the menu's
/// items and of the setting `QuickFilterSelectedItem`.
enum class QuickFilter : qint64 {
    kAllNetworks = 0,
    kOpenNetworks = 1,
    kSecureNetworks = 2,
    kAdHocNetworks = 3,
};
/// Stands for no quick filter, but for the wish to define some.
inline constexpr auto kQuickFilterNotFound =
    static_cast<QuickFilter>(std::numeric_limits<qint64>::max());

struct QuickFilterItem {
    QuickFilter tag;
    EnglishText title;
};

/// The items of the menu, in order.
std::span<const QuickFilterItem> composeQuickFilterMenu();

/// Whether the menu has such an item.
bool isQuickFilter(QuickFilter filter);
bool passesQuickFilter(const TSNetwork& network, QuickFilter filter);

} // namespace tessara
