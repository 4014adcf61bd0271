#include "enrichment/StandInAvahi.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace tessara {

namespace {

const auto kService = QStringLiteral("org.freedesktop.Avahi");
const auto kBrowser = QStringLiteral("org.freedesktop.Avahi.ServiceBrowser");

} // namespace

StandInAvahi::StandInAvahi(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    qDBusRegisterMetaType<QByteArrayList>();
    m_bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
    m_bus.registerService(kService);
}

StandInAvahi::~StandInAvahi()
{
    m_bus.unregisterService(kService);
    m_bus.unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
}

QString StandInAvahi::path() const
{
    return QStringLiteral("/Client1/ServiceBrowser%1").arg(m_prepared);
}

void StandInAvahi::find(QDBusConnection sender, const QString& name) const
{
    QDBusMessage signal = QDBusMessage::createSignal(path(), kBrowser, QStringLiteral("ItemNew"));
    signal << 2 << 0 << name << QStringLiteral("_airport._tcp") << QStringLiteral("local") << 4U;
    sender.send(signal);
}

void StandInAvahi::send(const QString& member, const QVariantList& arguments) const
{
    QDBusMessage signal = QDBusMessage::createSignal(path(), kBrowser, member);
    signal.setArguments(arguments);
    m_bus.send(signal);
}

bool StandInAvahi::handleMessage(const QDBusMessage& message, const QDBusConnection& bus)
{
    const QString method = message.member();
    if (method == QLatin1String("ServiceBrowserPrepare")) {
        ++m_prepared;
        bus.send(refusesToSearch
                     ? message.createErrorReply(
                           QStringLiteral("org.freedesktop.Avahi.TooManyObjectsError"),
                           QStringLiteral("Too many objects"))
                     : message.createReply(QVariant::fromValue(QDBusObjectPath(path()))));
    } else if (method == QLatin1String("Start")) {
        ++started;
        bus.send(message.createReply());
    } else if (method == QLatin1String("Free")) {
        ++freed;
    } else if (method == QLatin1String("ResolveService") && resolves) {
        QVariantList reply{2,
                           0,
                           message.arguments().value(2),
                           QStringLiteral("_airport._tcp"),
                           QStringLiteral("local"),
                           QStringLiteral("a.local"),
                           -1,
                           QString(),
                           QVariant::fromValue(ushort{5009})};
        reply += txt;
        reply += 13U;
        bus.send(message.createReply(reply));
    }
    return true;
}

} // namespace tessara
