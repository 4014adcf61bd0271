#include "scanning/CWInterface.h"

#include "foundation/Defaults.h"
#include "foundation/Logging.h"

namespace tessara {

bool CWInterface::isAssociated() const
{
    const auto current = bssid();
    return current && *current != QLatin1String("00:00:00:00:00:00");
}

std::optional<Band> CWInterface::channelBand() const
{
    const auto channel = wlanChannel();
    return channel ? std::optional(channel->channelBand) : std::nullopt;
}

int CWInterface::channelWidth() const
{
    const auto channel = wlanChannel();
    return channel ? megahertz(channel->channelWidth).value_or(-1) : -1;
}

std::shared_ptr<CWInterface> chooseInterface(WiFiService& service)
{
    const QString name = Defaults::standard().stringForKey(DefaultKey::InterfaceName);
    if (name.isEmpty())
        return service.interface();
    if (auto chosen = service.interfaceWithName(name))
        return chosen;
    qCWarning(lcScanning, "Invalid interface name: %ls, using default.", qUtf16Printable(name));
    return service.interface();
}

} // namespace tessara
