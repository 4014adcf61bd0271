#include "filtering/SignalThreshold.h"

#include "foundation/Localized.h"
#include "model/SignalPercentage.h"

namespace tessara {

bool SignalThreshold::passes(std::int64_t rssi) const
{
    if (!isOn())
        return true;
    return dBm ? rssi >= -value : signalPercentage(rssi) >= value;
}

std::optional<QString> SignalThreshold::text() const
{
    if (!isOn())
        return std::nullopt;
    const QString sentence = localized("Showing only networks with signal strength");
    return dBm ? QStringLiteral("%1 >= %2 dBm").arg(sentence).arg(-value)
               : QStringLiteral("%1 >= %2%").arg(sentence).arg(value);
}

} // namespace tessara
