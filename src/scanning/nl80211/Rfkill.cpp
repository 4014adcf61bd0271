#include "scanning/nl80211/Rfkill.h"

#include "scanning/nl80211/FileDescriptor.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <linux/rfkill.h>
#include <unistd.h>

namespace tessara {

namespace {

int readNumber(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
}

} // namespace

std::vector<RfkillSwitch> rfkillSwitches(const QString& interfaceName, const QString& sysfs)
{
    std::vector<RfkillSwitch> switches;
    const QDir radio(sysfs + QStringLiteral("/class/net/%1/phy80211").arg(interfaceName));
    for (const QString& entry : radio.entryList({QStringLiteral("rfkill*")}, QDir::Dirs)) {
        const QString path = radio.filePath(entry);
        switches.push_back({static_cast<std::uint32_t>(readNumber(path + QStringLiteral("/index"))),
                            readNumber(path + QStringLiteral("/soft")) != 0,
                            readNumber(path + QStringLiteral("/hard")) != 0});
    }
    return switches;
}

int setSoftBlocked(const RfkillSwitch& rfkill, bool blocked)
{
    rfkill_event event{};
    event.idx = rfkill.index;
    event.type = RFKILL_TYPE_WLAN;
    event.op = RFKILL_OP_CHANGE;
    event.soft = blocked ? 1 : 0;
    const FileDescriptor device(open(kRfkillDevice, O_WRONLY | O_CLOEXEC | O_NONBLOCK));
    if (!device.isOpen() || write(device.get(), &event, sizeof(event)) < 0)
        return errno;
    return 0;
}

} // namespace tessara
