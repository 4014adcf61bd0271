#include "shell/GraphTabs.h"

#include "charts/PaintingOrder.h"
#include "charts/TSNetworkDetailsView.h"
#include "charts/TSSpectrumView.h"
#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/NetworkDetailsForm.h"
#include "shell/NetworkDetailsPane.h"
#include "shell/TSAdvancedDetailsView.h"

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>
#include <QMenu>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace tessara {

namespace {

constexpr int kSmallestHeight = 240; // points; the texts of a chart's axis keep apart
constexpr double kMagnification = 0.2;

/// The tabs by the identifiers that the settings know them by.
struct GraphTab {
    QStringView identifier;
    EnglishText title;
};
constexpr GraphTab kTabs[] = {
    {u"NetworkDetails", "Network Details"_en},
    {u"SignalStrength", "Signal Strength"_en},
    {u"Spectrum", "Spectrum"_en},
    {u"AdvancedDetails", "Advanced Details"_en},
};

} // namespace

GraphTabs::GraphTabs(const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_tabBar(new QTabBar)
    , m_pages(new QStackedWidget)
    , m_tabItems(new QActionGroup(this))
    , m_moreTime(new QAction(localized("Show &More Time"), this))
    , m_lessTime(new QAction(localized("Show L&ess Time"), this))
    , m_networkDetails(new NetworkDetailsPane(clock))
    , m_signalStrengthView(new TSSignalStrengthView(clock))
    , m_spectrumView(new TSSpectrumView(clock))
    , m_advancedDetailsView(new TSAdvancedDetailsView)
{
    m_tabBar->setDrawBase(false);
    m_tabBar->setExpanding(false);
    m_tabBar->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard with the table
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tabBar, 0, Qt::AlignHCenter);
    layout->addWidget(m_pages, 1);
    setMinimumHeight(kSmallestHeight);

    QWidget* const pages[] = {m_networkDetails, m_signalStrengthView, m_spectrumView,
                              m_advancedDetailsView};
    for (std::size_t i = 0; i < std::size(kTabs); ++i)
        addTab(kTabs[i].title, pages[i]);
    connect(m_tabBar, &QTabBar::currentChanged, this, &GraphTabs::tabDidChange);

    m_moreTime->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_BracketRight));
    m_lessTime->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_BracketLeft));
    connect(m_moreTime, &QAction::triggered, this, [this] { magnify(kMagnification); });
    connect(m_lessTime, &QAction::triggered, this, [this] { magnify(-kMagnification); });
    for (const TSSignalStrengthView* chart : findChildren<TSSignalStrengthView*>())
        connect(chart, &TSSignalStrengthView::timescaleDidChange, this,
                &GraphTabs::validateChartItems);
    tabDidChange(m_tabBar->currentIndex());
}

void GraphTabs::addTab(EnglishText title, QWidget* page)
{
    const int index = m_tabBar->addTab(localized(title));
    page->setAccessibleName(localized(title));
    m_pages->addWidget(page);

    QAction* item = m_tabItems->addAction(localized(title));
    item->setCheckable(true);
    item->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)));
    connect(item, &QAction::triggered, this, [this, index] { selectGraph(index); });
}

void GraphTabs::selectGraph(int index)
{
    m_tabBar->setCurrentIndex(index);
}

/// From the last tab on to the first one.
void GraphTabs::selectGraphBeside(int step)
{
    const int count = m_tabBar->count();
    selectGraph((m_tabBar->currentIndex() + step + count) % count);
}

void GraphTabs::tabDidChange(int index)
{
    m_pages->setCurrentIndex(index);
    m_tabItems->actions().at(index)->setChecked(true);
    validateChartItems();
    configure();
}

void GraphTabs::configureSelectedTabView(const NetworkList& filteredNetworks,
                                         const CellContext& context)
{
    m_filteredNetworks = filteredNetworks;
    m_context = context;
    configure();
}

void GraphTabs::configure()
{
    TSSignalStrengthView* chart = selectedChart();
    if (!chart) {
        configureAdvancedDetailsTabView();
        return;
    }
    chart->setUnits(unitsOfSetting(Defaults::standard().integerForKey(DefaultKey::Units)));
    chart->setItemHighlightEnabled(std::ranges::any_of(
        m_filteredNetworks, &TSNetwork::isUserHighlighted,
        [](const NetworkPtr& network) -> const TSNetwork& { return *network; }));
    chart->setNetworks(m_filteredNetworks);
    if (chart != &m_networkDetails->chart())
        return;
    const NetworkPtr network = selectedNetwork(m_filteredNetworks);
    m_networkDetails->chart().setNetwork(network);
    m_networkDetails->form().setNetwork(network, m_context);
}

void GraphTabs::configureAdvancedDetailsTabView()
{
    const NetworkPtr network = selectedNetwork(m_filteredNetworks);
    m_advancedDetailsView->setFontSize(
        Defaults::standard().doubleForKey(DefaultKey::AdvancedDetailsViewFontSize));
    m_advancedDetailsView->setPlaceholderText(
        network ? localized("The network announces no information elements")
                : localized("Select a network to see its information elements"));
    m_advancedDetailsView->setNetwork(network);
}

void GraphTabs::setReferenceTime(double time)
{
    m_signalStrengthView->setReferenceTime(time);
    m_networkDetails->chart().setReferenceTime(time);
}

// Settings --------------------------------------------------------------------------------------

void GraphTabs::loadDefaults()
{
    Defaults& defaults = Defaults::standard();
    const QString identifier = defaults.stringForKey(DefaultKey::SelectedTabViewIdentifier);
    const auto* tab = std::ranges::find(kTabs, identifier, &GraphTab::identifier);
    selectGraph(tab == std::end(kTabs) ? 0 : static_cast<int>(tab - std::begin(kTabs)));

    m_advancedDetailsView->restoreLayout(
        defaults.value(DefaultKey::AdvancedDetailsTable).toByteArray());
    const auto loadTimescale = [&defaults](TSSignalStrengthView& chart, const auto* key) {
        chart.setTimescale(std::clamp<std::int64_t>(defaults.integerForKey(key),
                                                    chart.minTimescale(), chart.maxTimescale()));
    };
    loadTimescale(*m_signalStrengthView, DefaultKey::SignalStrengthViewTimescale);
    loadTimescale(m_networkDetails->chart(), DefaultKey::NetworkSignalStrengthViewTimescale);
    m_networkDetails->userDidSelectMetric(
        static_cast<int>(defaults.integerForKey(DefaultKey::Metric)));
}

void GraphTabs::saveDefaults() const
{
    Defaults& defaults = Defaults::standard();
    defaults.setValue(
        DefaultKey::SelectedTabViewIdentifier,
        kTabs[static_cast<std::size_t>(m_tabBar->currentIndex())].identifier.toString());
    defaults.setValue(DefaultKey::AdvancedDetailsTable, m_advancedDetailsView->layoutState());
    defaults.setValue(DefaultKey::SignalStrengthViewTimescale,
                      static_cast<qint64>(m_signalStrengthView->timescale()));
    defaults.setValue(DefaultKey::NetworkSignalStrengthViewTimescale,
                      static_cast<qint64>(m_networkDetails->chart().timescale()));
    defaults.setValue(DefaultKey::Metric, static_cast<qint64>(m_networkDetails->selectedMetric()));
}

// Commands --------------------------------------------------------------------------------------

void GraphTabs::addViewItems(QMenu& menu)
{
    menu.addActions(m_tabItems->actions());
    menu.addAction(localized("&Next Tab"), this, [this] { selectGraphBeside(1); })
        ->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageDown), QKeySequence::NextChild});
    menu.addAction(localized("&Previous Tab"), this, [this] { selectGraphBeside(-1); })
        ->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_PageUp), QKeySequence::PreviousChild});
    menu.addSeparator();
    menu.addMenu(localized("Details C&hart"))
        ->addActions(m_networkDetails->metricItems().actions());
    menu.addAction(m_moreTime);
    menu.addAction(m_lessTime);
}

TSSignalStrengthView* GraphTabs::selectedChart() const
{
    QWidget* page = m_pages->currentWidget();
    return page == m_networkDetails ? &m_networkDetails->chart()
                                    : qobject_cast<TSSignalStrengthView*>(page);
}

TSSignalStrengthView* GraphTabs::selectedTimeChart() const
{
    TSSignalStrengthView* chart = selectedChart();
    return chart == m_signalStrengthView || chart == &m_networkDetails->chart() ? chart : nullptr;
}

void GraphTabs::magnify(double magnification)
{
    if (TSSignalStrengthView* chart = selectedTimeChart())
        chart->magnifyWithMagnification(magnification);
}

void GraphTabs::validateChartItems()
{
    const TSSignalStrengthView* chart = selectedTimeChart();
    m_moreTime->setEnabled(chart && chart->timescale() != chart->maxTimescale());
    m_lessTime->setEnabled(chart && chart->timescale() != chart->minTimescale());
    m_networkDetails->metricItems().setEnabled(m_pages->currentWidget() == m_networkDetails);
}

bool GraphTabs::eventFilter(QObject* watched, QEvent* event)
{
    const auto isAltKey = [event] {
        return static_cast<const QKeyEvent&>(*event).key() == Qt::Key_Alt;
    };
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (isAltKey() && m_pages->underMouse())
            return true; // over a chart it asks about a sample, not for the menus
        if (!isAltKey())
            setAltKeyDown(false); // it modifies: a menu may open, and get the release
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (isAltKey())
            setAltKeyDown(event->type() == QEvent::KeyPress);
        break;
    case QEvent::WindowDeactivate: // the release goes elsewhere
        setAltKeyDown(false);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void GraphTabs::setAltKeyDown(bool down)
{
    if (std::exchange(m_altKeyDown, down) == down)
        return;
    for (TSSignalStrengthView* chart : findChildren<TSSignalStrengthView*>()) {
        if (down)
            chart->handleAltKeyDownNotification();
        else
            chart->handleAltKeyUpNotification();
    }
}

} // namespace tessara
