#include "filtering/TSSideViewItem.h"

#include "foundation/Localized.h"
#include "foundation/TextOrder.h"

#include <QHash>

#include <algorithm>
#include <tuple>

namespace tessara {

namespace {

/// Values and their titles.
using Values = QHash<QString, QString>;

/// What the walk over the networks finds.
struct Facets {
    Values names;
    Values phyModes;
    Values security;
    Values accessPoints;
    Values vendors;

    explicit Facets(const NetworkList& networks);
    void add(const TSNetwork& network);
};

Facets::Facets(const NetworkList& networks)
{
    // Of these there may be as many as networks.
    names.reserve(static_cast<qsizetype>(networks.size()));
    accessPoints.reserve(static_cast<qsizetype>(networks.size()));
    for (const NetworkPtr& network : networks)
        add(*network);
}

void Facets::add(const TSNetwork& network)
{
    names.insert(network.ssid(), network.ssid());

    if (const QString mode = network.phyMode(); !mode.isEmpty())
        phyModes.insert(mode, QStringLiteral("802.11%1").arg(mode));

    if (!network.securityMode().isEmpty()) {
        const QString mode = network.shortSecurityMode();
        const QString title = mode.isEmpty() ? localized("Open") : mode;
        security.insert(title, title);
    }

    // One radio stands for itself; with more, their access point does, and the last one decides.
    const QString& apid = network.apid();
    const qsizetype before = accessPoints.size();
    QString& accessPoint = accessPoints[apid];
    accessPoint = accessPoints.size() > before ? network.deviceid() : apid;

    const QString vendor = network.vendor().value_or(QStringLiteral("Unknown"));
    vendors.insert(vendor, vendor);
}

/// A value as it is sorted: by its title, and by itself where titles are equal.
struct TitledValue {
    QString title;
    QString value;

    auto tied() const { return std::tie(title, value); }
};

bool byTitle(const TitledValue& a, const TitledValue& b)
{
    return a.tied() < b.tied();
}

/// "802.11a/n" as if it were "802.11an".
bool byModes(const TitledValue& a, const TitledValue& b)
{
    const auto bare = [](QString title) { return title.remove(u'/'); };
    const int order = caseInsensitiveCompare(bare(a.title), bare(b.title));
    return order != 0 ? order < 0 : byTitle(a, b);
}

TSSideViewItem categoryOf(EnglishText title, const QString& identifier, const Values& values,
                          bool (*isBefore)(const TitledValue&, const TitledValue&) = byTitle)
{
    std::vector<TitledValue> sorted;
    sorted.reserve(static_cast<std::size_t>(values.size()));
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        sorted.push_back({value.value(), value.key()});
    std::ranges::sort(sorted, isBefore);

    TSSideViewItem category{.title = localized(title),
                            .identifier = QStringLiteral("category"),
                            .filterString = localized(title),
                            .showCount = true};
    category.children.reserve(sorted.size());
    for (TitledValue& each : sorted)
        category.children.push_back({.title = std::move(each.title),
                                     .identifier = identifier,
                                     .filterString = std::move(each.value)});
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
    const Facets facets(networks);

    std::vector<TSSideViewItem> items = emptySideView();
    items.push_back(bandCategory());
    items.push_back(
        categoryOf("Network Name"_en, QStringLiteral("item-networkname"), facets.names));
    items.push_back(
        categoryOf("PHY Mode"_en, QStringLiteral("item-phymode"), facets.phyModes, byModes));
    items.push_back(
        categoryOf("Security"_en, QStringLiteral("item-securitymode"), facets.security));
    items.push_back(
        categoryOf("Access Point"_en, QStringLiteral("item-accesspoint"), facets.accessPoints));
    items.push_back(categoryOf("Vendor"_en, QStringLiteral("item-vendor"), facets.vendors));
    return items;
}

} // namespace tessara
