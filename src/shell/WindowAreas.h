#pragma once

#include <QSplitter>

class QAction;

namespace tessara {

class GraphTabs;
class TSNetworksView;
class TSSideView;

/// The areas of the window and the bars between them: the side view, and right of it the table
/// above the tabs. Side view and tabs can be shut, by their commands and by their bars.
class WindowAreas final : public QSplitter {
    Q_OBJECT

public:
    /// Takes the views.
    /// @param sideViewItem,lowerHalfItem show and shut the areas, and tell which are shown; both
    /// must outlive this
    WindowAreas(TSSideView& sideView, TSNetworksView& networksView, GraphTabs& graphTabs,
                QAction& sideViewItem, QAction& lowerHalfItem);

    /// The place of the bar beside the side view, to be stored.
    QByteArray sideViewState() const { return saveState(); }
    /// Without a stored place the side view is shut.
    void restoreSideView(const QByteArray& state);
    /// The same of the bar above the tabs.
    QByteArray tabsState() const { return m_rightView->saveState(); }
    /// Without a stored place the tabs are as low as they may be.
    void restoreTabs(const QByteArray& state);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void setSideViewShown(bool shown);
    int widestSideView() const;
    void limitSideView();
    void setTabsShown(bool shown);
    void setTabsHeight(int height);
    int heightOfBoth() const;
    int smallestTabs() const;
    void limitTabs();
    void validateItems();
    void validateArea(QWidget& area, QAction& item, bool isShown);

    TSSideView& m_sideView;
    TSNetworksView& m_networksView;
    GraphTabs& m_graphTabs;
    QAction& m_sideViewItem;
    QAction& m_lowerHalfItem;
    QSplitter* m_rightView;    ///< table and tabs
    int m_sideViewWidth = 220; ///< of each area when it shows again
    int m_tabsHeight = 0;
    bool m_tabsAreFresh = false;
};

} // namespace tessara
