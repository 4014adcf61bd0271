#include "model/TimeText.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace tessara {

QString timeText(double time)
{
    return QLocale().toString(QDateTime::fromMSecsSinceEpoch(std::llround(time * 1000)),
                              QStringLiteral("yyyy/MM/dd hh:mm:ss aP"));
}

} // namespace tessara
