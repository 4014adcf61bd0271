#include "foundation/Clock.h"

#include <QDateTime>
#include <QTimer>

#include <chrono>
#include <cmath>
#include <condition_variable>
#include <mutex>

namespace tessara {

namespace {

class EventLoopTimer final : public RepeatingTimer {
public:
    EventLoopTimer(double interval, std::function<void()> action)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, std::move(action));
        m_timer.start(std::chrono::milliseconds(std::llround(interval * 1000)));
    }

private:
    QTimer m_timer;
};

} // namespace

double SystemClock::now() const
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

std::unique_ptr<RepeatingTimer> SystemClock::repeat(double interval, std::function<void()> action)
{
    return std::make_unique<EventLoopTimer>(interval, std::move(action));
}

SystemPause::SystemPause(std::stop_token shutdown)
    : m_shutdown(std::move(shutdown))
{
}

bool SystemPause::sleep(double seconds)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any wakeUp;
    wakeUp.wait_for(lock, m_shutdown, std::chrono::duration<double>(seconds), [] { return false; });
    return !m_shutdown.stop_requested();
}

} // namespace tessara
