#include "shell/IntervalMenu.h"

#include "foundation/Localized.h"

#include <QActionGroup>

namespace tessara {

namespace {

struct Interval {
    EnglishText format;
    EnglishText unit;
};
constexpr Interval kIntervals[] = {
    {"1 %1"_en, "second"_en},   {"2 %1"_en, "seconds"_en},  {"5 %1"_en, "seconds"_en},
    {"10 %1"_en, "seconds"_en}, {"15 %1"_en, "seconds"_en}, {"30 %1"_en, "seconds"_en},
    {"1 %1"_en, "minute"_en},   {"2 %1"_en, "minutes"_en},  {"5 %1"_en, "minutes"_en},
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
