#pragma once

#include "enrichment/SpokenReports.h"
#include "enrichment/TSNetServiceBrowser.h"
#include "persistence/ApplicationUpdate.h"
#include "persistence/ResultsDocument.h"
#include "persistence/VendorDatabaseUpdate.h"
#include "scanning/ScanCycle.h"
#include "shell/ExchangeCommands.h"
#include "shell/FilterCommands.h"
#include "shell/MainWindow.h"
#include "shell/SheetPrompt.h"

#include <QObject>

namespace tessara {

class MASPreferencesWindowController;

/// The one controller of the application: builds its parts, connects them, and brings them up
/// and down in order. What the parts do is theirs.
class AppDelegate final : public QObject, private ScanCycleViews, private ShownResults {
    Q_OBJECT

public:
    /// Builds the window and chooses the interface; nothing is visible yet.
    /// @param wifi where the interface comes from
    /// @param deviceNames searched as soon as there is an interface
    /// @param services must outlive this, as the engines do
    AppDelegate(WiFiService& wifi, TSVendorDatabaseHelper& vendors,
                TSAnnotationsHelper& annotations, TSNetServiceBrowser& deviceNames, Voice& voice,
                EngineServices services);

    /// Reads the settings and shows the window; the first time, scanning may start by itself.
    /// @param file results to be shown instead; empty for none
    void applicationWillFinishLaunching(const QString& file = {});
    /// Shows the results of a file that the system hands over.
    void openFile(const QString& path);
    /// Ends the application without asking, as the system wants it when the session ends.
    void terminate();

    MainWindow& window() { return m_window; }
    ScanCycle& scanCycle() { return m_scanCycle; }
    const DisplayPipeline& pipeline() const { return m_filters.pipeline(); }

Q_SIGNALS:
    /// The window has closed and the settings are stored: the process is to end.
    void didTerminate();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The views of the scan cycle.
    void filterAndSetNetworks(const NetworkList& networks) override;
    void prepareAndReload() override;
    void configureAll() override;
    void setReferenceTime(double time) override;
    void clearSideViewSelection() override;
    void setDisplayOnlyLastSeen(bool only) override;
    void selectAssociatedNetworks() override;
    void updateStateInfo() override;
    void updateWindowTitle() override;
    void validateScanStopItems() override;
    void setLeftFooterVisible(bool visible) override;
    void startActivityIndicator() override;
    void stopActivityIndicator() override;

    // The results that the document saves and replaces.
    const NetworkList& networks() const override { return m_scanCycle.networks(); }
    double lastScanTime() const override { return m_scanCycle.lastScanTime(); }
    void doStop() override { m_scanCycle.doStop(); }
    void doStopAndClearResults() override { m_scanCycle.doStopAndClearResults(); }
    void didFindNetworks(const NetworkList& networks, double lastScanTime) override
    {
        m_scanCycle.didFindNetworks(networks, lastScanTime);
    }

    void connectMenu();
    void connectSpeech();
    void onViewMakeText(double step);
    void connectParts(NotificationCenter& notifications);
    QStringList prepareInstallation() const;
    void loadDefaults();
    void handleUserDidPickNetwork(const QString& bssid);
    void userDidSelectColor(const NetworkPtr& network, const QColor& color);
    void showPreferencesWithIdentifier(const QString& identifier);
    void makePreferences();
    void valuesDidChange();
    void showFilteredNetworks();
    void saveDefaults();
    void restoreWindowFrame();
    void showWindow();
    void onIntervals();
    void showNoInterfaceAlert();
    void checkVendorsDatabaseLater();
    void configureNetworksView();
    void configureSelectedTabView();
    void onSpeak();
    void userDidToggleColumnState(const Column& column);
    void configureSideView();
    QString placeholderText() const;
    QString windowTitle() const;
    void showWindowTitle();
    void windowShouldClose();
    void windowWillClose();
    void applicationWillTerminate();

    MainWindow m_window;
    SheetPrompt m_prompt{m_window};
    ScanCycle m_scanCycle;
    Clock& m_clock;
    ResultsDocument m_document;
    TSVendorDatabaseHelper& m_vendors;
    TSAnnotationsHelper& m_annotations;
    TSNetServiceBrowser& m_deviceNames;
    Voice& m_voice;
    SpokenReports m_spokenReports;
    VendorDatabaseUpdate m_vendorsUpdate;
    ApplicationUpdate m_applicationUpdate;
    std::unique_ptr<RepeatingTimer> m_vendorsCheck; ///< until its first call
    FilterCommands m_filters;
    ExchangeCommands m_exchange;
    bool m_windowDidShowFirstTime = false;
    MASPreferencesWindowController* m_preferences =
        nullptr; ///< the window's, once it was asked for
    bool m_didTerminate = false;
};

} // namespace tessara
