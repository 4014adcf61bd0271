#include "shell/MASPreferencesWindowController.h"

#include "foundation/Defaults.h"
#include "shell/PreferencesPane.h"

#include <QActionGroup>
#include <QKeyEvent>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace tessara {

namespace {

constexpr QSize kIconSize(24, 24);

} // namespace

MASPreferencesWindowController::MASPreferencesWindowController(
    const std::vector<PreferencesPane*>& panes, QWidget* parent)
    : QDialog(parent)
    , m_panes(panes)
    , m_toolBar(new QToolBar)
    , m_items(new QActionGroup(this))
    , m_layout(new QVBoxLayout(this))
{
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setIconSize(kIconSize);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->setSizeConstraint(QLayout::SetFixedSize); // as large as the pane
    m_layout->addWidget(m_toolBar);
    for (PreferencesPane* pane : m_panes)
        addPane(*pane);
    setPane(*m_panes.front());
    selectPane(Defaults::standard().stringForKey(DefaultKey::SelectedPreferencesPane));
}

void MASPreferencesWindowController::addPane(PreferencesPane& pane)
{
    m_layout->addWidget(&pane);
    pane.hide();
    QAction* item = m_toolBar->addAction(pane.toolbarItemImage(), pane.toolbarItemLabel());
    item->setCheckable(true);
    item->setData(pane.identifier());
    m_toolBar->widgetForAction(item)->setFocusPolicy(Qt::TabFocus);
    m_items->addAction(item);
    connect(item, &QAction::triggered, this, [this, &pane] { selectPane(pane.identifier()); });
}

void MASPreferencesWindowController::selectPane(const QString& identifier)
{
    const auto found = std::ranges::find(m_panes, identifier, &PreferencesPane::identifier);
    if (found == m_panes.end())
        return;
    setPane(**found);
    Defaults::standard().setValue(DefaultKey::SelectedPreferencesPane, identifier);
}

void MASPreferencesWindowController::setPane(PreferencesPane& pane)
{
    pane.viewWillAppear();
    if (m_selectedPane)
        m_selectedPane->hide();
    m_selectedPane = &pane;
    pane.show();
    setWindowTitle(pane.toolbarItemLabel());
    for (QAction* item : m_items->actions())
        item->setChecked(item->data().toString() == pane.identifier());
}

void MASPreferencesWindowController::showEvent(QShowEvent* event)
{
    m_selectedPane->viewWillAppear();
    QDialog::showEvent(event);
}

void MASPreferencesWindowController::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Close))
        close();
    else
        QDialog::keyPressEvent(event);
}

} // namespace tessara
