#include "shell/MainWindow.h"

#include "filtering/ThresholdKeys.h"
#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "persistence/ResultsFile.h"
#include "shell/ActivityIndicator.h"
#include "shell/ElidedLabel.h"
#include "shell/FilterField.h"
#include "shell/GraphTabs.h"
#include "shell/LegibleColor.h"
#include "shell/MainMenu.h"
#include "shell/TSAdvancedDetailsView.h"
#include "shell/TSNetworksView.h"
#include "shell/TSSideView.h"
#include "shell/WindowAreas.h"

#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include <algorithm>

namespace tessara {

namespace {

constexpr QSize kFreshSize(1100, 735);
constexpr QSize kSmallestSize(760, 460); // the toolbar fits, and the tabs below a few rows
constexpr int kFooterMargin = 6;
constexpr double kFirstRunWidth = 0.9;
constexpr double kFirstRunHeight = 0.85;

/// Room between two groups of the toolbar.
QWidget* makeSpace(int width)
{
    auto* space = new QWidget;
    space->setFixedWidth(width);
    return space;
}

/// The threshold that a key press sets; none for any other.
std::optional<std::int64_t> thresholdOf(const QKeyEvent& event)
{
    // Escape takes a threshold away where there is one.
    if (event.key() == Qt::Key_Escape) {
        const qint64 stored =
            Defaults::standard().integerForKey(DefaultKey::SignalStrengthThreshold);
        return stored >= 1 ? std::optional<std::int64_t>(0) : std::nullopt;
    }
    constexpr auto kModifiers =
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & kModifiers) != Qt::AltModifier || event.key() > 0xffff)
        return std::nullopt;
    return thresholdOfKey(QChar(event.key()));
}

/// The one file of a drag, if it is named like a results file; in what case does not matter here.
std::optional<QString> fileOfDrag(const QDropEvent& drag)
{
    // A chart on its way out is not asked for its file: that would write one. And a window that
    // waits for an answer takes nothing else.
    if (drag.source() || QApplication::activeModalWidget())
        return std::nullopt;
    const QList<QUrl> urls = drag.mimeData()->urls();
    if (urls.size() != 1 || !urls[0].isLocalFile())
        return std::nullopt;
    const QString path = urls[0].toLocalFile();
    return QFileInfo(path).suffix().compare(QStringView(kResultsExtension), Qt::CaseInsensitive) ==
                   0
               ? std::optional(path)
               : std::nullopt;
}

} // namespace

MainWindow::MainWindow(const Clock& clock)
    : m_sideView(new TSSideView)
    , m_networksView(new TSNetworksView)
    , m_graphTabs(new GraphTabs(clock))
    , m_menu(new MainMenu(*m_networksView, *m_graphTabs, this))
    , m_areas(new WindowAreas(*m_sideView, *m_networksView, *m_graphTabs, m_menu->sideViewItem(),
                              m_menu->lowerHalfItem()))
{
    setCentralWidget(m_areas);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to hide the toolbar
    setMenuBar(m_menu);
    connectMenu();
    makeQuickFilter();
    makeFilter();
    makeToolBar();
    makeFooter();
    setMinimumSize(kSmallestSize);
    resize(kFreshSize);
    m_networksView->setFocus();
    m_networksView->installEventFilter(this);
    installEventFilter(this);
    installEventFilter(m_graphTabs);
}

void MainWindow::connectMenu()
{
    connect(m_menu, &MainMenu::fileRequested, this, &MainWindow::fileRequested);
    connect(m_menu, &MainMenu::quitRequested, this, &QWidget::close);
    connect(m_menu, &MainMenu::quickFilterSelected, this, &MainWindow::quickFilterSelected);
    connect(m_menu, &MainMenu::filterFieldRequested, this, [this] {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now) // two views copy nothing at this command
            m_menu->setCopyEnabled(now != m_sideView && now != &m_graphTabs->advancedDetailsView());
    });
}

void MainWindow::makeToolBar()
{
    QToolBar& bar = *addToolBar(localized("Toolbar"));
    bar.setObjectName(QStringLiteral("Toolbar"));
    bar.setMovable(false);
    bar.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    bar.setIconSize({side, side});

    m_activityIndicator = new ActivityIndicator;
    m_info = new ElidedLabel;
    bar.addAction(&m_menu->scanItem());
    bar.addAction(&m_menu->stopItem());
    bar.addWidget(makeSpace(side / 2));
    bar.addWidget(m_activityIndicator);
    bar.addWidget(makeSpace(side / 2));
    bar.addWidget(m_info); // takes the room there is
    bar.addWidget(makeSpace(side / 2));
    bar.addWidget(m_quickFilter);
    bar.addWidget(makeSpace(side / 2));
    bar.addWidget(m_filter);
}

void MainWindow::makeQuickFilter()
{
    m_quickFilter = new QComboBox;
    m_quickFilter->setObjectName(QStringLiteral("QuickFilter"));
    m_quickFilter->setAccessibleName(localized("Quick Filter"));
    m_quickFilter->setToolTip(localized("Show only networks of one kind"));
    for (const QuickFilterItem& item : composeQuickFilterMenu())
        m_quickFilter->addItem(localized(item.title));
    connect(m_quickFilter, &QComboBox::activated, this,
            [this](int index) { Q_EMIT quickFilterSelected(static_cast<QuickFilter>(index)); });
}

void MainWindow::makeFilter()
{
    m_filter = new FilterField;
    m_filter->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_filter, &QLineEdit::textChanged, this, &MainWindow::filterChanged);
    const auto toTable = [this] { m_networksView->setFocus(); };
    connect(m_filter, &FilterField::didLeave, this, toTable);
    connect(m_filter, &QLineEdit::returnPressed, this, toTable);
}

void MainWindow::setQuickFilter(QuickFilter filter)
{
    m_quickFilter->setCurrentIndex(static_cast<int>(filter));
    m_menu->setQuickFilter(filter);
}

void MainWindow::makeFooter()
{
    m_leftFooter = new ElidedLabel;
    m_rightFooter = new QLabel;
    m_leftFooter->setObjectName(QStringLiteral("LeftFooter"));
    m_leftFooter->hide();
    statusBar()->setContentsMargins(kFooterMargin, 0, 0, 0);
    for (QAction* item : {&m_menu->sideViewItem(), &m_menu->lowerHalfItem()}) {
        auto* button = new QToolButton;
        button->setDefaultAction(item);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        statusBar()->addWidget(button);
    }
    statusBar()->addWidget(m_leftFooter, 1);
    statusBar()->addPermanentWidget(m_rightFooter);
}

void MainWindow::setDocument(const QString& title, const QString& path, bool hasUnsavedResults)
{
    setWindowFilePath(path);
    // "[*]" is the place of the mark; twice, it stands for itself.
    QString text = title;
    setWindowTitle(text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) +
                   QLatin1String("[*]"));
    setWindowModified(hasUnsavedResults);
    m_menu->setSaveEnabled(hasUnsavedResults);
}

void MainWindow::setStateInfo(const StateInfo& info)
{
    m_info->setText(info.title, info.toolTip);
}

void MainWindow::setLeftFooter(const QString& text)
{
    m_leftFooter->setText(text);
}

void MainWindow::setLeftFooterVisible(bool visible)
{
    m_leftFooter->setVisible(visible);
}

void MainWindow::setRightFooter(const QString& text)
{
    m_rightFooter->setText(text);
    m_rightFooter->setPalette({});
    m_rightFooterShowsThreshold = false;
}

void MainWindow::setThresholdFooter(const std::optional<QString>& text)
{
    if (!text && !m_rightFooterShowsThreshold)
        return;
    setRightFooter(text.value_or(QString()));
    if (!text)
        return;
    m_rightFooterShowsThreshold = true;
    QPalette palette = m_rightFooter->palette();
    palette.setColor(QPalette::WindowText,
                     legible(QColor::fromRgbF(0.728F, 0.078F, 0.12F), palette));
    m_rightFooter->setPalette(palette);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        if (const auto threshold = thresholdOf(static_cast<const QKeyEvent&>(*event))) {
            Q_EMIT filterUsingKeys(*threshold);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() &&
        !m_networksView->isEditing() && m_networksView->selectionModel()->hasSelection())
        m_networksView->setFocus(Qt::ActiveWindowFocusReason);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    dragMoveEvent(event);
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event)
{
    if (!fileOfDrag(*event))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const auto file = fileOfDrag(*event);
    if (!file)
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT fileRequested(*file);
}

void MainWindow::takeFirstRunFrame()
{
    const QRect available = screen()->availableGeometry();
    const QSize size(static_cast<int>(kFreshSize.width() * kFirstRunWidth),
                     static_cast<int>(kFreshSize.height() * kFirstRunHeight));
    resize(size.boundedTo(available.size()));
    move(available.center() - rect().center());
}

} // namespace tessara
