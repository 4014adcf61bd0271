#include "cli/Command.h"
#include "cli/Terminal.h"
#include "foundation/HarmlessText.h"
#include "scanning/ScanRuntime.h"
#include "scanning/SystemWiFiService.h"

#include <QTextStream>

namespace tessara {

namespace {

QString associationText(const CWInterface& interface)
{
    if (!interface.isAssociated())
        return QStringLiteral("not associated");
    const auto channel = interface.wlanChannel();
    return QStringLiteral("associated with %1 (%2), channel %3, %4 MHz, %5 Mbit/s")
        .arg(harmless(interface.ssid().value_or(QString())), interface.bssid().value_or(QString()),
             QString::number(channel ? channel->channelNumber : 0),
             QString::number(interface.channelWidth()),
             QString::number(interface.transmitRate(), 'f', 1));
}

ExitStatus run(const QCommandLineParser&, const QStringList& arguments)
{
    if (!arguments.isEmpty())
        return wrongUsage(QStringLiteral("interfaces takes no arguments"));
    ScanRuntime runtime;
    SystemWiFiService service(runtime.clock(), runtime.pause(), runtime.notifications());
    const QStringList names = service.interfaceNames();
    if (names.isEmpty()) {
        complain(QStringLiteral("this machine has no Wi-Fi interface"));
        return kFailed;
    }
    QTextStream out(stdout);
    for (const QString& name : names) {
        const auto interface = service.interfaceWithName(name);
        if (!interface)
            continue; // unplugged since it was listed
        out << name << ": power " << (interface->powerOn() ? "on" : "off") << ", "
            << associationText(*interface) << "\n    scans by " << interface->scanMethod() << '\n';
    }
    out.flush();
    return finishOutput();
}

} // namespace

const Command kInterfacesCommand = {"interfaces", "",
                                    "Lists the Wi-Fi interfaces of this machine: power, "
                                    "association, and how a scan would be made.",
                                    [](QCommandLineParser&) {}, run};

} // namespace tessara
