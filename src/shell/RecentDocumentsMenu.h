#pragma once

#include <QMenu>

namespace tessara {

/// The results files opened last, to be opened again. The settings keep them.
class RecentDocumentsMenu final : public QMenu {
    Q_OBJECT

public:
    static constexpr qsizetype kMost = 10;

    explicit RecentDocumentsMenu(QWidget* parent);

    /// Puts a file first in the list.
    static void addDocument(const QString& path);

Q_SIGNALS:
    void documentTriggered(const QString& path);

private:
    void fill();
};

} // namespace tessara
