#include "shell/AppDelegate.h"

#include "charts/PaintingOrder.h"
#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"
#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/ActivityIndicator.h"
#include "shell/AdvancedPrefsViewController.h"
#include "shell/ColumnsPrefsViewController.h"
#include "shell/GeneralPrefsViewController.h"
#include "shell/GraphTabs.h"
#include "shell/IntervalMenu.h"
#include "shell/MASPreferencesWindowController.h"
#include "shell/MainMenu.h"
#include "shell/NetworkDetailsForm.h"
#include "shell/NetworkDetailsPane.h"
#include "shell/RecentDocumentsMenu.h"
#include "shell/SpeechMenu.h"
#include "shell/TSNetworksView.h"
#include "shell/TSSideView.h"
#include "shell/WindowAreas.h"

#include <QDesktopServices>
#include <QEvent>
#include <QGuiApplication>

#include <algorithm>

namespace tessara {

namespace {

/// The sizes of text, in points, that the settings may hold.
struct FontSizeRange {
    QStringView key;
    double smallest;
    double largest;
};
const FontSizeRange kFontSizes[] = {
    {DefaultKey::NetworksViewFontSize, 9, 18},
    {DefaultKey::AdvancedDetailsViewFontSize, 10, 19},
    {DefaultKey::SideViewFontSize, 9, 18},
};

} // namespace

AppDelegate::AppDelegate(WiFiService& wifi, TSVendorDatabaseHelper& vendors,
                         TSAnnotationsHelper& annotations, TSNetServiceBrowser& deviceNames,
                         Voice& voice, EngineServices services)
    : m_window(services.clock)
    , m_scanCycle(chooseInterface(wifi), services, *this, m_prompt)
    , m_clock(services.clock)
    , m_document(*this, m_prompt, services.clock)
    , m_vendors(vendors)
    , m_annotations(annotations)
    , m_deviceNames(deviceNames)
    , m_voice(voice)
    , m_spokenReports(voice, services.clock,
                      [] { return QGuiApplication::focusWindow() != nullptr; })
    , m_vendorsUpdate(vendors, m_prompt, services.clock)
    , m_applicationUpdate(m_prompt, services.clock)
    , m_filters(m_window, m_scanCycle)
    , m_exchange(m_window,
                 {m_scanCycle, m_filters.pipeline(), annotations, services.clock,
                  [this] { return m_document.hasUnsavedResults(); }},
                 m_prompt)
{
    m_window.installEventFilter(this);
    connectParts(services.notifications);
    connectMenu();
    connectSpeech();
    updateWindowTitle();
    restoreWindowFrame();
}

void AppDelegate::connectParts(NotificationCenter& notifications)
{
    connect(&m_window, &MainWindow::fileRequested, this, &AppDelegate::openFile);
    connect(&m_document, &ResultsDocument::titleDidChange, this, &AppDelegate::configureAll);
    connect(&m_document, &ResultsDocument::fileDidOpen, this, &RecentDocumentsMenu::addDocument);
    connect(&m_filters, &FilterCommands::didFilter, this, &AppDelegate::showFilteredNetworks);
    connect(&m_window, &MainWindow::filterUsingKeys, this, [this] {
        if (m_window.networksView().isEditing()) // else the pass has shown it all
            configureAll();
    });
    connect(&m_filters, &FilterCommands::preferencesRequested, this,
            &AppDelegate::showPreferencesWithIdentifier);

    const TSNetworksView& table = m_window.networksView();
    connect(&table, &TSNetworksView::didEndEditing, this, &AppDelegate::prepareAndReload);
    connect(&table, &TSNetworksView::columnDidChangeHiddenState, this,
            &AppDelegate::userDidToggleColumnState);
    connect(&m_window.graphTabs().networkDetails().chart(),
            &TSNetworkDetailsView::userDidPickNetwork, this,
            &AppDelegate::handleUserDidPickNetwork);

    NetworkDetailsForm& form = m_window.graphTabs().networkDetails().form();
    form.setVendorURL([this](const QString& vendor) { return m_vendors.urlForVendor(vendor); });
    connect(&form, &NetworkDetailsForm::didSelectColor, this, &AppDelegate::userDidSelectColor);

    connect(&m_exchange, &ExchangeCommands::annotationsDidChange, this, &AppDelegate::configureAll);
    connect(&table, &TSNetworksView::selectionDidChange, this,
            &AppDelegate::configureSelectedTabView);

    connect(&m_vendorsUpdate, &VendorDatabaseUpdate::databaseDidChange, this,
            &AppDelegate::prepareAndReload);

    // The service posts on threads of its own.
    connect(&notifications, &NotificationCenter::bssidDidChange, this,
            &AppDelegate::updateStateInfo, Qt::QueuedConnection);
    connect(&notifications, &NotificationCenter::linkQualityDidChange, this,
            &AppDelegate::updateStateInfo, Qt::QueuedConnection);
    connect(&notifications, &NotificationCenter::willSleep, this, &AppDelegate::saveDefaults);
}

void AppDelegate::connectMenu()
{
    const MainMenu& menu = m_window.menu();
    using Menu = MainMenu;
    using Exchange = ExchangeCommands;
    connect(&menu, &Menu::openRequested, &m_document, &ResultsDocument::onFileOpen);
    connect(&menu, &Menu::saveAsRequested, &m_document, &ResultsDocument::onFileSaveAs);
    connect(&menu, &Menu::fileMenuWillShow, &m_exchange, &Exchange::validateMenuItems);
    connect(&menu, &Menu::exportAllNetworksRequested, &m_exchange,
            &Exchange::onFileSummaryExportAllNetworks);
    connect(&menu, &Menu::exportDisplayedNetworksRequested, &m_exchange,
            &Exchange::onFileSummaryExportDisplayedNetworks);
    connect(&menu, &Menu::exportSelectedNetworksRequested, &m_exchange,
            &Exchange::onFileSummaryExportSelectedNetworks);
    connect(&menu, &Menu::exportAnnotationsRequested, &m_exchange,
            &Exchange::onFileAnnotationsExportCSV);
    connect(&menu, &Menu::importAnnotationsRequested, &m_exchange,
            &Exchange::onFileAnnotationsImportCSV);
    connect(&menu, &Menu::copyRequested, &m_exchange, &Exchange::copy);
    connect(&menu, &Menu::preferencesRequested, this,
            [this] { showPreferencesWithIdentifier({}); });
    connect(&menu, &Menu::scanRequested, this,
            [this] { m_document.doAfterSaving([this] { m_scanCycle.doStart(); }); });
    connect(&menu, &Menu::stopRequested, &m_scanCycle, &ScanCycle::doStop);
    connect(&m_window.menu().intervalMenu(), &IntervalMenu::intervalsTriggered, this,
            &AppDelegate::onIntervals);
    connect(&menu, &Menu::organizeNetworksByRequested, &m_filters,
            &FilterCommands::onViewOrganizeNetworksBy);
    connect(&menu, &Menu::makeTextRequested, this, &AppDelegate::onViewMakeText);
    connect(&menu, &Menu::checkForUpdatesRequested, &m_applicationUpdate,
            &ApplicationUpdate::checkForUpdates);
    connect(&menu, &Menu::webPageRequested, this, [this](const QUrl& url) {
        if (!QDesktopServices::openUrl(url))
            m_prompt.inform(localized("Unable to open the web page."), url.toString());
    });
}

void AppDelegate::onViewMakeText(double step)
{
    constexpr double kSmallest = 9.0;
    constexpr double kLargest = 18.0;
    Defaults& defaults = Defaults::standard();
    for (const FontSizeRange& range : kFontSizes) {
        defaults.setValue(range.key,
                          std::clamp(defaults.doubleForKey(range.key) + step, kSmallest, kLargest));
    }
    m_window.sideView().setFontSize(defaults.doubleForKey(DefaultKey::SideViewFontSize));
    configureAll();
}

void AppDelegate::connectSpeech()
{
    SpeechMenu& menu = m_window.menu().speechMenu();
    connect(&menu, &SpeechMenu::speakTriggered, this, &AppDelegate::onSpeak);
    connect(&m_voice, &Voice::speakingDidChange, &menu,
            [this, &menu] { menu.setSpeaking(m_voice.isSpeaking()); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_spokenReports.applicationDidBecomeActive();
            });
}

// Start-up --------------------------------------------------------------------------------------

void AppDelegate::restoreWindowFrame()
{
    const Defaults& defaults = Defaults::standard();
    if (defaults.boolForKey(DefaultKey::RanOnce))
        m_window.restoreGeometry(defaults.value(DefaultKey::WindowFrame).toByteArray());
    else
        m_window.takeFirstRunFrame();
}

/// Called before all else, and returns when the program may go on. It may also where nothing can be
/// kept, but then the user is to know.
/// @return the files that cannot be written
QStringList AppDelegate::prepareInstallation() const
{
    QStringList files{Defaults::standard().unwritableFile(), m_annotations.unwritableFile()};
    files.removeAll(QString());
    return files;
}

void AppDelegate::applicationWillFinishLaunching(const QString& file)
{
    const QStringList unwritable = prepareInstallation();
    m_scanCycle.setDisableAutoScan(!file.isEmpty());
    m_vendors.expandDatabase();
    m_vendors.loadInBackground();
    loadDefaults();
    m_window.networksView().restoreLayout(
        Defaults::standard().value(DefaultKey::NetworksTable).toByteArray());
    m_window.areas().restoreSideView(
        Defaults::standard().value(DefaultKey::HorizontalSplitView).toByteArray());
    m_window.areas().restoreTabs(
        Defaults::standard().value(DefaultKey::VerticalSplitView).toByteArray());
    m_window.graphTabs().loadDefaults();
    for (const Column& column : columnRegistry())
        userDidToggleColumnState(column);
    m_window.sideView().setExpandedItems(
        Defaults::standard().value(DefaultKey::SideViewExpandedItems).toStringList());
    prepareAndReload();
    validateScanStopItems();
    // While scanning, the next tick shows what a setting has changed.
    connect(&Defaults::standard(), &Defaults::didChange, this, [this] {
        if (!m_scanCycle.isScanning())
            configureAll();
    });
    showWindow();
    if (!unwritable.isEmpty()) {
        m_prompt.inform(localized("What you set and note will not be kept."),
                        localized("Unable to write: %1").arg(unwritable.join(QLatin1String(", "))));
    }
    if (!file.isEmpty())
        openFile(file);
}

void AppDelegate::openFile(const QString& path)
{
    m_scanCycle.setDisableAutoScan(true);
    m_document.openFile(path);
}

void AppDelegate::loadDefaults()
{
    Defaults& defaults = Defaults::standard();
    m_scanCycle.loadDefaults();
    m_filters.selectQuickFilter(
        static_cast<QuickFilter>(defaults.integerForKey(DefaultKey::QuickFilterSelectedItem)));
    for (const auto& [key, smallest, largest] : kFontSizes) {
        const double size = defaults.doubleForKey(key);
        if (size < smallest || size > largest)
            defaults.correctValue(key, std::clamp(size, smallest, largest));
    }
    m_window.networksView().setFontSize(defaults.doubleForKey(DefaultKey::NetworksViewFontSize));
    m_window.sideView().setFontSize(defaults.doubleForKey(DefaultKey::SideViewFontSize));
}

void AppDelegate::showWindow()
{
    updateWindowTitle();
    updateStateInfo();
    if (m_window.isActiveWindow())
        return;
    m_window.menu().intervalMenu().selectInterval(
        Defaults::standard().integerForKey(DefaultKey::SelectedScanInterval));
    onIntervals();
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    if (!m_scanCycle.currentInterface()) {
        showNoInterfaceAlert();
        return;
    }
    m_deviceNames.searchServices();
    if (Defaults::standard().boolForKey(DefaultKey::RanOnce))
        checkVendorsDatabaseLater();
    if (!std::exchange(m_windowDidShowFirstTime, true))
        m_scanCycle.doAutoStart();
    m_window.networksView().setFocus();
}

void AppDelegate::onIntervals()
{
    // Meant to do nothing: the engine's pause and the pace of the list are fixed.
}

void AppDelegate::checkVendorsDatabaseLater()
{
    constexpr double kDelay = 5.0; // seconds; a start has better things to do
    m_vendorsCheck = m_clock.repeat(kDelay, [this] {
        const auto once = std::move(m_vendorsCheck);
        m_vendorsUpdate.checkForDatabaseUpdates(false);
        m_applicationUpdate.checkForUpdatesIfDue();
    });
}

void AppDelegate::showNoInterfaceAlert()
{
    const TSAlert alert{
        .messageText = localized("Unable to scan for wireless networks."),
        .informativeText = localized("No supported Wi-Fi interfaces were found."),
        .buttons = {localized("Quit")},
        .style = TSAlert::Style::kCritical,
        .accessoryHtml =
            localized("For more information visit %1.")
                .arg(QStringLiteral("<a href=\"%1\">%2</a>")
                         .arg(QLatin1String(TESSARA_SUPPORT_URL), localized("Tessara Support"))),
    };
    m_prompt.beginAlert(alert, [this](int returnCode) {
        if (returnCode == TSAlert::kFirstButton)
            terminate();
    });
}

// Preferences ------------------------------------------------------------------------------------

void AppDelegate::showPreferencesWithIdentifier(const QString& identifier)
{
    if (!m_preferences)
        makePreferences();
    if (!identifier.isEmpty())
        m_preferences->selectPane(identifier);
    m_preferences->show();
    m_preferences->raise();
    m_preferences->activateWindow();
}

/// What a pane asks for comes after the pane has done its own.
void AppDelegate::makePreferences()
{
    auto* general = new GeneralPrefsViewController;
    auto* columns = new ColumnsPrefsViewController(m_window.networksView());
    auto* advanced = new AdvancedPrefsViewController;
    m_preferences = new MASPreferencesWindowController({general, columns, advanced}, &m_window);
    connect(general, &GeneralPrefsViewController::valuesDidChange, this,
            &AppDelegate::valuesDidChange, Qt::QueuedConnection);
    connect(
        columns, &ColumnsPrefsViewController::displayAnnotationsDidChange, this,
        [this](bool display) {
            m_window.graphTabs().spectrumView().setDisplayAnnotations(display);
        },
        Qt::QueuedConnection);
    connect(advanced, &AdvancedPrefsViewController::spectrumDidChange, this,
            &AppDelegate::configureSelectedTabView, Qt::QueuedConnection);
    connect(
        advanced, &AdvancedPrefsViewController::checkNowRequested, this,
        [this] { m_vendorsUpdate.checkForDatabaseUpdates(true); }, Qt::QueuedConnection);
}

void AppDelegate::valuesDidChange()
{
    loadDefaults();
    m_filters.filterAgain();
}

// Shutdown --------------------------------------------------------------------------------------

bool AppDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_window || event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    // Perhaps later, when the user has been asked.
    windowShouldClose();
    event->setAccepted(m_didTerminate);
    return true;
}

void AppDelegate::windowShouldClose()
{
    m_document.doAfterSaving([this] { windowWillClose(); });
}

void AppDelegate::windowWillClose()
{
    terminate();
}

void AppDelegate::terminate()
{
    if (std::exchange(m_didTerminate, true))
        return;
    applicationWillTerminate();
    Q_EMIT didTerminate();
}

void AppDelegate::applicationWillTerminate()
{
    m_window.networksView().endEditing();
    Defaults& defaults = Defaults::standard();
    defaults.disconnect(this);
    if (m_annotations.saveToDisk())
        defaults.remove(DefaultKey::Annotations); // the older place, if they were still there
    saveDefaults();
    defaults.setValue(DefaultKey::RanOnce, true);
    defaults.remove(DefaultKey::SignalStrengthThreshold);
    defaults.setValue(DefaultKey::WindowFrame, m_window.saveGeometry());
    defaults.setValue(DefaultKey::LastLaunchedVersion, QStringLiteral(TESSARA_VERSION));
    defaults.synchronize();
}

void AppDelegate::saveDefaults()
{
    Defaults& defaults = Defaults::standard();
    defaults.setValue(DefaultKey::NetworksTable, m_window.networksView().layoutState());
    defaults.setValue(DefaultKey::HorizontalSplitView, m_window.areas().sideViewState());
    defaults.setValue(DefaultKey::VerticalSplitView, m_window.areas().tabsState());
    m_window.graphTabs().saveDefaults();
    defaults.setValue(DefaultKey::SideViewExpandedItems, m_window.sideView().expandedItems());
}

// From the scan cycle to the views --------------------------------------------------------------

void AppDelegate::filterAndSetNetworks(const NetworkList& networks)
{
    m_filters.filterAndSetNetworks(networks);
}

void AppDelegate::showFilteredNetworks()
{
    configureSideView();
    m_window.setThresholdFooter(pipeline().signalThreshold().text());
    prepareAndReload();
}

void AppDelegate::prepareAndReload()
{
    if (!m_window.networksView().isEditing())
        configureAll();
}

void AppDelegate::configureAll()
{
    if (!m_window.networksView().isEditing()) // else when the note is written
        configureNetworksView();
    configureSelectedTabView();
    m_window.setLeftFooter(pipeline().footerText());
    showWindowTitle();
    updateStateInfo();
}

void AppDelegate::configureSideView()
{
    m_window.sideView().setItems(sideViewOf(pipeline().sideViewNetworks()));
}

QString AppDelegate::placeholderText() const
{
    if (!pipeline().networks().empty())
        return localized("No network passes the filters");
    return localized(m_scanCycle.isScanning() ? "No networks yet"_en
                                              : "Press Scan to look for networks"_en);
}

void AppDelegate::configureNetworksView()
{
    const Defaults& defaults = Defaults::standard();
    TSNetworksView& table = m_window.networksView();
    table.setFontSize(defaults.doubleForKey(DefaultKey::NetworksViewFontSize));
    table.setPlaceholderText(placeholderText());
    table.setAnnotationsEditable(m_document.hasUnsavedResults()); // those of a file are its own
    table.setFilteredColumns(pipeline().filteredColumnIdentifiers());
    table.setNetworks(pipeline().filteredNetworks(),
                      CellContext::fromDefaults(m_scanCycle.isScanning()));
}

void AppDelegate::configureSelectedTabView()
{
    m_window.graphTabs().configureSelectedTabView(
        pipeline().filteredNetworks(), CellContext::fromDefaults(m_scanCycle.isScanning()));
    m_spokenReports.setSelectedNetwork(selectedNetwork(pipeline().filteredNetworks()));
    m_spokenReports.speakSoon();
}

void AppDelegate::onSpeak()
{
    if (m_voice.isSpeaking())
        m_voice.stopSpeaking();
    else
        m_spokenReports.speak(m_spokenReports.selectedNetwork());
}

void AppDelegate::clearSideViewSelection()
{
    m_filters.clearSideViewSelection();
}

/// The spectrum tells of a network what the list has columns for.
void AppDelegate::userDidToggleColumnState(const Column& column)
{
    const bool isShown = m_window.networksView().isColumnShown(column);
    TSSpectrumView& spectrum = m_window.graphTabs().spectrumView();
    if (column.identifier == QLatin1String("ANNOTATIONS"))
        spectrum.setDisplayAnnotations(isShown);
    else if (column.identifier == QLatin1String("DEVICE_NAME"))
        spectrum.setDisplayDeviceName(isShown);
}

void AppDelegate::setReferenceTime(double time)
{
    m_window.graphTabs().setReferenceTime(time);
}

void AppDelegate::setDisplayOnlyLastSeen(bool only)
{
    m_window.graphTabs().spectrumView().setDisplayOnlyLastSeen(only);
}

void AppDelegate::handleUserDidPickNetwork(const QString& bssid)
{
    m_window.networksView().selectNetworks(
        [&](const TSNetwork& network) { return network.bssid() == bssid; });
}

void AppDelegate::userDidSelectColor(const NetworkPtr& network, const QColor& color)
{
    network->setColor(color);
    Defaults& defaults = Defaults::standard();
    QVariantMap chosen = defaults.value(DefaultKey::UserDefinedColors).toMap();
    chosen.insert(network->bssid(), color.name(QColor::HexArgb));
    defaults.setValue(DefaultKey::UserDefinedColors, chosen);
    configureAll();
}

void AppDelegate::selectAssociatedNetworks()
{
    m_window.networksView().selectNetworks(
        [](const TSNetwork& network) { return network.isAssociated(); });
}

void AppDelegate::updateStateInfo()
{
    m_window.setStateInfo(
        stateInfo(m_scanCycle.isScanning(), windowTitle(), m_scanCycle.currentInterface().get()));
}

QString AppDelegate::windowTitle() const
{
    const QString title = QStringView(kApplicationTitle).toString();
    if (!m_document.title().isEmpty())
        return m_document.title();
    return m_scanCycle.isScanning() ? QStringLiteral("%1 - %2").arg(title, localized("Scanning"))
                                    : title;
}

void AppDelegate::updateWindowTitle()
{
    m_document.leaveFile();
    showWindowTitle();
}

void AppDelegate::showWindowTitle()
{
    m_window.setDocument(windowTitle(), m_document.path(), m_document.hasUnsavedResults());
}

void AppDelegate::validateScanStopItems()
{
    const bool isScanning = m_scanCycle.isScanning();
    m_window.menu().setScanStopEnabled(!isScanning, isScanning);
}

void AppDelegate::setLeftFooterVisible(bool visible)
{
    m_window.setLeftFooterVisible(visible);
}

void AppDelegate::startActivityIndicator()
{
    m_window.activityIndicator().start();
}

void AppDelegate::stopActivityIndicator()
{
    m_window.activityIndicator().stop();
}

} // namespace tessara
