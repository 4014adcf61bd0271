#pragma once

#include "enrichment/NetServices.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <optional>

namespace tessara {

/// The services that the Avahi daemon sees, by way of the system bus. The daemon is never started
/// by a call. While there is none, which is logged once, a search waits for it to come.
class AvahiServices final : public QObject, public NetServices {
    Q_OBJECT

public:
    explicit AvahiServices(QDBusConnection bus);

    void setDelegate(NetServicesDelegate* delegate) override { m_delegate = delegate; }
    void searchForServices(const QString& type, const QString& domain) override;
    void stop() override;
    void resolve(const NetService& service, double timeout) override;

private Q_SLOTS:
    void handleBrowserSignal(const QDBusMessage& signal);

private:
    /// What was asked for, as long as it goes on.
    struct Search {
        QString type;
        QString domain;
        std::optional<NetService> latest = {}; ///< held back: does another one follow?
        bool hasAllForNow = false;             ///< what comes from here on is new to the network
    };
    /// The daemon's object for a search.
    struct Browser {
        QString owner; ///< the daemon's unique name on the bus
        QString path;
        bool operator==(const Browser&) const = default;
    };
    using Answer = std::function<void(const QDBusMessage& reply)>;

    void call(const QString& path, const QString& interface, const QString& method,
              const QVariantList& arguments, int timeout, const Answer& answer);
    void ownerDidChange(const QString& newOwner);
    void prepareBrowser();
    void startBrowser(const Browser& browser);
    void freeBrowser(const std::optional<Browser>& browser) const;
    void searchDidFail(const QDBusMessage& message);
    void complainOnce(const QString& message);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    NetServicesDelegate* m_delegate = nullptr;
    std::optional<Search> m_search;
    std::optional<Browser> m_browser;
    int m_preparations = 0; ///< the answer to the last one counts
    QString m_complaint;    ///< the last one, which is not repeated
};

} // namespace tessara
