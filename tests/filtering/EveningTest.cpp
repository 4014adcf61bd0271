#include "filtering/DisplayPipeline.h"
#include "filtering/FilteredNetworks.h"
#include "filtering/TSSideViewItem.h"
#include "fuzz/PlainFilter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

using namespace tessara;

namespace {

constexpr int kTicks = 4 * 3600 / 2; // four hours, a scan each two seconds

/// A user at the controls, who narrows the list now and then and widens it more often, and what is
/// to be seen after each of their doings.
class Evening {
public:
    void tick()
    {
        NetworkList list;
        for (std::size_t i = 0; i < m_all.size(); ++i) {
            if (oneIn(40))
                m_isInReach[i] = !m_isInReach[i];
            if (m_isInReach[i]) {
                const bool isSeen = !oneIn(8);
                const int rssi = isSeen ? -35 - number(65) : TSDataPoint::kNoData;
                m_all[i]->addDataPoint({rssi, -92, -1, -1, m_time});
                list.push_back(m_all[i]);
            }
        }
        m_time += 2;
        std::ranges::shuffle(list, m_random);
        m_pipeline.filterAndSetNetworks(list);
    }

    void doSomething()
    {
        switch (number(7)) {
        case 0:
            highlightAll();
            m_line = oneIn(3) ? pick(kLines) : QString();
            m_pipeline.onFilter(m_line);
            EXPECT_FALSE(anyHighlighted());
            return;
        case 1:
            highlightAll();
            m_quickFilter =
                oneIn(3) ? static_cast<QuickFilter>(number(4)) : QuickFilter::kAllNetworks;
            m_pipeline.selectQuickFilter(m_quickFilter);
            EXPECT_FALSE(anyHighlighted());
            return;
        case 2:
            m_threshold = {oneIn(3) ? number(12) * 10 : 0, oneIn(2)};
            m_pipeline.setSignalThreshold(m_threshold);
            break;
        case 3:
            m_kinds = {.secure = !oneIn(4), .adHoc = !oneIn(4)};
            m_pipeline.setShownKinds(m_kinds);
            break;
        case 4:
            m_selection = clickIntoTheSideView();
            m_pipeline.setSideViewSelection(m_selection);
            break;
        case 5:
            m_order = {{&columnRegistry()[static_cast<std::size_t>(number(40))], oneIn(2)},
                       {columnWithIdentifier(u"BSSID"), oneIn(2)}};
            m_pipeline.setSortDescriptors(m_order);
            break;
        default:
            m_joined = oneIn(3) ? nullptr : pick(m_all);
            m_pipeline.setAssociation(
                m_joined ? std::optional(Association{m_joined->bssid().toLower(),
                                                     m_joined->channelBand(), m_joined->ssid()})
                         : std::nullopt);
        }
        m_pipeline.filterAndSetNetworks(m_pipeline.networks());
    }

    void expectWhatIsTold() const
    {
        const NetworkList& networks = m_pipeline.networks();
        NetworkList kept;
        for (const NetworkPtr& network : networks) {
            if ((m_kinds.secure || network->isOpen()) && (m_kinds.adHoc || !network->isAdHoc()) &&
                passesQuickFilter(*network, m_quickFilter) && m_threshold.passes(network->rssi()))
                kept.push_back(network);
        }
        QMap<QString, QString> columns;
        if (!m_line.isEmpty())
            kept = plain::filterNetworks(kept, m_line, columns);
        EXPECT_EQ(m_pipeline.sideViewNetworks(), kept);
        for (const Column& column : columnRegistry())
            EXPECT_EQ(m_pipeline.filteredColumnIdentifiers().contains(column.identifier),
                      columns.contains(column.identifier));

        std::erase_if(kept, [&](const auto& network) { return !m_selection.contains(*network); });
        const NetworkList& shown = m_pipeline.filteredNetworks();
        EXPECT_TRUE(std::ranges::is_permutation(shown, kept));
        for (std::size_t i = 1; i < shown.size(); ++i)
            EXPECT_LE(orderOf(*shown[i - 1], *shown[i]), 0);
        for (const NetworkPtr& network : shown)
            EXPECT_EQ(network->isAssociated(), network == m_joined);
        EXPECT_EQ(m_pipeline.footerText(),
                  QStringLiteral("Networks Found: %1, Displayed: %2 (%3%)")
                      .arg(networks.size())
                      .arg(shown.size())
                      .arg(networks.empty() ? 0 : 100 * shown.size() / networks.size()));
    }

    bool oneIn(int odds) { return number(odds) == 0; }

private:
    static inline const std::vector<QString> kLines = {{},
                                                       QStringLiteral("wpa2 & >=40%"),
                                                       QStringLiteral("home, !cisco & 5GHz"),
                                                       QStringLiteral("<-70, ac, \"Home\""),
                                                       QStringLiteral("!"),
                                                       QStringLiteral("00:1a & 6, 36")};

    int number(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    template <typename List>
    typename List::value_type pick(const List& list)
    {
        return list[static_cast<std::size_t>(number(static_cast<int>(list.size())))];
    }

    SideViewSelection clickIntoTheSideView()
    {
        const auto facet = pick(sideViewOf(m_pipeline.sideViewNetworks()));
        if (!facet.hasChildren() || !oneIn(3))
            return {}; // clicked beside
        const TSSideViewItem value = pick(facet.children);
        return {value.identifier, value.filterString};
    }

    int orderOf(const TSNetwork& a, const TSNetwork& b) const
    {
        for (const SortDescriptor& level : m_order) {
            const Column& column = *level.column;
            const int order =
                SortKey::compare({column, column.sortKey(a)}, {column, column.sortKey(b)});
            if (order != 0)
                return level.ascending ? order : -order;
        }
        return 0;
    }

    void highlightAll()
    {
        for (const NetworkPtr& network : m_pipeline.filteredNetworks())
            network->setUserHighlighted(true);
    }
    bool anyHighlighted() const
    {
        return std::ranges::any_of(
            m_all, [](const NetworkPtr& network) { return network->isUserHighlighted(); });
    }

    std::mt19937 m_random{20}; // the same evening at each run
    const NetworkList m_all = filteredNetworks();
    std::vector<bool> m_isInReach = std::vector<bool>(m_all.size(), true);
    double m_time = 1'700'000'000;

    DisplayPipeline m_pipeline;
    QString m_line;
    QuickFilter m_quickFilter = QuickFilter::kAllNetworks;
    SignalThreshold m_threshold;
    ShownKinds m_kinds;
    SideViewSelection m_selection;
    std::vector<SortDescriptor> m_order;
    NetworkPtr m_joined;
};

} // namespace

TEST(DisplayPipeline, ShowsWhatIsToldThroughAWholeEvening)
{
    Evening evening;
    for (int tick = 0; tick < kTicks && !testing::Test::HasFailure(); ++tick) {
        evening.tick();
        evening.expectWhatIsTold();
        if (evening.oneIn(5)) {
            evening.doSomething();
            evening.expectWhatIsTold();
        }
    }
}
