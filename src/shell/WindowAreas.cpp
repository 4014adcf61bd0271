#include "shell/WindowAreas.h"

#include "shell/GraphTabs.h"
#include "shell/TSNetworksView.h"
#include "shell/TSSideView.h"

#include <QAction>

#include <algorithm>
#include <utility>

namespace tessara {

namespace {

constexpr int kNarrowestSideView = 125; // pixels, as all of these; at most a quarter of the window
constexpr int kSmallestTable = 100;
constexpr int kSmallestTabs = 400;    // the form of the details is seen whole
constexpr int kTableBeforeTabs = 160; // in a low window the tabs are lower for this, a few rows

} // namespace

WindowAreas::WindowAreas(TSSideView& sideView, TSNetworksView& networksView, GraphTabs& graphTabs,
                         QAction& sideViewItem, QAction& lowerHalfItem)
    : m_sideView(sideView)
    , m_networksView(networksView)
    , m_graphTabs(graphTabs)
    , m_sideViewItem(sideViewItem)
    , m_lowerHalfItem(lowerHalfItem)
    , m_rightView(new QSplitter(Qt::Vertical))
{
    networksView.setMinimumHeight(kSmallestTable);
    sideView.setMinimumWidth(kNarrowestSideView);
    m_rightView->addWidget(&networksView);
    m_rightView->addWidget(&graphTabs);
    m_rightView->setStretchFactor(0, 1); // a larger window is for the table
    m_rightView->setStretchFactor(1, 0);
    m_rightView->setCollapsible(0, false);
    addWidget(&sideView);
    addWidget(m_rightView);
    setStretchFactor(1, 1); // the table takes the room there is
    setCollapsible(1, false);
    connect(&sideViewItem, &QAction::triggered, this, &WindowAreas::setSideViewShown);
    connect(&lowerHalfItem, &QAction::triggered, this, &WindowAreas::setTabsShown);
    connect(this, &QSplitter::splitterMoved, this, &WindowAreas::limitSideView);
    connect(m_rightView, &QSplitter::splitterMoved, this, &WindowAreas::limitTabs);
}

// Side view --------------------------------------------------------------------------------------

void WindowAreas::restoreSideView(const QByteArray& state)
{
    if (!restoreState(state))
        setSideViewShown(false);
    validateItems();
}

void WindowAreas::setSideViewShown(bool shown)
{
    if (const int side = sizes().front(); side > 0)
        m_sideViewWidth = side;
    const int side = shown ? std::min(m_sideViewWidth, widestSideView()) : 0;
    setSizes({side, std::max(width() - side, 1)});
    validateItems();
}

int WindowAreas::widestSideView() const
{
    return std::max(width() / 4, kNarrowestSideView);
}

void WindowAreas::limitSideView()
{
    if (sizes().front() > widestSideView())
        setSizes({widestSideView(), width() - widestSideView()});
    validateItems();
}

// Tabs -------------------------------------------------------------------------------------------

void WindowAreas::restoreTabs(const QByteArray& state)
{
    m_tabsAreFresh = !m_rightView->restoreState(state);
    m_tabsHeight = m_rightView->sizes().back();
    validateItems();
}

void WindowAreas::showEvent(QShowEvent* event)
{
    QSplitter::showEvent(event);
    if (std::exchange(m_tabsAreFresh, false)) // not before there is a height to divide
        setTabsHeight(smallestTabs());
}

void WindowAreas::setTabsShown(bool shown)
{
    setTabsHeight(shown ? std::max(m_tabsHeight, smallestTabs()) : 0);
}

void WindowAreas::setTabsHeight(int height)
{
    if (height > 0)
        m_tabsHeight = height;
    if (height != m_rightView->sizes().back())
        m_rightView->setSizes({std::max(heightOfBoth() - height, kSmallestTable), height});
    validateItems();
}

/// What table and tabs share.
int WindowAreas::heightOfBoth() const
{
    return m_rightView->height() - m_rightView->handleWidth();
}

int WindowAreas::smallestTabs() const
{
    return std::clamp(heightOfBoth() - kTableBeforeTabs, m_graphTabs.minimumHeight(),
                      kSmallestTabs);
}

void WindowAreas::limitTabs()
{
    const int tabs = m_rightView->sizes().back();
    // A window that has grown since leaves them as low as they were.
    const int smallest = std::min(smallestTabs(), m_tabsHeight);
    setTabsHeight(tabs > 0 ? std::max(tabs, smallest) : 0);
}

// Both -------------------------------------------------------------------------------------------

void WindowAreas::validateItems()
{
    validateArea(m_sideView, m_sideViewItem, sizes().front() > 0);
    validateArea(m_graphTabs, m_lowerHalfItem, m_rightView->sizes().back() > 0);
}

/// An area that is not shown is also out of the keyboard's reach.
void WindowAreas::validateArea(QWidget& area, QAction& item, bool isShown)
{
    const QWidget* focus = window()->focusWidget();
    if (!isShown && (focus == &area || area.isAncestorOf(focus)))
        m_networksView.setFocus();
    area.setEnabled(isShown);
    item.setChecked(isShown);
}

} // namespace tessara
