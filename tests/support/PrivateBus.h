#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

namespace tessara {

/// A message bus of the test's own.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QString address() const { return m_address; }
    /// A connection of its own to the bus; closed by the destructor.
    QDBusConnection connection();
    /// Ends the bus under those connected to it.
    void stop();

private:
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

} // namespace tessara
