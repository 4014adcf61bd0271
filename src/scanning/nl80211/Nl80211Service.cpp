#include "scanning/nl80211/Nl80211Service.h"

#include "scanning/nl80211/InterfaceInfo.h"
#include "scanning/nl80211/Nl80211Interface.h"

namespace tessara {

Nl80211Service::Nl80211Service(NetworkManagerClient networkManager, Pause& pause)
    : m_networkManager(std::move(networkManager))
    , m_pause(pause)
{
}

std::shared_ptr<CWInterface> Nl80211Service::interface()
{
    const QStringList names = interfaceNames();
    return names.isEmpty() ? nullptr : interfaceWithName(names.first());
}

std::shared_ptr<CWInterface> Nl80211Service::interfaceWithName(const QString& name)
{
    if (!readInterface(name))
        return nullptr;
    return std::make_shared<Nl80211Interface>(name, m_networkManager, m_pause);
}

QStringList Nl80211Service::interfaceNames()
{
    QStringList names;
    for (const InterfaceInfo& info : readInterfaces())
        names.append(info.name);
    return names;
}

} // namespace tessara
