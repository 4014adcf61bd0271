#include "shell/IntervalMenu.h"

#include "foundation/Localized.h"

#include <QActionGroup>

namespace tessara {

namespace {

struct Interval {
    const char* format;
    const char* unit;
};
constexpr Interval kIntervals[] = {
    {"1 %1", "second"},   {"2 %1", "seconds"},  {"5 %1", "seconds"},
    {"10 %1", "seconds"}, {"15 %1", "seconds"}, {"30 %1", "seconds"},
    {"1 %1", "minute"},   {"2 %1", "minutes"},  {"5 %1", "minutes"},
};

} // namespace

IntervalMenu::IntervalMenu(QWidget* parent)
    : QMenu(localized("&Interval"), parent)
    , m_items(new QActionGroup(this))
{
    menuAction()->setToolTip(
        localized("Scanning goes on at its own pace, whatever is chosen here"));
    m_items->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const auto& [format, unit] : kIntervals) {
        QAction* item = addAction(localized(format).arg(localized(unit)));
        item->setCheckable(true);
        m_items->addAction(item);
    }
    connect(m_items, &QActionGroup::triggered, this, &IntervalMenu::intervalsTriggered);
}

void IntervalMenu::selectInterval(qint64 index)
{
    if (QAction* checked = m_items->checkedAction())
        checked->setChecked(false);
    if (index >= 0 && index < m_items->actions().size())
        m_items->actions().at(index)->setChecked(true);
}

} // namespace tessara
