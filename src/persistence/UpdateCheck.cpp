#include "persistence/UpdateCheck.h"

#include "foundation/Defaults.h"

#include <QDateTime>

#include <cmath>

namespace tessara {

QNetworkRequest UpdateSource::request() const
{
    QNetworkRequest request(location);
    if (tls)
        request.setSslConfiguration(*tls);
    return request;
}

bool isCheckDue(QStringView key, double interval, const Clock& clock)
{
    const QDateTime last = Defaults::standard().value(key).toDateTime();
    const double age = clock.now() - static_cast<double>(last.toMSecsSinceEpoch()) / 1000.0;
    return !last.isValid() || age < 0 || age >= interval;
}

void rememberCheck(QStringView key, const Clock& clock)
{
    Defaults::standard().setValue(key,
                                  QDateTime::fromMSecsSinceEpoch(std::llround(clock.now() * 1000)));
}

} // namespace tessara
