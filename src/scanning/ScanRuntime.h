#pragma once

#include "foundation/Clock.h"
#include "foundation/NotificationCenter.h"
#include "foundation/WorkerThreads.h"
#include "scanning/TSActiveScanEngine.h"

#include <stop_token>

namespace tessara {

/// Real time and real threads for scanning, for as long as a program runs. When it goes, sleeping
/// engines wake up and end, and it waits for them: what they use must outlive it.
class ScanRuntime {
public:
    ScanRuntime() = default;
    ~ScanRuntime() { m_shutdown.request_stop(); }
    ScanRuntime(const ScanRuntime&) = delete;
    ScanRuntime& operator=(const ScanRuntime&) = delete;

    NotificationCenter& notifications() { return m_notifications; }
    Clock& clock() { return m_clock; }
    Pause& pause() { return m_pause; }
    EngineServices engineServices()
    {
        return {m_clock, m_pause, m_notifications,
                [this](std::function<void()> body) { m_threads.start(std::move(body)); }};
    }

private:
    std::stop_source m_shutdown;
    NotificationCenter m_notifications;
    SystemClock m_clock;
    SystemPause m_pause{m_shutdown.get_token()};
    WorkerThreads m_threads; // last: joined while all of the above still stands
};

} // namespace tessara
