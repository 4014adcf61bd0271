#pragma once

#include "foundation/Localized.h"
#include "model/ColumnRegistry.h"
#include "model/TSNetwork.h"

#include <QWidget>

class QActionGroup;
class QMenu;
class QStackedWidget;
class QTabBar;

namespace tessara {

class Clock;
class NetworkDetailsPane;
class TSAdvancedDetailsView;
class TSSignalStrengthView;
class TSSpectrumView;

/// The lower half of the window: tabs that show the networks of the table in charts and in words.
/// Only the tab in sight takes part in an update; the others catch up when they are selected.
class GraphTabs final : public QWidget {
    Q_OBJECT

public:
    /// @param clock must outlive the tabs
    explicit GraphTabs(const Clock& clock, QWidget* parent = nullptr);

    /// Shows the networks of the table, and which of them are selected.
    void configureSelectedTabView(const NetworkList& filteredNetworks, const CellContext& context);
    /// The time that the charts end at, seconds since 1970.
    void setReferenceTime(double time);

    /// Selects a tab, counted from 0.
    void selectGraph(int index);
    /// The tab and the ranges of time, from the settings and to them.
    void loadDefaults();
    void saveDefaults() const;

    /// Adds the commands for the tabs to a menu.
    void addViewItems(QMenu& menu);

    NetworkDetailsPane& networkDetails() { return *m_networkDetails; }
    TSSignalStrengthView& signalStrengthView() { return *m_signalStrengthView; }
    TSSpectrumView& spectrumView() { return *m_spectrumView; }
    TSAdvancedDetailsView& advancedDetailsView() { return *m_advancedDetailsView; }

protected:
    /// Follows the Option key, which is Alt here, in the window that it filters.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTab(EnglishText title, QWidget* page);
    void selectGraphBeside(int step);
    void tabDidChange(int index);
    void configure();
    void configureAdvancedDetailsTabView();
    TSSignalStrengthView* selectedChart() const;
    TSSignalStrengthView* selectedTimeChart() const;
    void magnify(double magnification);
    void validateChartItems();
    void setAltKeyDown(bool down);

    QTabBar* m_tabBar;
    QStackedWidget* m_pages;
    QActionGroup* m_tabItems;
    QAction* m_moreTime;
    QAction* m_lessTime;
    NetworkDetailsPane* m_networkDetails;
    TSSignalStrengthView* m_signalStrengthView;
    TSSpectrumView* m_spectrumView;
    TSAdvancedDetailsView* m_advancedDetailsView;
    NetworkList m_filteredNetworks;
    CellContext m_context;
    bool m_altKeyDown = false;
};

} // namespace tessara
