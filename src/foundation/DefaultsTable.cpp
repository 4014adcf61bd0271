#include "foundation/DefaultsTable.h"

#include <algorithm>
#include <vector>

namespace tessara {

namespace {

using namespace DefaultKey;

std::vector<DefaultEntry> makeTable()
{
    using Type = QMetaType;
    const QVariant none;
    return {
        {Sensitivity, Type::LongLong, 100},
        {Units, Type::LongLong, 0},
        {ShowAdHoc, Type::Bool, true},
        {ShowSecure, Type::Bool, true},
        {AutoScan, Type::Bool, true},
        {DeleteIfNotSeen, Type::Bool, true},
        {MaxElapsedTimeNotSeen, Type::LongLong, 3},
        {HighlightAssociatedNetwork, Type::Bool, true},
        {Metric, Type::LongLong, 0},
        {SignalStrengthViewTimescale, Type::LongLong, 300},
        {NetworkSignalStrengthViewTimescale, Type::LongLong, 300},
        {QuickFilterSelectedItem, Type::LongLong, 0},
        {FilterString, Type::QString, QStringLiteral("")},
        {SaveAlertSupressionButton, Type::LongLong, 0},
        {UpdateAlertSuppressionButton, Type::LongLong, 0},
        {SelectedScanInterval, Type::LongLong, 1},
        {HideDFSChannels, Type::Bool, false},
        {HideChannelGraphs, Type::Bool, false},
        {NetworksViewFontSize, Type::Double, 11.0},
        {AdvancedDetailsViewFontSize, Type::Double, 12.0},
        {SideViewFontSize, Type::Double, 11.0},
        {ShowNetworkLabel, Type::Bool, true},
        {SelectedTabViewIdentifier, Type::QString, none},
        {SideViewExpandedItems, Type::QStringList, none},
        {HorizontalSplitView, Type::QByteArray, none},
        {VerticalSplitView, Type::QByteArray, none},
        {RanOnce, Type::Bool, none},
        {WindowFrame, Type::QByteArray, none},
        {LastLaunchedVersion, Type::QString, none},
        {InterfaceName, Type::QString, none},
        {SignalStrengthThreshold, Type::LongLong, none},
        {UserDefinedColors, Type::QVariantMap, none},
        {DisplayAnnotations, Type::Bool, none},
        {OrganizeNetworksBy, Type::LongLong, none},
        {RecentFilters, Type::QStringList, none},
        {AutoUpdateVendorsDatabase, Type::Bool, none},
        {LastVendorsDatabaseCheck, Type::QDateTime, none},
        {SpeakOn, Type::Bool, none},
        {SpeakIntervalInSeconds, Type::Double, none},
        {SpeakWhenOnBackground, Type::Bool, none},
        {Annotations, Type::QVariantMap, none},
        {SelectedPreferencesPane, Type::QString, none},
        {CheckForUpdates, Type::Bool, none},
        {UpdateCheckInterval, Type::LongLong, 604800},
        {LastUpdateCheck, Type::QDateTime, none},
        {NetworksTable, Type::QByteArray, none},
        {AdvancedDetailsTable, Type::QByteArray, none},
        {RecentDocuments, Type::QStringList, none},
    };
}

} // namespace

std::span<const DefaultEntry> defaultsTable()
{
    static const std::vector<DefaultEntry> table = makeTable();
    return table;
}

const DefaultEntry* defaultEntry(QStringView key)
{
    const auto table = defaultsTable();
    const auto entry = std::ranges::find(table, key, &DefaultEntry::key);
    return entry == table.end() ? nullptr : &*entry;
}

} // namespace tessara
