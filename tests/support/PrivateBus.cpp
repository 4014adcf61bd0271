#include "support/PrivateBus.h"

namespace tessara {

PrivateBus::PrivateBus()
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address"),
                    QStringLiteral("--address=unix:tmpdir=/tmp")});
    if (m_daemon.waitForReadyRead(10000))
        m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus()
{
    for (const QString& name : m_names)
        QDBusConnection::disconnectFromBus(name);
    stop();
}

void PrivateBus::stop()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection()
{
    static int count = 0;
    m_names.append(QStringLiteral("private-%1").arg(++count));
    return QDBusConnection::connectToBus(m_address, m_names.last());
}

} // namespace tessara
