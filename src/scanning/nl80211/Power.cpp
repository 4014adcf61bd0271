#include "scanning/nl80211/Power.h"

#include "scanning/nl80211/FileDescriptor.h"
#include "scanning/nl80211/Rfkill.h"

#include <algorithm>
#include <net/if.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace tessara {

bool isInterfaceUp(const QString& interfaceName)
{
    ifreq request{};
    const QByteArray name = interfaceName.toUtf8();
    if (name.size() >= IFNAMSIZ)
        return false;
    std::copy(name.begin(), name.end(), request.ifr_name);
    const FileDescriptor any(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    return any.isOpen() && ioctl(any.get(), SIOCGIFFLAGS, &request) == 0 &&
           (request.ifr_flags & IFF_UP) != 0;
}

bool isPowerOn(const QString& interfaceName)
{
    return isInterfaceUp(interfaceName) &&
           std::ranges::none_of(rfkillSwitches(interfaceName), &RfkillSwitch::isBlocked);
}

} // namespace tessara
