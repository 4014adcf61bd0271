#pragma once

#include "enrichment/NetServices.h"

#include <utility>
#include <vector>

namespace tessara {

/// Services that a test announces, and answers for.
class FakeNetServices final : public NetServices {
public:
    void setDelegate(NetServicesDelegate* delegate) override { m_delegate = delegate; }

    void searchForServices(const QString& type, const QString& domain) override
    {
        ++searches;
        searchedFor = type + domain;
        isSearching = true;
    }
    void stop() override
    {
        if (std::exchange(isSearching, false))
            m_delegate->netServiceBrowserDidStopSearch();
    }
    void resolve(const NetService& service, double seconds) override
    {
        resolving.push_back(service);
        timeout = seconds;
    }

    void find(const QString& name, bool moreComing)
    {
        m_delegate->netServiceBrowserDidFindService(
            {1, name, QStringLiteral("_airport._tcp"), QStringLiteral("local")}, moreComing);
    }
    /// The first of those that are asked answers.
    void answer(const QByteArrayList& txt)
    {
        m_delegate->netServiceDidResolveAddress(takeFirst(), txt);
    }
    void dontAnswer() { m_delegate->netServiceDidNotResolve(takeFirst()); }

    int searches = 0;
    QString searchedFor;
    bool isSearching = false;
    std::vector<NetService> resolving;
    double timeout = 0;

private:
    NetService takeFirst()
    {
        NetService service = resolving.at(0);
        resolving.erase(resolving.begin());
        return service;
    }

    NetServicesDelegate* m_delegate = nullptr;
};

} // namespace tessara
