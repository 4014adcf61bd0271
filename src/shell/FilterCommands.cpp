#include "shell/FilterCommands.h"

#include "foundation/Defaults.h"
#include "scanning/ScanCycle.h"
#include "shell/MainWindow.h"
#include "shell/TSNetworksView.h"
#include "shell/TSSideView.h"

#include <utility>

namespace tessara {

FilterCommands::FilterCommands(MainWindow& window, const ScanCycle& scanCycle)
    : m_window(window)
    , m_scanCycle(scanCycle)
{
    connect(&window, &MainWindow::quickFilterSelected, this, &FilterCommands::selectQuickFilter);
    connect(&window, &MainWindow::filterChanged, this, &FilterCommands::onFilter);
    connect(&window, &MainWindow::filterUsingKeys, this, &FilterCommands::handleFilterUsingKeys);
    connect(&window.networksView(), &TSNetworksView::sortDescriptorsDidChange, this,
            &FilterCommands::filterAgain);
    const TSSideView& sideView = window.sideView();
    connect(&sideView, &TSSideView::selectionDidChange, this,
            &FilterCommands::sideViewSelectionDidChange);
    connect(&sideView, &TSSideView::didClickBeside, this, &FilterCommands::userDidClickSourceList);
}

void FilterCommands::filterAndSetNetworks(const NetworkList& networks)
{
    setUpPipeline();
    m_pipeline.filterAndSetNetworks(networks);
    Q_EMIT didFilter();
}

void FilterCommands::selectQuickFilter(QuickFilter filter)
{
    Defaults& defaults = Defaults::standard();
    if (filter == kQuickFilterNotFound) {
        const auto stored =
            static_cast<QuickFilter>(defaults.integerForKey(DefaultKey::QuickFilterSelectedItem));
        selectQuickFilter(stored == filter ? QuickFilter::kAllNetworks : stored);
        // There is no such pane yet: the one that was seen last shows.
        Q_EMIT preferencesRequested(QStringLiteral("Filters"));
        return;
    }
    defaults.setValue(DefaultKey::QuickFilterSelectedItem, static_cast<qint64>(filter));
    if (isQuickFilter(filter))
        m_window.setQuickFilter(filter);
    setUpPipeline();
    m_pipeline.selectQuickFilter(filter);
    Q_EMIT didFilter();
}

void FilterCommands::onFilter(const QString& line)
{
    setUpPipeline();
    m_pipeline.onFilter(line);
    Q_EMIT didFilter();
}

void FilterCommands::onViewOrganizeNetworksBy()
{
    setUpPipeline();
    m_pipeline.onViewOrganizeNetworksBy(Defaults::standard());
    Q_EMIT didFilter();
}

void FilterCommands::handleFilterUsingKeys(std::int64_t threshold)
{
    m_signalStrengthThreshold = threshold;
    Defaults::standard().setValue(DefaultKey::SignalStrengthThreshold,
                                  static_cast<qint64>(threshold));
    filterAgain();
}

void FilterCommands::sideViewSelectionDidChange(const std::optional<TSSideViewItem>& item)
{
    m_sideViewSelection.identifier.clear();
    if (!item) {
        if (!std::exchange(m_sideViewSelection.string, {}).isEmpty())
            filterAgain();
        return;
    }
    if (item->identifier.startsWith(QLatin1String("item")))
        m_sideViewSelection.identifier = item->identifier;
    // The same value under another facet waits for the next pass, and it is meant so.
    if (item->filterString == m_sideViewSelection.string)
        return;
    m_sideViewSelection.string = item->filterString;
    m_window.networksView().clearSelection();
    filterAgain();
}

void FilterCommands::userDidClickSourceList()
{
    const bool isSelected = m_window.sideView().selectionModel()->hasSelection();
    if (isSelected || !m_sideViewSelection.identifier.isEmpty()) {
        clearSideViewSelection(); // also that of a value that has vanished
        filterAgain();
    }
    m_window.networksView().clearSelection();
}

void FilterCommands::clearSideViewSelection()
{
    m_sideViewSelection = {};
    m_window.sideView().clearSelection();
}

void FilterCommands::setUpPipeline()
{
    const Defaults& defaults = Defaults::standard();
    m_pipeline.setShownKinds(ShownKinds::fromDefaults(defaults));
    m_pipeline.setSignalThreshold(
        {m_signalStrengthThreshold, defaults.integerForKey(DefaultKey::Units) == 1});
    m_pipeline.setSortDescriptors(m_window.networksView().sortDescriptors());
    m_pipeline.setAssociation(association());
    m_pipeline.setSideViewSelection(m_sideViewSelection);
}

std::optional<Association> FilterCommands::association() const
{
    const CWInterface* interface = m_scanCycle.currentInterface().get();
    if (!m_scanCycle.isScanning() || !interface || !interface->isAssociated())
        return std::nullopt;
    const auto bssid = interface->bssid();
    const auto band = interface->channelBand();
    if (!bssid || !band)
        return std::nullopt;
    return Association{*bssid, *band, interface->ssid().value_or(QString())};
}

} // namespace tessara
