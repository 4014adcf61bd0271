#include "model/TimeText.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace tessara {

QString timeText(double time)
{
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(std::llround(time * 1000)),
                              QStringLiteral("yyyy/MM/dd hh:mm:ss aP"));
}

QString mediumTimeText(double time)
{
    // The long formats of the locale without the day of the week, the whole name of the month and
    // the zone.
    static const QRegularExpression weekDay(QStringLiteral("dddd[,.]? *|[,.]? *dddd"));
    const QLocale locale;
    QString date = locale.dateFormat(QLocale::LongFormat);
    date.remove(weekDay).replace(QLatin1String("MMMM"), QLatin1String("MMM"));
    QString clock = locale.timeFormat(QLocale::LongFormat);
    clock.remove(QLatin1Char('t'));
    return locale.toString(QDateTime::fromMSecsSinceEpoch(std::llround(time * 1000)),
                           date + QLatin1String(", ") + clock.trimmed());
}

} // namespace tessara
