#include "shell/MainWindow.h"

#include "foundation/Localized.h"
#include "shell/ActivityIndicator.h"
#include "shell/ElidedLabel.h"
#include "shell/GlyphIcon.h"
#include "shell/IntervalMenu.h"
#include "shell/TSNetworksView.h"

#include <QAction>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

namespace tessara {

namespace {

constexpr QSize kFreshSize(1100, 735);
constexpr QSize kSmallestSize(560, 360);
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

} // namespace

MainWindow::MainWindow()
    : m_networksView(new TSNetworksView(this))
{
    setCentralWidget(m_networksView);
    setContextMenuPolicy(Qt::NoContextMenu); // it would offer to hide the toolbar
    makeActions();
    makeToolBar();
    makeMenus();
    makeFooter();
    setMinimumSize(kSmallestSize);
    resize(kFreshSize);
    m_networksView->setFocus();
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
    bar.addWidget(m_info);
}

void MainWindow::makeMenus()
{
    QMenu& file = *menuBar()->addMenu(localized("&File"));
    QAction* quit = file.addAction(localized("&Quit"), this, &QWidget::close);
    quit->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence(Qt::CTRL | Qt::Key_W)});
    quit->setMenuRole(QAction::QuitRole);

    QMenu& scan = *menuBar()->addMenu(localized("&Scan"));
    scan.setToolTipsVisible(true);
    scan.addAction(m_scan);
    scan.addAction(m_stop);
    scan.addSeparator();
    m_intervalMenu = new IntervalMenu(&scan);
    scan.addMenu(m_intervalMenu);

    QMenu& view = *menuBar()->addMenu(localized("&View"));
    QMenu* columns = view.addMenu(localized("&Columns"));
    columns->setToolTipsVisible(true);
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        m_networksView->addColumnItems(*columns);
    });

    QMenu& help = *menuBar()->addMenu(localized("&Help"));
    help.addAction(localized("&About Tessara"), this, &MainWindow::showAbout)
        ->setMenuRole(QAction::AboutRole);
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

void MainWindow::setScanStopEnabled(bool canScan, bool canStop)
{
    m_scan->setEnabled(canScan);
    m_stop->setEnabled(canStop);
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
}

void MainWindow::takeFirstRunFrame()
{
    const QRect available = screen()->availableGeometry();
    const QSize size(static_cast<int>(kFreshSize.width() * kFirstRunWidth),
                     static_cast<int>(kFreshSize.height() * kFirstRunHeight));
    resize(size.boundedTo(available.size()));
    move(available.center() - rect().center());
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
