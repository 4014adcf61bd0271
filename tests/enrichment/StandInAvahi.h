#pragma once

#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QStringList>

#include <optional>

namespace tessara {

/// Plays the Avahi daemon on a bus. What it finds and how it answers is the test's to say.
class StandInAvahi final : public QDBusVirtualObject {
public:
    explicit StandInAvahi(QDBusConnection bus);
    ~StandInAvahi() override;

    /// Sends a signal of the newest browser.
    void find(const QString& name) { find(m_bus, name); }
    /// The same as somebody else on the bus.
    void find(QDBusConnection sender, const QString& name) const;
    void send(const QString& member, const QVariantList& arguments = {}) const;

    bool refusesToSearch = false;
    QVariantList txt{QVariant::fromValue(QByteArrayList())}; ///< what it sends where TXT is told
    bool resolves = true;
    int started = 0; ///< browsers, over time
    int freed = 0;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    QString path() const;

    QDBusConnection m_bus;
    int m_prepared = 0;
};

} // namespace tessara
