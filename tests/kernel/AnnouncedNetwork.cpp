#include "kernel/AnnouncedNetwork.h"

#include <QDir>
#include <QFile>

namespace tessara::kernel {

namespace {

/// The bytes of a name written as P"..." with \xHH.
QByteArray printfText(QByteArray value)
{
    value = value.mid(2, value.size() - 3);
    for (qsizetype at = value.indexOf("\\x"); at >= 0; at = value.indexOf("\\x", at + 1))
        value.replace(at, 4, QByteArray::fromHex(value.mid(at + 2, 2)));
    return value;
}

} // namespace

std::vector<AnnouncedNetwork> announcedNetworks(const QString& path)
{
    std::vector<AnnouncedNetwork> networks(1);
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const qsizetype equals = line.indexOf('=');
        const QByteArray key = line.left(equals);
        const QByteArray value = line.mid(equals + 1);
        AnnouncedNetwork& network = networks.back();
        if (key == "bss") {
            // Another network on the same radio: the radio's settings are shared.
            AnnouncedNetwork next;
            next.channel = network.channel;
            next.width = network.width;
            next.beaconInterval = network.beaconInterval;
            networks.push_back(next);
        } else if (key == "bssid") {
            network.bssid = QString::fromLatin1(value);
        } else if (key == "ssid") {
            network.ssid = value;
        } else if (key == "ssid2") {
            network.ssid = printfText(value);
        } else if (key == "ignore_broadcast_ssid") {
            network.isHidden = value != "0";
        } else if (key == "channel") {
            network.channel = value.toInt();
        } else if (key == "vht_oper_chwidth") {
            network.width = value == "1" ? ChannelWidth::k80MHz : network.width;
        } else if (key == "beacon_int") {
            network.beaconInterval = value.toInt();
        } else if (key == "wep_key0") {
            network.hasWEP = true;
        }
    }
    return networks;
}

std::vector<AnnouncedNetwork> standingNetworks()
{
    std::vector<AnnouncedNetwork> networks;
    const QDir folder(QStringLiteral("air/standing"));
    for (const QString& name : folder.entryList({QStringLiteral("*.conf")})) {
        for (const AnnouncedNetwork& network : announcedNetworks(folder.filePath(name)))
            networks.push_back(network);
    }
    return networks;
}

} // namespace tessara::kernel
