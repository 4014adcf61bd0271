#include "filtering/QuickFilter.h"

#include <algorithm>

namespace tessara {

std::span<const QuickFilterItem> composeQuickFilterMenu()
{
    static constexpr QuickFilterItem kItems[] = {
        {QuickFilter::kAllNetworks, "All Networks"_en},
        {QuickFilter::kOpenNetworks, "Open Networks"_en},
        {QuickFilter::kSecureNetworks, "Secure Networks"_en},
        {QuickFilter::kAdHocNetworks, "Ad Hoc Networks"_en},
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
