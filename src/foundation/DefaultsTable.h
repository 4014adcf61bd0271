#pragma once

#include <QStringView>
#include <QVariant>

#include <span>

namespace tessara {

/// Names of the settings. One constant a key, so that a misspelt key does not compile.
namespace DefaultKey {
#define TESSARA_DEFAULT_KEY(name) inline constexpr char16_t name[] = u"" #name
TESSARA_DEFAULT_KEY(Sensitivity);
TESSARA_DEFAULT_KEY(Units);
TESSARA_DEFAULT_KEY(ShowAdHoc);
TESSARA_DEFAULT_KEY(ShowSecure);
TESSARA_DEFAULT_KEY(AutoScan);
TESSARA_DEFAULT_KEY(DeleteIfNotSeen);
TESSARA_DEFAULT_KEY(MaxElapsedTimeNotSeen);
TESSARA_DEFAULT_KEY(HighlightAssociatedNetwork);
TESSARA_DEFAULT_KEY(Metric);
TESSARA_DEFAULT_KEY(SignalStrengthViewTimescale);
TESSARA_DEFAULT_KEY(NetworkSignalStrengthViewTimescale);
TESSARA_DEFAULT_KEY(QuickFilterSelectedItem);
TESSARA_DEFAULT_KEY(FilterString);
TESSARA_DEFAULT_KEY(SaveAlertSupressionButton);
TESSARA_DEFAULT_KEY(UpdateAlertSuppressionButton);
TESSARA_DEFAULT_KEY(SelectedScanInterval);
TESSARA_DEFAULT_KEY(HideDFSChannels);
TESSARA_DEFAULT_KEY(HideChannelGraphs);
TESSARA_DEFAULT_KEY(NetworksViewFontSize);
TESSARA_DEFAULT_KEY(AdvancedDetailsViewFontSize);
TESSARA_DEFAULT_KEY(SideViewFontSize);
TESSARA_DEFAULT_KEY(ShowNetworkLabel);
TESSARA_DEFAULT_KEY(SelectedTabViewIdentifier);
TESSARA_DEFAULT_KEY(SideViewExpandedItems);
TESSARA_DEFAULT_KEY(HorizontalSplitView);
TESSARA_DEFAULT_KEY(VerticalSplitView);
TESSARA_DEFAULT_KEY(RanOnce);
TESSARA_DEFAULT_KEY(WindowFrame);
TESSARA_DEFAULT_KEY(LastLaunchedVersion);
TESSARA_DEFAULT_KEY(InterfaceName);
TESSARA_DEFAULT_KEY(SignalStrengthThreshold);
TESSARA_DEFAULT_KEY(UserDefinedColors);
TESSARA_DEFAULT_KEY(DisplayAnnotations);
TESSARA_DEFAULT_KEY(OrganizeNetworksBy);
TESSARA_DEFAULT_KEY(RecentFilters);
TESSARA_DEFAULT_KEY(AutoUpdateVendorsDatabase);
TESSARA_DEFAULT_KEY(LastVendorsDatabaseCheck);
TESSARA_DEFAULT_KEY(SpeakOn);
TESSARA_DEFAULT_KEY(SpeakIntervalInSeconds);
TESSARA_DEFAULT_KEY(SpeakWhenOnBackground);
TESSARA_DEFAULT_KEY(Annotations);
/// Whether the program asks for newer versions of itself, how often in seconds, and when it last
/// did.
TESSARA_DEFAULT_KEY(CheckForUpdates);
TESSARA_DEFAULT_KEY(UpdateCheckInterval);
TESSARA_DEFAULT_KEY(LastUpdateCheck);
/// The identifier of the pane of the preferences that was seen last.
inline constexpr char16_t SelectedPreferencesPane[] = u"MASPreferences Selected Identifier View";
/// The layout of the networks table: order, widths, hidden states and sorting of its columns.
TESSARA_DEFAULT_KEY(NetworksTable);
/// The layout of the tree of elements: order, widths and hidden states of its columns.
TESSARA_DEFAULT_KEY(AdvancedDetailsTable);
/// Paths of the results files opened last, the latest first.
TESSARA_DEFAULT_KEY(RecentDocuments);
#undef TESSARA_DEFAULT_KEY
} // namespace DefaultKey

/// One setting: its key, its type, and the value it has until the user sets it.
struct DefaultEntry {
    QStringView key;
    QMetaType::Type type;
    QVariant value; ///< invalid for a key that is not registered: it reads as false, 0 or none
};

/// Every setting of the program.
std::span<const DefaultEntry> defaultsTable();

/// The entry of a key; none if there is no such setting.
const DefaultEntry* defaultEntry(QStringView key);

} // namespace tessara
