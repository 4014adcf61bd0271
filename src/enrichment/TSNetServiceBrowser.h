#pragma once

#include "enrichment/NetServices.h"
#include "foundation/Clock.h"
#include "foundation/Directories.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <deque>
#include <memory>
#include <mutex>

namespace tessara {

/// Knows access points by the names that they announce on the local network. It searches for as
/// long as the program runs; nothing waits for it and nothing needs its table to be complete.
///
/// Belongs to the main thread, but for `deviceNameFor`, which any thread may call.
class TSNetServiceBrowser final : public QObject,
                                  public DeviceNameDirectory,
                                  private NetServicesDelegate {
    Q_OBJECT

public:
    /// The one that the whole program shares, on the services of this machine.
    static TSNetServiceBrowser& sharedBrowser();

    /// Both must outlive the browser.
    TSNetServiceBrowser(NetServices& browser, Clock& clock);

    /// Starts a search. When it is over, another one follows after a pause, for good.
    void searchServices();

    /// @param bssid the key as a device sends it: an address in other letters is another one
    std::optional<QString> deviceNameFor(const QString& bssid) const override;

Q_SIGNALS:
    /// A search is over and all that it found has told its addresses, or will not.
    void didLookUpServices();

private:
    void netServiceBrowserDidFindService(const NetService& service, bool moreComing) override;
    void netServiceBrowserDidStopSearch() override;
    void netServiceDidResolveAddress(const NetService& service, const QByteArrayList& txt) override;
    void netServiceDidNotResolve(const NetService& service) override;

    void resolveLater(const NetService& service);
    void resolveNext();
    void removeService(const NetService& service);
    void setStations(const QStringList& addresses, const QString& name);

    NetServices& m_browser;
    Clock& m_clock;
    QSet<NetService> m_services;      ///< found and not resolved yet
    std::deque<NetService> m_waiting; ///< those of them that nobody has asked yet
    bool m_isSearching = false;
    double m_searchInterval = 2.0;                ///< seconds; doubled before each pause
    std::unique_ptr<RepeatingTimer> m_nextSearch; ///< until its first call

    mutable std::mutex m_mutex;
    QHash<QString, QString> m_stations; ///< device names by address; guarded
};

} // namespace tessara
