#pragma once

#include "foundation/Clock.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace tessara {

/// Time that a test moves by hand. Timers fire while it moves, each at its own time.
class ManualClock final : public Clock {
public:
    explicit ManualClock(double start = 1'700'000'000.0)
        : m_now(start)
    {
    }

    double now() const override { return m_now; }

    std::unique_ptr<RepeatingTimer> repeat(double interval, std::function<void()> action) override
    {
        auto schedule = std::make_shared<Schedule>(m_now + interval, interval, std::move(action));
        m_schedules.push_back(schedule);
        return std::make_unique<Handle>(std::move(schedule));
    }

    /// Moves time forward, firing what falls due on the way.
    void advance(double seconds)
    {
        const double end = m_now + seconds;
        while (const auto next = nextDue(end)) {
            m_now = next->due;
            next->due += next->interval;
            next->action();
        }
        m_now = end;
    }

    /// Timers that have not been destroyed.
    std::size_t activeTimers()
    {
        std::erase_if(m_schedules, [](const auto& schedule) { return schedule.expired(); });
        return m_schedules.size();
    }

private:
    struct Schedule {
        Schedule(double d, double i, std::function<void()> a)
            : due(d)
            , interval(i)
            , action(std::move(a))
        {
        }
        double due;
        double interval;
        std::function<void()> action;
    };
    struct Handle final : RepeatingTimer {
        explicit Handle(std::shared_ptr<Schedule> s)
            : schedule(std::move(s))
        {
        }
        std::shared_ptr<Schedule> schedule;
    };

    std::shared_ptr<Schedule> nextDue(double end)
    {
        std::shared_ptr<Schedule> next;
        for (const auto& candidate : m_schedules) {
            const auto schedule = candidate.lock();
            if (schedule && schedule->due <= end && (!next || schedule->due < next->due))
                next = schedule;
        }
        return next;
    }

    double m_now;
    std::vector<std::weak_ptr<Schedule>> m_schedules;
};

/// Sleeps by moving a manual clock, and remembers each sleep.
class ManualPause final : public Pause {
public:
    explicit ManualPause(ManualClock& clock)
        : m_clock(clock)
    {
    }

    bool sleep(double seconds) override
    {
        sleeps.push_back(seconds);
        m_clock.advance(seconds);
        if (onSleep)
            onSleep(seconds);
        return !shutDown;
    }

    std::vector<double> sleeps;          ///< seconds, oldest first
    std::function<void(double)> onSleep; ///< what happens elsewhere in the meantime
    bool shutDown = false;               ///< the program ends: sleeping returns false

private:
    ManualClock& m_clock;
};

} // namespace tessara
