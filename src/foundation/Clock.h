#pragma once

#include <functional>
#include <memory>
#include <stop_token>

namespace tessara {

/// Fires until it is destroyed.
class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
};

/// Time as the program sees it. Everything asks a Clock, so that tests move time by hand.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since 1970-01-01 00:00 UTC, milliseconds kept.
    virtual double now() const = 0;

    /// Calls `action` every `interval` seconds from the calling thread's event loop, first one
    /// interval from now, until the timer is destroyed.
    virtual std::unique_ptr<RepeatingTimer> repeat(double interval,
                                                   std::function<void()> action) = 0;
};

/// The machine's clock and the event loop's timers.
class SystemClock final : public Clock {
public:
    double now() const override;
    std::unique_ptr<RepeatingTimer> repeat(double interval, std::function<void()> action) override;
};

/// Sleeping, for threads that have nothing better to do. Safe to use from several threads.
class Pause {
public:
    virtual ~Pause() = default;

    /// Blocks the calling thread for `seconds`. False, and at once, when the program is shutting
    /// down: the caller then ends its work.
    virtual bool sleep(double seconds) = 0;
};

/// Sleeps for real, until a stop is requested through the token.
class SystemPause final : public Pause {
public:
    explicit SystemPause(std::stop_token shutdown);
    bool sleep(double seconds) override;

private:
    std::stop_token m_shutdown;
};

} // namespace tessara
