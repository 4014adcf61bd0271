#include "scanning/nl80211/NetworkManagerClient.h"

#include "foundation/Localized.h"

#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantMap>

#include <algorithm>
#include <limits>

namespace tessara {

namespace {

const auto kService = QStringLiteral("org.freedesktop.NetworkManager");
const auto kManagerPath = QStringLiteral("/org/freedesktop/NetworkManager");
const auto kManager = QStringLiteral("org.freedesktop.NetworkManager");
const auto kDevice = QStringLiteral("org.freedesktop.NetworkManager.Device");
const auto kWireless = QStringLiteral("org.freedesktop.NetworkManager.Device.Wireless");
const auto kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const auto kWirelessEnabled = QStringLiteral("WirelessEnabled");
const auto kNotAllowed = QStringLiteral("org.freedesktop.NetworkManager.Device.NotAllowed");
const auto kNoOwner = QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");

// Of NMDeviceState; in the states above them a device can scan.
constexpr uint kStateUnmanaged = 10;
constexpr uint kStateUnavailable = 20;

constexpr BootTime kMillisecond = 1'000'000;
// NetworkManager's shortest time between two scans.
constexpr BootTime kRateLimit = 10'000 * kMillisecond;
constexpr double kLongestWait = 20; // seconds; a scan can be put off by the rate limit
constexpr double kStep = 0.25;

bool isError(const QDBusMessage& reply)
{
    return reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty();
}

QVariant valueOf(const QDBusMessage& reply)
{
    return reply.arguments().constFirst().value<QDBusVariant>().variant();
}

QString reasonOf(const QDBusMessage& reply)
{
    QString notRunning = localized("NetworkManager is not running");
    if (reply.errorName() == kNoOwner) // what a call that must not start the daemon gets
        return notRunning;
    switch (QDBusError(reply).type()) {
    case QDBusError::ServiceUnknown:
        return notRunning;
    case QDBusError::Disconnected:
        return localized("there is no system bus to reach NetworkManager by");
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return localized("NetworkManager does not answer");
    default:
        return localized("NetworkManager refuses: %1")
            .arg(reply.errorMessage().isEmpty() ? reply.errorName() : reply.errorMessage());
    }
}

} // namespace

NetworkManagerClient::NetworkManagerClient(QDBusConnection bus, int answerTimeout)
    : m_bus(std::move(bus))
    , m_answerTimeout(answerTimeout)
{
    qDBusRegisterMetaType<QByteArrayList>(); // the names of a directed scan
}

QDBusMessage NetworkManagerClient::call(const QString& path, const QString& interface,
                                        const QString& method, const QVariantList& arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(kService, path, interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return m_bus.call(message, QDBus::Block, m_answerTimeout);
}

QDBusMessage NetworkManagerClient::property(const QString& path, const QString& interface,
                                            const QString& name) const
{
    return call(path, kProperties, QStringLiteral("Get"), {interface, name});
}

NetworkManagerClient::Device NetworkManagerClient::findDevice(const QString& interfaceName) const
{
    const QDBusMessage found =
        call(kManagerPath, kManager, QStringLiteral("GetDeviceByIpIface"), {interfaceName});
    if (isError(found))
        return {{}, reasonOf(found)};
    const QString path = found.arguments().constFirst().value<QDBusObjectPath>().path();
    const QDBusMessage state = property(path, kDevice, QStringLiteral("State"));
    if (isError(state))
        return {path, reasonOf(state)};
    const uint code = valueOf(state).toUInt();
    if (code <= kStateUnmanaged)
        return {path, localized("NetworkManager does not manage %1").arg(interfaceName)};
    if (code <= kStateUnavailable)
        return {path, localized("NetworkManager cannot use %1 now").arg(interfaceName), true};
    return {path, std::nullopt, true};
}

std::optional<BootTime> NetworkManagerClient::lastScan(const QString& device) const
{
    const QDBusMessage reply = property(device, kWireless, QStringLiteral("LastScan"));
    if (isError(reply))
        return std::nullopt;
    // -1 before the first scan; and no number of milliseconds is to overflow.
    constexpr BootTime kLatest = std::numeric_limits<BootTime>::max() / kMillisecond;
    return std::clamp<BootTime>(valueOf(reply).toLongLong(), 0, kLatest) * kMillisecond;
}

NetworkManagerScan NetworkManagerClient::scan(const QString& interfaceName,
                                              const std::optional<QByteArray>& ssid,
                                              Pause& pause) const
{
    using End = NetworkManagerScan::End;
    const auto [path, obstacle, isManaged] = findDevice(interfaceName);
    if (obstacle)
        return {End::kUnavailable, *obstacle};
    const auto before = lastScan(path);
    QVariantMap options;
    if (ssid)
        options.insert(QStringLiteral("ssids"), QVariant::fromValue(QByteArrayList{*ssid}));
    const QDBusMessage reply = call(path, kWireless, QStringLiteral("RequestScan"), {options});
    if (reply.type() == QDBusMessage::ErrorMessage) {
        if (reply.errorName() != kNotAllowed || !before)
            return {End::kUnavailable, reasonOf(reply)};
        if (*before != 0 && bootTimeNow() - *before < kRateLimit)
            return {End::kFinished, {}, *before};
        // Refused for a scan that is under way: its end is the next one.
    }
    for (int step = 0; step < kLongestWait / kStep; ++step) {
        if (!pause.sleep(kStep))
            return {End::kShutDown, {}};
        const auto current = lastScan(path);
        if (!current)
            return {End::kUnavailable, localized("NetworkManager went away during the scan")};
        if (current != before)
            return {End::kFinished, {}, *current};
    }
    return {End::kTimedOut, {}, bootTimeNow()};
}

std::optional<bool> NetworkManagerClient::wirelessEnabled() const
{
    const QDBusMessage reply = property(kManagerPath, kManager, kWirelessEnabled);
    return isError(reply) ? std::nullopt : std::optional(valueOf(reply).toBool());
}

std::optional<QString> NetworkManagerClient::setWirelessEnabled(bool enabled) const
{
    const QDBusMessage reply =
        call(kManagerPath, kProperties, QStringLiteral("Set"),
             {kManager, kWirelessEnabled, QVariant::fromValue(QDBusVariant(enabled))});
    return reply.type() == QDBusMessage::ErrorMessage ? std::optional(reasonOf(reply))
                                                      : std::nullopt;
}

} // namespace tessara
