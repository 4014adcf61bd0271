#include "shell/RecentDocumentsMenu.h"

#include "shell/ToolTipText.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"

#include <QFileInfo>

#include <algorithm>

namespace tessara {

RecentDocumentsMenu::RecentDocumentsMenu(QWidget* parent)
    : QMenu(localized("Open &Recent"), parent)
{
    setToolTipsVisible(true);
    fill();
    // With its items in place already, so that it opens also where nothing tells of that before.
    connect(&Defaults::standard(), &Defaults::didChange, this, &RecentDocumentsMenu::fill);
}

void RecentDocumentsMenu::addDocument(const QString& path)
{
    Defaults& defaults = Defaults::standard();
    QStringList paths = defaults.value(DefaultKey::RecentDocuments).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    defaults.setValue(DefaultKey::RecentDocuments, paths.mid(0, kMost));
}

void RecentDocumentsMenu::fill()
{
    const QStringList paths =
        Defaults::standard().value(DefaultKey::RecentDocuments).toStringList();
    clear();
    for (const QString& path : paths) {
        QString name = QFileInfo(path).fileName();
        QAction* action = addAction(name.replace(u'&', QLatin1String("&&")));
        action->setToolTip(toolTipOf(path));
        connect(action, &QAction::triggered, this,
                [this, path] { Q_EMIT documentTriggered(path); });
    }
    addSeparator();
    QAction* clearMenu = addAction(localized("&Clear Menu"), this, [] {
        Defaults::standard().remove(DefaultKey::RecentDocuments);
    });
    clearMenu->setEnabled(!paths.isEmpty());
}

} // namespace tessara
