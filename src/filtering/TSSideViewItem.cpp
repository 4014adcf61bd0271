#include "filtering/TSSideViewItem.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"

#include <algorithm>
#include <map>

namespace tessara {

namespace {

/// Values and their titles.
using Values = std::map<QString, QString>;

/// What the walk over the networks finds.
struct Facets {
    Values names;
    Values phyModes;
    Values security;
    Values accessPoints;
    Values vendors;

    void add(const TSNetwork& network);
};

void Facets::add(const TSNetwork& network)
{
    names[network.ssid()] = network.ssid();

    if (const QString mode = network.phyMode(); !mode.isEmpty())
        phyModes[mode] = QStringLiteral("802.11%1").arg(mode);

    if (!network.securityMode().isEmpty()) {
        const QString mode = network.shortSecurityMode();
        const QString title = mode.isEmpty() ? localized("Open") : mode;
        security[title] = title;
    }

    // One radio stands for itself; with more, their access point does, and the last one decides.
    const QString& apid = network.apid();
    accessPoints[apid] = accessPoints.contains(apid) ? apid : network.deviceid();

    const QString vendor = network.vendor().value_or(QStringLiteral("Unknown"));
    vendors[vendor] = vendor;
}

using IsBefore = bool (*)(const TSSideViewItem& a, const TSSideViewItem& b);

bool byTitle(const TSSideViewItem& a, const TSSideViewItem& b)
{
    return a.title < b.title;
}

/// "802.11a/n" as if it were "802.11an".
bool byModes(const TSSideViewItem& a, const TSSideViewItem& b)
{
    const auto bare = [](QString title) { return title.remove(u'/'); };
    return caseInsensitiveCompare(bare(a.title), bare(b.title)) < 0;
}

TSSideViewItem categoryOf(const char* title, const QString& identifier, const Values& values,
                          IsBefore isBefore = byTitle)
{
    TSSideViewItem category{.title = localized(title),
                            .identifier = QStringLiteral("category"),
                            .filterString = localized(title),
                            .showCount = true};
    for (const auto& [value, valueTitle] : values)
        category.children.push_back(
            {.title = valueTitle, .identifier = identifier, .filterString = value});
    std::ranges::stable_sort(category.children, isBefore);
    return category;
}

TSSideViewItem bandCategory()
{
    TSSideViewItem category{.title = localized("Frequency Band"),
                            .identifier = QStringLiteral("category"),
                            .filterString = localized("Frequency Band")};
    for (const QString& band : {QStringLiteral("2.4 GHz"), QStringLiteral("5 GHz")})
        category.children.push_back({.title = band,
                                     .identifier = QStringLiteral("item-frequencyband"),
                                     .filterString = band});
    return category;
}

} // namespace

std::vector<TSSideViewItem> emptySideView()
{
    const QString title = localized("Results").toUpper();
    return {{.title = title, .identifier = QStringLiteral("group"), .filterString = title}};
}

std::vector<TSSideViewItem> sideViewOf(const NetworkList& networks)
{
    Facets facets;
    for (const NetworkPtr& network : networks)
        facets.add(*network);

    std::vector<TSSideViewItem> items = emptySideView();
    items.push_back(bandCategory());
    items.push_back(categoryOf("Network Name", QStringLiteral("item-networkname"), facets.names));
    items.push_back(
        categoryOf("PHY Mode", QStringLiteral("item-phymode"), facets.phyModes, byModes));
    items.push_back(categoryOf("Security", QStringLiteral("item-securitymode"), facets.security));
    items.push_back(
        categoryOf("Access Point", QStringLiteral("item-accesspoint"), facets.accessPoints));
    items.push_back(categoryOf("Vendor", QStringLiteral("item-vendor"), facets.vendors));
    return items;
}

} // namespace tessara
