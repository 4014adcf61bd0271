#include "filtering/QuickFilter.h"

#include <algorithm>

namespace tessara {

std::span<const QuickFilterItem> composeQuickFilterMenu()
{
    static constexpr QuickFilterItem kItems[] = {
        {QuickFilter::kAllNetworks, "All Networks"},
        {QuickFilter::kOpenNetworks, "Open Networks"},
        {QuickFilter::kSecureNetworks, "Secure Networks"},
        {QuickFilter::kAdHocNetworks, "Ad Hoc Networks"},
    };
    return kItems;
}

bool isQuickFilter(QuickFilter filter)
{
    return std::ranges::any_of(composeQuickFilterMenu(), [filter](const QuickFilterItem& item) {
        return item.tag == filter;
    });
}

bool passesQuickFilter(const TSNetwork& network, QuickFilter filter)
{
    switch (filter) {
    case QuickFilter::kOpenNetworks:
        return network.isOpen();
    case QuickFilter::kSecureNetworks:
        return !network.isOpen();
    case QuickFilter::kAdHocNetworks:
        return network.isAdHoc();
    case QuickFilter::kAllNetworks:
        break;
    }
    return true;
}

} // namespace tessara
