#include "scanning/StateInfo.h"

#include "foundation/Localized.h"
#include "scanning/CWInterface.h"

namespace tessara {

namespace {

QString associationText(const CWInterface& interface)
{
    if (!interface.isAssociated())
        return localized("Not associated");
    const auto channel = interface.wlanChannel();
    // All at once: a name may hold a "%1" of its own.
    return QStringLiteral("%1: %2, Ch %3, %4 MHz, %5 Mbps")
        .arg(localized("Associated"), interface.ssid().value_or(QString()),
             QString::number(channel ? channel->channelNumber : 0),
             QString::number(interface.channelWidth()),
             QString::number(interface.transmitRate(), 'f', 0));
}

} // namespace

StateInfo stateInfo(bool isScanning, const QString& windowTitle, const CWInterface* interface)
{
    const bool showsScan = isScanning || windowTitle.startsWith(QStringView(kApplicationTitle));
    if (!showsScan) {
        if (windowTitle == localized("Data from Clipboard"))
            return {windowTitle, {}};
        const QString lastComponent = windowTitle.section(u'/', -1);
        return {localized("File: %1").arg(lastComponent), windowTitle};
    }
    if (!interface)
        return {};
    const QString mode = localized(isScanning ? "Scanning"_en : "Not scanning"_en);
    return {QStringLiteral("%1: %2  |  %3")
                .arg(interface->interfaceName(), mode, associationText(*interface)),
            {}};
}

} // namespace tessara
