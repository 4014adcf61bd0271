#pragma once

#include <QByteArrayList>
#include <QHashFunctions>
#include <QString>

namespace tessara {

/// A service that some device announces on the local network (DNS-SD, RFC 6763).
struct NetService {
    int interface; ///< the kernel's index of the network interface that it was found at
    QString name;
    QString type;   ///< "_http._tcp"
    QString domain; ///< "local"

    bool operator==(const NetService&) const = default;
};

inline std::size_t qHash(const NetService& service, std::size_t seed = 0)
{
    return qHashMulti(seed, service.interface, service.name, service.type, service.domain);
}

/// Is told what a search finds.
class NetServicesDelegate {
public:
    virtual ~NetServicesDelegate() = default;

    /// @param moreComing others are known to follow at once
    virtual void netServiceBrowserDidFindService(const NetService& service, bool moreComing) = 0;
    /// The search is over, because it was stopped or since it failed.
    virtual void netServiceBrowserDidStopSearch() = 0;
    /// @param txt the strings of the service's TXT record, as the device sent them
    virtual void netServiceDidResolveAddress(const NetService& service,
                                             const QByteArrayList& txt) = 0;
    virtual void netServiceDidNotResolve(const NetService& service) = 0;
};

/// The machine's view of the services around it. It answers its delegate later, on the thread
/// that it was made on; where there is nobody to ask, a search goes on and finds nothing.
class NetServices {
public:
    virtual ~NetServices() = default;

    /// Must be set before anything is asked for; must outlive this.
    virtual void setDelegate(NetServicesDelegate* delegate) = 0;

    /// Searches until `stop`, in place of a search under way.
    virtual void searchForServices(const QString& type, const QString& domain) = 0;
    virtual void stop() = 0;
    /// Asks a service for its TXT record.
    /// @param timeout seconds after which the service counts as not resolved
    virtual void resolve(const NetService& service, double timeout) = 0;
};

} // namespace tessara
