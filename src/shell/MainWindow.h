#pragma once

#include "filtering/QuickFilter.h"
#include "scanning/StateInfo.h"

#include <QMainWindow>
#include <QPointer>

#include <optional>

class QActionGroup;
class QComboBox;
class QLabel;
class QSplitter;

namespace tessara {

class ActivityIndicator;
class Clock;
class ElidedLabel;
class FilterField;
class GraphTabs;
class HelpPage;
class IntervalMenu;
class SpeechMenu;
class TSNetworksView;
class TSSideView;

/// The main window: toolbar, menus, networks table, tabs below it and footer. It shows what it is
/// given and tells what the user asks for; it decides nothing.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// @param clock tells the charts the time; must outlive the window
    explicit MainWindow(const Clock& clock);

    TSNetworksView& networksView() { return *m_networksView; }
    TSSideView& sideView() { return *m_sideView; }
    GraphTabs& graphTabs() { return *m_graphTabs; }
    ActivityIndicator& activityIndicator() { return *m_activityIndicator; }
    IntervalMenu& intervalMenu() { return *m_intervalMenu; }
    SpeechMenu& speechMenu() { return *m_speechMenu; }

    /// @param title what is shown
    /// @param hasUnsavedResults marks the title, and makes the results ones to be saved
    void setDocument(const QString& title, bool hasUnsavedResults);
    /// Which of Scan and Stop makes sense now.
    void setScanStopEnabled(bool canScan, bool canStop);
    void setStateInfo(const StateInfo& info);
    void setLeftFooter(const QString& text);
    void setLeftFooterVisible(bool visible);
    /// A message at the right of the footer.
    void setRightFooter(const QString& text);
    /// The threshold's message in the same place; none takes it away, and leaves others alone.
    void setThresholdFooter(const std::optional<QString>& text);
    /// Which lists of networks hold something to export.
    void setExportEnabled(bool all, bool displayed, bool selected);
    /// Shows which quick filter is chosen.
    void setQuickFilter(QuickFilter filter);

    /// The place of the bar between side view and table, to be stored; collapsed in a fresh window.
    QByteArray splitterState() const;
    void restoreSplitter(const QByteArray& state);
    /// The same of the bar above the tabs; in a fresh window they are as low as they may be.
    QByteArray tabsSplitterState() const;
    void restoreTabsSplitter(const QByteArray& state);

    /// Takes a part of the size of a fresh window, in the middle of the screen.
    void takeFirstRunFrame();

Q_SIGNALS:
    void openRequested();
    void saveAsRequested();
    /// A file was dropped here, or chosen from the recent ones.
    void fileRequested(const QString& path);
    void preferencesRequested();
    void scanRequested();
    void stopRequested();
    void quickFilterSelected(QuickFilter filter);
    void filterChanged(const QString& line);
    /// @param value as `SignalThreshold` has it; 0 turns it off
    void filterUsingKeys(std::int64_t value);
    /// The items of the File menu are about to be seen.
    void fileMenuWillShow();
    void exportAllNetworksRequested();
    void exportDisplayedNetworksRequested();
    void exportSelectedNetworksRequested();
    void exportAnnotationsRequested();
    void importAnnotationsRequested();
    /// Copy, with the keyboard in the table.
    void copyRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeActions();
    void makeToolBar();
    void makeMenus();
    void makeExchangeItems(QMenu& file);
    void makeEditMenu();
    void makeFileMenu();
    void makeQuickFilter();
    void makeFilter();
    void makeFooter();
    void setSideViewShown(bool shown);
    void onCopy();
    void setTabsShown(bool shown);
    void showFilterHelp();
    void showAbout();

    QSplitter* m_splitter;
    QSplitter* m_tabsSplitter; ///< right of the side view: table and tabs
    TSSideView* m_sideView;
    TSNetworksView* m_networksView;
    GraphTabs* m_graphTabs;
    QPointer<HelpPage> m_filterHelp; ///< while it is open
    QAction* m_saveAs = nullptr;
    QAction* m_scan = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_showSideView = nullptr;
    QAction* m_exportAll = nullptr;
    QAction* m_exportDisplayed = nullptr;
    QAction* m_exportSelected = nullptr;
    QAction* m_showTabs = nullptr;
    IntervalMenu* m_intervalMenu = nullptr;
    SpeechMenu* m_speechMenu = nullptr;
    ActivityIndicator* m_activityIndicator = nullptr;
    ElidedLabel* m_info = nullptr;
    ElidedLabel* m_leftFooter = nullptr;
    QLabel* m_rightFooter = nullptr;
    bool m_rightFooterShowsThreshold = false;
    QComboBox* m_quickFilter = nullptr;
    FilterField* m_filter = nullptr;
    QActionGroup* m_quickFilterItems = nullptr; ///< of the View menu
};

} // namespace tessara
