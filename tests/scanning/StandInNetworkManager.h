#pragma once

#include "support/PrivateBus.h"

#include <QByteArrayList>
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QThread>

#include <functional>
#include <mutex>
#include <optional>

namespace tessara {

/// Plays NetworkManager with one Wi-Fi device, wlan0, on a bus and on a thread of its own. How it
/// answers a request to scan is the test's to say.
class StandInNetworkManager final : public QDBusVirtualObject {
public:
    enum class Answer { kAccept, kRateLimited, kDenied, kNever };

    explicit StandInNetworkManager(QDBusConnection bus);
    ~StandInNetworkManager() override;

    /// What it is and was asked for. Guarded, since it answers on another thread.
    struct State {
        Answer answer = Answer::kAccept;
        std::uint32_t deviceState = 100;
        std::int64_t lastScan = -1; ///< ms of CLOCK_BOOTTIME
        std::optional<bool> wirelessEnabled = true;
        int requests = 0;
        QByteArrayList ssids;
    };
    State state() const;
    void change(const std::function<void(State&)>& change);

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    QDBusMessage answerProperties(const QDBusMessage& message, State& state) const;

    mutable std::mutex m_mutex;
    State m_state;
    QDBusConnection m_bus;
    QThread m_thread;
};

} // namespace tessara
