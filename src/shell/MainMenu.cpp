#include "shell/MainMenu.h"

#include "foundation/Localized.h"
#include "shell/AboutPanels.h"
#include "shell/GlyphIcon.h"
#include "shell/GraphTabs.h"
#include "shell/HelpPage.h"
#include "shell/IntervalMenu.h"
#include "shell/RecentDocumentsMenu.h"
#include "shell/SpeechMenu.h"
#include "shell/TSNetworksView.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QUrl>

namespace tessara {

namespace {

constexpr double kTextStep = 1.0; // points

/// The publisher's pages.
struct WebPage {
    EnglishText title;
    const char* address;
};
constexpr WebPage kWebPages[] = {
    {"Tessara &Support"_en, TESSARA_SUPPORT_URL},
    {"Tessara on &Twitter"_en, TESSARA_TWITTER_URL},
    {"Tessara on Face&book"_en, TESSARA_FACEBOOK_URL},
};

/// What the Edit menu does to a field with the keyboard, if there is one.
struct FieldCommand {
    EnglishText title;
    QKeySequence::StandardKey key;
    void (QLineEdit::*command)();
};
const FieldCommand kFieldCommands[] = {
    {"&Undo"_en, QKeySequence::Undo, &QLineEdit::undo},
    {"Cu&t"_en, QKeySequence::Cut, &QLineEdit::cut},
    {"&Paste"_en, QKeySequence::Paste, &QLineEdit::paste},
};

QLineEdit* fieldWithKeyboard()
{
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

} // namespace

MainMenu::MainMenu(TSNetworksView& networksView, GraphTabs& graphTabs, QWidget* parent)
    : QMenuBar(parent)
    , m_networksView(networksView)
    , m_graphTabs(graphTabs)
{
    makeFileMenu();
    makeEditMenu();
    makeScanMenu();
    makeViewMenu();
    makeHelpMenu();
}

// File --------------------------------------------------------------------------------------------

void MainMenu::makeFileMenu()
{
    QMenu& file = *addMenu(localized("&File"));
    connect(&file, &QMenu::aboutToShow, this, &MainMenu::fileMenuWillShow);
    file.addAction(localized("&Open..."), this, &MainMenu::openRequested)
        ->setShortcut(QKeySequence::Open);
    auto* recent = new RecentDocumentsMenu(&file);
    connect(recent, &RecentDocumentsMenu::documentTriggered, this, &MainMenu::fileRequested);
    file.addMenu(recent);
    file.addSeparator();
    // Results that can be saved are never those of a file: each time there is a name to be given.
    m_saveAs = file.addAction(localized("Save &As..."), this, &MainMenu::saveAsRequested);
    m_saveAs->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_S), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)});
    file.addSeparator();
    makeExportItems(file);
    file.addSeparator();
    QAction* quit = file.addAction(localized("&Quit"), this, &MainMenu::quitRequested);
    quit->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Q), QKeySequence(Qt::CTRL | Qt::Key_W)});
    quit->setMenuRole(QAction::QuitRole);
}

void MainMenu::makeExportItems(QMenu& file)
{
    QMenu& networks = *file.addMenu(localized("&Export Networks"));
    m_exportAll = networks.addAction(localized("&All Networks..."), this,
                                     &MainMenu::exportAllNetworksRequested);
    m_exportDisplayed = networks.addAction(localized("&Displayed Networks..."), this,
                                           &MainMenu::exportDisplayedNetworksRequested);
    m_exportSelected = networks.addAction(localized("&Selected Networks..."), this,
                                          &MainMenu::exportSelectedNetworksRequested);
    file.addSeparator();
    file.addAction(localized("E&xport Annotations..."), this,
                   &MainMenu::exportAnnotationsRequested);
    file.addAction(localized("&Import Annotations..."), this,
                   &MainMenu::importAnnotationsRequested);
}

void MainMenu::setSaveEnabled(bool enabled)
{
    m_saveAs->setEnabled(enabled);
}

void MainMenu::setExportEnabled(bool all, bool displayed, bool selected)
{
    m_exportAll->setEnabled(all);
    m_exportDisplayed->setEnabled(displayed);
    m_exportSelected->setEnabled(selected);
}

// Edit --------------------------------------------------------------------------------------------

void MainMenu::makeEditMenu()
{
    QMenu& edit = *addMenu(localized("E&dit"));
    makeFieldItems(edit);
    edit.addSeparator();
    QAction* editNote = edit.addAction(localized("Edit &Annotation"), &m_networksView,
                                       &TSNetworksView::editAnnotations);
    editNote->setShortcut(QKeySequence(Qt::Key_F2));
    connect(&edit, &QMenu::aboutToShow, editNote,
            [this, editNote] { editNote->setEnabled(m_networksView.canEditAnnotations()); });
    // The key asks the table.
    connect(&edit, &QMenu::aboutToHide, editNote, [editNote] { editNote->setEnabled(true); });
    edit.addSeparator();
    QAction* preferences =
        edit.addAction(localized("Pr&eferences..."), this, &MainMenu::preferencesRequested);
    preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    preferences->setMenuRole(QAction::PreferencesRole);
}

void MainMenu::makeFieldItems(QMenu& edit)
{
    m_copy = new QAction(localized("&Copy"), this);
    m_copy->setShortcut(QKeySequence::Copy);
    connect(m_copy, &QAction::triggered, this, [this] {
        const auto* label = qobject_cast<QLabel*>(QApplication::focusWidget());
        if (QLineEdit* field = fieldWithKeyboard())
            field->copy();
        else if (label && label->hasSelectedText())
            QApplication::clipboard()->setText(label->selectedText());
        else if (m_networksView.hasFocus())
            Q_EMIT copyRequested();
    });
    for (const auto& [title, key, command] : kFieldCommands) {
        if (key == QKeySequence::Paste)
            edit.addAction(m_copy);
        QAction* item = edit.addAction(localized(title));
        item->setShortcut(key);
        item->setEnabled(false); // nothing but a text can be pasted
        connect(item, &QAction::triggered, this, [command = command] {
            if (QLineEdit* field = fieldWithKeyboard())
                (field->*command)();
        });
        connect(qApp, &QApplication::focusChanged, item, [item](QWidget*, QWidget* now) {
            if (now) // a menu takes the keyboard from no field
                item->setEnabled(qobject_cast<QLineEdit*>(now) != nullptr);
        });
    }
    QAction* all = edit.addAction(localized("Select A&ll"));
    all->setShortcut(QKeySequence::SelectAll);
    connect(all, &QAction::triggered, this, [this] {
        if (QLineEdit* field = fieldWithKeyboard())
            field->selectAll();
        else
            m_networksView.selectAll();
    });
}

void MainMenu::setCopyEnabled(bool enabled)
{
    m_copy->setEnabled(enabled);
}

// Scan --------------------------------------------------------------------------------------------

void MainMenu::makeScanMenu()
{
    QMenu& scan = *addMenu(localized("&Scan"));
    scan.setToolTipsVisible(true);
    m_scan =
        scan.addAction(glyphIcon(Glyph::kScan), localized("Scan"), this, &MainMenu::scanRequested);
    m_scan->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_R), QKeySequence(Qt::Key_F5)});
    m_scan->setToolTip(localized("Start a scan"));
    m_stop =
        scan.addAction(glyphIcon(Glyph::kStop), localized("Stop"), this, &MainMenu::stopRequested);
    m_stop->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Period), QKeySequence(Qt::SHIFT | Qt::Key_F5)});
    m_stop->setToolTip(localized("Stop a scan"));
    scan.addSeparator();
    m_intervalMenu = new IntervalMenu(&scan);
    scan.addMenu(m_intervalMenu);
    m_speechMenu = new SpeechMenu(&scan);
    scan.addMenu(m_speechMenu);
}

void MainMenu::setScanStopEnabled(bool canScan, bool canStop)
{
    m_scan->setEnabled(canScan);
    m_stop->setEnabled(canStop);
}

// View --------------------------------------------------------------------------------------------

void MainMenu::makeViewMenu()
{
    QMenu& view = *addMenu(localized("&View"));
    view.addAction(localized("&Filter"), this, &MainMenu::filterFieldRequested)
        ->setShortcut(QKeySequence::Find);
    m_sideView = view.addAction(glyphIcon(Glyph::kLeftArea), localized("&Side View"));
    m_sideView->setToolTip(localized("Show or hide the side view"));
    m_sideView->setCheckable(true);
    m_sideView->setShortcut(QKeySequence(Qt::Key_F9));
    m_lowerHalf = view.addAction(glyphIcon(Glyph::kBottomArea), localized("&Lower Half"));
    m_lowerHalf->setToolTip(localized("Show or hide details and charts"));
    m_lowerHalf->setCheckable(true);
    m_lowerHalf->setShortcut(QKeySequence(Qt::Key_F8));
    view.addSeparator();
    m_graphTabs.addViewItems(view);
    view.addSeparator();
    m_quickFilters = new QActionGroup(this);
    for (const QuickFilterItem& item : composeQuickFilterMenu()) {
        QAction* action = m_quickFilters->addAction(localized(item.title));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this,
                [this, tag = item.tag] { Q_EMIT quickFilterSelected(tag); });
    }
    view.addActions(m_quickFilters->actions());
    makeOrganizeItems(view);
    view.addSeparator();
    makeTextItems(view);
    view.addSeparator();
    QMenu* columns = view.addMenu(localized("&Columns"));
    columns->setToolTipsVisible(true);
    connect(columns, &QMenu::aboutToShow, this, [this, columns] {
        columns->clear();
        m_networksView.addColumnItems(*columns);
    });
}

void MainMenu::setQuickFilter(QuickFilter filter)
{
    m_quickFilters->actions().at(static_cast<int>(filter))->setChecked(true);
}

/// Hidden for as long as the table is flat.
void MainMenu::makeOrganizeItems(QMenu& view)
{
    view.addSeparator()->setVisible(false);
    for (const EnglishText title : {"Organize Networks by Name"_en, "Organize Networks by Radio"_en,
                                    "Organize Networks by Access Point"_en}) {
        view.addAction(localized(title), this, &MainMenu::organizeNetworksByRequested)
            ->setVisible(false);
    }
}

void MainMenu::makeTextItems(QMenu& view)
{
    QAction* bigger = view.addAction(localized("Make Text &Bigger"), this,
                                     [this] { Q_EMIT makeTextRequested(kTextStep); });
    bigger->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    QAction* smaller = view.addAction(localized("Make Text Smalle&r"), this,
                                      [this] { Q_EMIT makeTextRequested(-kTextStep); });
    smaller->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
}

// Help --------------------------------------------------------------------------------------------

void MainMenu::makeHelpMenu()
{
    QMenu& help = *addMenu(localized("&Help"));
    help.addAction(localized("&Filter Language"), this, [this] { showFilterHelp(*window()); })
        ->setShortcut(QKeySequence::HelpContents);
    help.addSeparator();
    for (const auto& [title, address] : kWebPages) {
        const QUrl url(QString::fromLatin1(address));
        help.addAction(localized(title), this, [this, url] { Q_EMIT webPageRequested(url); });
    }
    help.addSeparator();
    help.addAction(localized("Check for &Updates..."), this, &MainMenu::checkForUpdatesRequested);
    help.addAction(localized("Ac&knowledgments"), this, [this] { showAcknowledgments(*window()); });
    help.addAction(localized("&About Tessara"), this, [this] { showAbout(*window()); })
        ->setMenuRole(QAction::AboutRole);
}

} // namespace tessara
