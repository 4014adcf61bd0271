#pragma once

#include <QMenu>

class QActionGroup;

namespace tessara {

/// The interval control: nine lengths of time, one of them checked.
class IntervalMenu final : public QMenu {
    Q_OBJECT

public:
    explicit IntervalMenu(QWidget* parent = nullptr);

    /// Checks the item at an index; an index without an item leaves none checked.
    void selectInterval(qint64 index);

Q_SIGNALS:
    void intervalsTriggered();

private:
    QActionGroup* m_items;
};

} // namespace tessara
