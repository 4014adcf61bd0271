#pragma once

#include "filtering/DisplayPipeline.h"
#include "filtering/TSSideViewItem.h"

#include <QObject>

namespace tessara {

class MainWindow;
class ScanCycle;

/// The commands that narrow the list: quick filter, filter line, threshold keys and side view. Owns
/// the pipeline, and gives it before each pass what the settings and the window say by then.
class FilterCommands final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this.
    FilterCommands(MainWindow& window, const ScanCycle& scanCycle);

    const DisplayPipeline& pipeline() const { return m_pipeline; }

    void filterAndSetNetworks(const NetworkList& networks);
    /// The same with the networks that are there.
    void filterAgain() { filterAndSetNetworks(m_pipeline.networks()); }
    void selectQuickFilter(QuickFilter filter);
    void onViewOrganizeNetworksBy();
    void clearSideViewSelection();

Q_SIGNALS:
    /// The pipeline has made a pass.
    void didFilter();
    /// The user wants to see the pane of the filters.
    void preferencesRequested(const QString& identifier);

private:
    void onFilter(const QString& line);
    void handleFilterUsingKeys(std::int64_t threshold);
    void sideViewSelectionDidChange(const std::optional<TSSideViewItem>& item);
    void userDidClickSourceList();
    void setUpPipeline();
    std::optional<Association> association() const;

    MainWindow& m_window;
    const ScanCycle& m_scanCycle;
    DisplayPipeline m_pipeline;
    std::int64_t m_signalStrengthThreshold = 0;
    SideViewSelection m_sideViewSelection;
};

} // namespace tessara
