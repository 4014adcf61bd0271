#include "shell/MainWindow.h"

#include "filtering/ThresholdKeys.h"
#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "persistence/ResultsFile.h"
#include "shell/ActivityIndicator.h"
#include "shell/ElidedLabel.h"
#include "shell/FilterField.h"
#include "shell/GlyphIcon.h"
#include "shell/GraphTabs.h"
#include "shell/HelpPage.h"
#include "shell/IntervalMenu.h"
#include "shell/RecentDocumentsMenu.h"
#include "shell/SpeechMenu.h"
#include "shell/TSNetworksView.h"
#include "shell/TSSideView.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

#include <algorithm>

namespace tessara {

namespace {

constexpr QSize kFreshSize(1100, 735);
constexpr QSize kSmallestSize(760, 460); // the toolbar fits, and the tabs below a few rows
constexpr int kSmallestTable = 100;      // height
constexpr int kFreshTabs = 400;          // height
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
    : m_splitter(new QSplitter)
    , m_tabsSplitter(new QSplitter(Qt::Vertical))
    , m_sideView(new TSSideView)
    , m_networksView(new TSNetworksView)
    , m_graphTabs(new GraphTabs(clock))
{
    m_networksView->setMinimumHeight(kSmallestTable);
    m_tabsSplitter->addWidget(m_networksView);
    m_tabsSplitter->addWidget(m_graphTabs);
    m_tabsSplitter->setStretchFactor(0, 1); // a larger window is for the table
    m_tabsSplitter->setStretchFactor(1, 0);
    m_tabsSplitter->setCollapsible(0, false);
    m_splitter->addWidget(m_sideView);
    m_splitter->addWidget(m_tabsSplitter);
    m_splitter->setStretchFactor(1, 1); // the table takes the room there is
    m_splitter->setCollapsible(1, false);
    setCentralWidget(m_splitter);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to hide the toolbar
    makeActions();
    makeQuickFilter();
    makeFilter();
    makeToolBar();
    makeMenus();
    makeFooter();
    setMinimumSize(kSmallestSize);
    resize(kFreshSize);
    m_networksView->setFocus();
    m_networksView->installEventFilter(this);
    installEventFilter(this);
    installEventFilter(m_graphTabs);
}

void MainWindow::makeActions()
{
    m_scan = new QAction(glyphIcon(Glyph::kScan), localized("Scan"), this);
    m_scan->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_R), QKeySequence(Qt::Key_F5)});
    m_scan->setToolTip(localized("Start a scan"));
    connect(m_scan, &QAction::triggered, this, &MainWindow::scanRequested);

    m_stop = new QAction(glyphIcon(Glyph::kStop), localized("Stop"), this);
    m_stop->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Period), QKeySequence(Qt::SHIFT | Qt::Key_F5)});
    m_stop->setToolTip(localized("Stop a scan"));
    connect(m_stop, &QAction::triggered, this, &MainWindow::stopRequested);
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
    bar.addAction(m_scan);
    bar.addAction(m_stop);
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
    m_quickFilterItems = new QActionGroup(this);
    for (const QuickFilterItem& item : composeQuickFilterMenu()) {
        m_quickFilter->addItem(localized(item.title));
        QAction* action = m_quickFilterItems->addAction(localized(item.title));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [this, tag = item.tag] { Q_EMIT quickFilterSelected(tag); });
    }
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
    const auto index = static_cast<int>(filter);
    m_quickFilter->setCurrentIndex(index);
    m_quickFilterItems->actions().at(index)->setChecked(true);
}

void MainWindow::makeMenus()
{
    makeFileMenu();

    makeEditMenu();

    QMenu& scan = *menuBar()->addMenu(localized("&Scan"));
    scan.setToolTipsVisible(true);
    scan.addAction(m_scan);
    scan.addAction(m_stop);
    scan.addSeparator();
    m_intervalMenu = new IntervalMenu(&scan);
    scan.addMenu(m_intervalMenu);
    m_speechMenu = new SpeechMenu(&scan);
    scan.addMenu(m_speechMenu);

    QMenu& view = *menuBar()->addMenu(localized("&View"));
    QAction* filter = view.addAction(localized("&Filter"), this, [this] {
        m_filter->setFocus(Qt::ShortcutFocusReason);
        m_filter->selectAll();
    });
    filter->setShortcut(QKeySequence::Find);
    m_showSideView = view.addAction(localized("&Side View"));
    m_showSideView->setCheckable(true);
    m_showSideView->setShortcut(QKeySequence(Qt::Key_F9));
    connect(m_showSideView, &QAction::triggered, this, &MainWindow::setSideViewShown);
    connect(m_splitter, &QSplitter::splitterMoved, this,
            [this] { m_showSideView->setChecked(m_splitter->sizes().front() > 0); });
    m_showTabs = view.addAction(localized("&Lower Half"));
    m_showTabs->setCheckable(true);
    m_showTabs->setShortcut(QKeySequence(Qt::Key_F8));
    connect(m_showTabs, &QAction::triggered, this, &MainWindow::setTabsShown);
    connect(m_tabsSplitter, &QSplitter::splitterMoved, this,
            [this] { m_showTabs->setChecked(m_tabsSplitter->sizes().back() > 0); });
    view.addSeparator();
    m_graphTabs->addViewItems(view);
    view.addSeparator();
    view.addActions(m_quickFilterItems->actions());
    view.addSeparator();
    QMenu* columns = view.addMenu(localized("&Columns"));
    columns->setToolTipsVisible(true);
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        m_networksView->addColumnItems(*columns);
    });

    QMenu& help = *menuBar()->addMenu(localized("&Help"));
    help.addAction(localized("&Filter Language"), this, &MainWindow::showFilterHelp)
        ->setShortcut(QKeySequence::HelpContents);
    help.addSeparator();
    help.addAction(localized("&About Tessara"), this, &MainWindow::showAbout)
        ->setMenuRole(QAction::AboutRole);
}

void MainWindow::makeExchangeItems(QMenu& file)
{
    connect(&file, &QMenu::aboutToShow, this, &MainWindow::fileMenuWillShow);
    QMenu& networks = *file.addMenu(localized("&Export Networks"));
    m_exportAll = networks.addAction(localized("&All Networks..."), this,
                                     &MainWindow::exportAllNetworksRequested);
    m_exportDisplayed = networks.addAction(localized("&Displayed Networks..."), this,
                                           &MainWindow::exportDisplayedNetworksRequested);
    m_exportSelected = networks.addAction(localized("&Selected Networks..."), this,
                                          &MainWindow::exportSelectedNetworksRequested);
    file.addSeparator();
    file.addAction(localized("E&xport Annotations..."), this,
                   &MainWindow::exportAnnotationsRequested);
    file.addAction(localized("&Import Annotations..."), this,
                   &MainWindow::importAnnotationsRequested);
}

void MainWindow::makeEditMenu()
{
    QMenu& edit = *menuBar()->addMenu(localized("&Edit"));
    QAction* copy = edit.addAction(localized("&Copy"), this, &MainWindow::onCopy);
    copy->setShortcut(QKeySequence::Copy);
    connect(qApp, &QApplication::focusChanged, copy, [this, copy](QWidget*, QWidget* now) {
        if (now)
            copy->setEnabled(now != m_sideView); // which copies nothing
    });
    edit.addSeparator();
    QAction* editNote = edit.addAction(localized("Edit &Annotation"), m_networksView,
                                       &TSNetworksView::editAnnotations);
    editNote->setShortcut(QKeySequence(Qt::Key_F2));
    connect(&edit, &QMenu::aboutToShow, editNote,
            [this, editNote] { editNote->setEnabled(m_networksView->canEditAnnotations()); });
    edit.addSeparator();
    QAction* preferences =
        edit.addAction(localized("&Preferences..."), this, &MainWindow::preferencesRequested);
    preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setMenuRole(QAction::PreferencesRole);
    // The key asks the table.
    connect(&edit, &QMenu::aboutToHide, editNote, [editNote] { editNote->setEnabled(true); });
}

/// A text field has a Copy of its own; anything else but the table has nothing to copy.
void MainWindow::onCopy()
{
    if (const auto* field = qobject_cast<QLineEdit*>(focusWidget()))
        field->copy();
    else if (focusWidget() == m_networksView)
        Q_EMIT copyRequested();
}

void MainWindow::makeFileMenu()
{
    QMenu& file = *menuBar()->addMenu(localized("&File"));
    file.addAction(localized("&Open..."), this, &MainWindow::openRequested)
        ->setShortcut(QKeySequence::Open);
    auto* recent = new RecentDocumentsMenu(&file);
    connect(recent, &RecentDocumentsMenu::documentTriggered, this, &MainWindow::fileRequested);
    file.addMenu(recent);
    file.addSeparator();
    // Results that can be saved are never those of a file: each time there is a name to be given.
    m_saveAs = file.addAction(localized("Save &As..."), this, &MainWindow::saveAsRequested);
    m_saveAs->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_S), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)});
    file.addSeparator();
    makeExchangeItems(file);
    file.addSeparator();
    QAction* quit = file.addAction(localized("&Quit"), this, &QWidget::close);
    quit->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence(Qt::CTRL | Qt::Key_W)});
    quit->setMenuRole(QAction::QuitRole);
}

void MainWindow::makeFooter()
{
    m_leftFooter = new ElidedLabel;
    m_rightFooter = new QLabel;
    m_leftFooter->setObjectName(QStringLiteral("LeftFooter"));
    m_leftFooter->hide();
    statusBar()->setContentsMargins(kFooterMargin, 0, 0, 0);
    statusBar()->addWidget(m_leftFooter, 1);
    statusBar()->addPermanentWidget(m_rightFooter);
}

void MainWindow::setDocument(const QString& title, bool hasUnsavedResults)
{
    // "[*]" is the place of the mark; twice, it stands for itself.
    QString text = title;
    setWindowTitle(text.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) +
                   QLatin1String("[*]"));
    setWindowModified(hasUnsavedResults);
    m_saveAs->setEnabled(hasUnsavedResults);
}

void MainWindow::setScanStopEnabled(bool canScan, bool canStop)
{
    m_scan->setEnabled(canScan);
    m_stop->setEnabled(canStop);
}

void MainWindow::setExportEnabled(bool all, bool displayed, bool selected)
{
    m_exportAll->setEnabled(all);
    m_exportDisplayed->setEnabled(displayed);
    m_exportSelected->setEnabled(selected);
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
    palette.setColor(QPalette::WindowText, QColor::fromRgbF(0.728F, 0.078F, 0.12F));
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

QByteArray MainWindow::splitterState() const
{
    return m_splitter->saveState();
}

void MainWindow::restoreSplitter(const QByteArray& state)
{
    if (!m_splitter->restoreState(state))
        setSideViewShown(false);
    m_showSideView->setChecked(m_splitter->sizes().front() > 0);
}

void MainWindow::setSideViewShown(bool shown)
{
    const int side = shown ? m_sideView->sizeHint().width() : 0;
    m_splitter->setSizes({side, std::max(m_splitter->width() - side, 1)});
    m_showSideView->setChecked(shown);
}

QByteArray MainWindow::tabsSplitterState() const
{
    return m_tabsSplitter->saveState();
}

void MainWindow::restoreTabsSplitter(const QByteArray& state)
{
    if (!m_tabsSplitter->restoreState(state))
        setTabsShown(true);
    m_showTabs->setChecked(m_tabsSplitter->sizes().back() > 0);
}

void MainWindow::setTabsShown(bool shown)
{
    const int tabs = shown ? kFreshTabs : 0;
    m_tabsSplitter->setSizes({std::max(m_tabsSplitter->height() - tabs, kSmallestTable), tabs});
    m_showTabs->setChecked(shown);
}

void MainWindow::takeFirstRunFrame()
{
    const QRect available = screen()->availableGeometry();
    const QSize size(static_cast<int>(kFreshSize.width() * kFirstRunWidth),
                     static_cast<int>(kFreshSize.height() * kFirstRunHeight));
    resize(size.boundedTo(available.size()));
    move(available.center() - rect().center());
}

void MainWindow::showFilterHelp()
{
    if (!m_filterHelp)
        m_filterHelp = new HelpPage(QStringLiteral("filter"), localized("Filter Language"), this);
    m_filterHelp->show();
    m_filterHelp->raise();
    m_filterHelp->activateWindow();
}

void MainWindow::showAbout()
{
    auto* about = new QMessageBox(QMessageBox::NoIcon, localized("About Tessara"),
                                  QStringLiteral("Tessara %1").arg(QLatin1String(TESSARA_VERSION)),
                                  QMessageBox::Close, this);
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setInformativeText(
        localized("Shows the Wi-Fi networks in range, what they announce and how their signals "
                  "develop.\n\nFree software under the Apache License 2.0."));
    about->open();
}

} // namespace tessara
