#pragma once

#include "filtering/QuickFilter.h"

#include <QMenuBar>

class QActionGroup;

namespace tessara {

class GraphTabs;
class IntervalMenu;
class SpeechMenu;
class TSNetworksView;

/// The menu bar: every command of the window, with its shortcuts. It tells what the user asks for
/// and shows what makes sense now; it does nothing itself but what concerns a text field alone.
class MainMenu final : public QMenuBar {
    Q_OBJECT

public:
    /// The views have commands of their own, and must outlive the menus.
    MainMenu(TSNetworksView& networksView, GraphTabs& graphTabs, QWidget* parent);

    QAction& scanItem() { return *m_scan; }
    QAction& stopItem() { return *m_stop; }
    QAction& sideViewItem() { return *m_sideView; }
    QAction& lowerHalfItem() { return *m_lowerHalf; }
    IntervalMenu& intervalMenu() { return *m_intervalMenu; }
    SpeechMenu& speechMenu() { return *m_speechMenu; }

    void setSaveEnabled(bool enabled);
    /// Which of Scan and Stop makes sense now.
    void setScanStopEnabled(bool canScan, bool canStop);
    /// Which lists of networks hold something to export.
    void setExportEnabled(bool all, bool displayed, bool selected);
    void setCopyEnabled(bool enabled);
    /// Shows which quick filter is chosen.
    void setQuickFilter(QuickFilter filter);

Q_SIGNALS:
    void openRequested();
    /// A file was chosen from the recent ones.
    void fileRequested(const QString& path);
    void saveAsRequested();
    /// The items of the File menu are about to be seen.
    void fileMenuWillShow();
    void exportAllNetworksRequested();
    void exportDisplayedNetworksRequested();
    void exportSelectedNetworksRequested();
    void exportAnnotationsRequested();
    void importAnnotationsRequested();
    void quitRequested();
    void copyRequested();
    void preferencesRequested();
    void scanRequested();
    void stopRequested();
    void quickFilterSelected(QuickFilter filter);
    void filterFieldRequested();
    void organizeNetworksByRequested();
    /// @param step points to add to the sizes of text
    void makeTextRequested(double step);
    void checkForUpdatesRequested();
    void webPageRequested(const QUrl& url);

private:
    void makeFileMenu();
    void makeExportItems(QMenu& file);
    void makeEditMenu();
    void makeFieldItems(QMenu& edit);
    void makeScanMenu();
    void makeViewMenu();
    void makeTextItems(QMenu& view);
    void makeOrganizeItems(QMenu& view);
    void makeHelpMenu();

    TSNetworksView& m_networksView;
    GraphTabs& m_graphTabs;
    QAction* m_saveAs = nullptr;
    QAction* m_exportAll = nullptr;
    QAction* m_exportDisplayed = nullptr;
    QAction* m_exportSelected = nullptr;
    QAction* m_copy = nullptr;
    QAction* m_scan = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_sideView = nullptr;
    QAction* m_lowerHalf = nullptr;
    QActionGroup* m_quickFilters = nullptr;
    IntervalMenu* m_intervalMenu = nullptr;
    SpeechMenu* m_speechMenu = nullptr;
};

} // namespace tessara
