#pragma once

#include "filtering/QuickFilter.h"
#include "scanning/StateInfo.h"

#include <QMainWindow>

#include <optional>

class QComboBox;
class QLabel;

namespace tessara {

class ActivityIndicator;
class Clock;
class ElidedLabel;
class FilterField;
class GraphTabs;
class MainMenu;
class TSNetworksView;
class TSSideView;
class WindowAreas;

/// The main window: menus, toolbar, side view, networks table, tabs below it and footer. It shows
/// what it is given and tells what the user asks for; it decides nothing.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    /// @param clock tells the charts the time; must outlive the window
    explicit MainWindow(const Clock& clock);

    TSNetworksView& networksView() { return *m_networksView; }
    TSSideView& sideView() { return *m_sideView; }
    GraphTabs& graphTabs() { return *m_graphTabs; }
    MainMenu& menu() { return *m_menu; }
    WindowAreas& areas() { return *m_areas; }
    ActivityIndicator& activityIndicator() { return *m_activityIndicator; }

    /// @param title what is shown
    /// @param path of the file that is shown, for the desktop to know; empty for a scan
    /// @param hasUnsavedResults marks the title, and makes the results ones to be saved
    void setDocument(const QString& title, const QString& path, bool hasUnsavedResults);
    void setStateInfo(const StateInfo& info);
    void setLeftFooter(const QString& text);
    void setLeftFooterVisible(bool visible);
    /// A message at the right of the footer.
    void setRightFooter(const QString& text);
    /// The threshold's message in the same place; none takes it away, and leaves others alone.
    void setThresholdFooter(const std::optional<QString>& text);
    /// Shows which quick filter is chosen.
    void setQuickFilter(QuickFilter filter);

    /// Takes a part of the size of a fresh window, in the middle of the screen.
    void takeFirstRunFrame();

Q_SIGNALS:
    /// A file was dropped here, or chosen from the recent ones.
    void fileRequested(const QString& path);
    void quickFilterSelected(QuickFilter filter);
    void filterChanged(const QString& line);
    /// @param value as `SignalThreshold` has it; 0 turns it off
    void filterUsingKeys(std::int64_t value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void connectMenu();
    void makeToolBar();
    void makeQuickFilter();
    void makeFilter();
    void makeFooter();

    TSSideView* m_sideView;
    TSNetworksView* m_networksView;
    GraphTabs* m_graphTabs;
    MainMenu* m_menu;
    WindowAreas* m_areas;
    ActivityIndicator* m_activityIndicator = nullptr;
    ElidedLabel* m_info = nullptr;
    ElidedLabel* m_leftFooter = nullptr;
    QLabel* m_rightFooter = nullptr;
    bool m_rightFooterShowsThreshold = false;
    QComboBox* m_quickFilter = nullptr;
    FilterField* m_filter = nullptr;
};

} // namespace tessara
