#include "scanning/StandInNetworkManager.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace tessara {

namespace {

const auto kDevicePath = QStringLiteral("/org/freedesktop/NetworkManager/Devices/3");

QDBusMessage variantReply(const QDBusMessage& message, const QVariant& value)
{
    return message.createReply(QVariant::fromValue(QDBusVariant(value)));
}

} // namespace

StandInNetworkManager::StandInNetworkManager(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    moveToThread(&m_thread);
    m_thread.start();
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/NetworkManager"), this,
                                        QDBusConnection::SubPath);
            m_bus.registerService(QStringLiteral("org.freedesktop.NetworkManager"));
        },
        Qt::BlockingQueuedConnection);
}

StandInNetworkManager::~StandInNetworkManager()
{
    m_thread.quit();
    m_thread.wait();
}

StandInNetworkManager::State StandInNetworkManager::state() const
{
    const std::scoped_lock lock(m_mutex);
    return m_state;
}

void StandInNetworkManager::change(const std::function<void(State&)>& change)
{
    const std::scoped_lock lock(m_mutex);
    change(m_state);
}

bool StandInNetworkManager::handleMessage(const QDBusMessage& message, const QDBusConnection& bus)
{
    const std::scoped_lock lock(m_mutex);
    const QString method = message.member();
    if (method == QLatin1String("GetDeviceByIpIface")) {
        bus.send(message.arguments().value(0).toString() == QLatin1String("wlan0")
                     ? message.createReply(QVariant::fromValue(QDBusObjectPath(kDevicePath)))
                     : message.createErrorReply(
                           QStringLiteral("org.freedesktop.NetworkManager.UnknownDevice"),
                           QStringLiteral("No device found for the requested iface.")));
        return true;
    }
    if (message.interface() == QLatin1String("org.freedesktop.DBus.Properties")) {
        bus.send(answerProperties(message, m_state));
        return true;
    }
    if (method != QLatin1String("RequestScan") || message.path() != kDevicePath)
        return false;
    ++m_state.requests;
    const auto options = qdbus_cast<QVariantMap>(message.arguments().value(0));
    m_state.ssids = qdbus_cast<QByteArrayList>(options.value(QStringLiteral("ssids")));
    switch (m_state.answer) {
    case Answer::kAccept:
        bus.send(message.createReply());
        break;
    case Answer::kRateLimited:
        bus.send(message.createErrorReply(
            QStringLiteral("org.freedesktop.NetworkManager.Device.NotAllowed"),
            QStringLiteral("Scanning not allowed immediately following previous scan")));
        break;
    case Answer::kDenied:
        bus.send(message.createErrorReply(
            QStringLiteral("org.freedesktop.NetworkManager.PermissionDenied"),
            QStringLiteral("Not authorized to control networking")));
        break;
    case Answer::kNever:
        break;
    }
    return true;
}

QDBusMessage StandInNetworkManager::answerProperties(const QDBusMessage& message,
                                                     State& state) const
{
    const QString name = message.arguments().value(1).toString();
    if (message.member() == QLatin1String("Set")) {
        if (!state.wirelessEnabled)
            return message.createErrorReply(
                QStringLiteral("org.freedesktop.NetworkManager.PermissionDenied"),
                QStringLiteral("Not authorized"));
        state.wirelessEnabled =
            message.arguments().value(2).value<QDBusVariant>().variant().toBool();
        return message.createReply();
    }
    if (name == QLatin1String("State"))
        return variantReply(message, state.deviceState);
    if (name == QLatin1String("LastScan"))
        return variantReply(message, qlonglong{state.lastScan});
    return variantReply(message, state.wirelessEnabled.value_or(false));
}

} // namespace tessara
