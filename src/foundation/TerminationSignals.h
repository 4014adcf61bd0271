#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace tessara {

/// Turns the signals by which a user or the system asks a program to end (SIGINT, SIGTERM, SIGHUP)
/// into a call from the event loop, for as long as this lives. To be made before the program's
/// other threads, which would take the signals otherwise. One at a time.
class TerminationSignals {
public:
    /// Holds the signals back from this thread and those that it starts: for a main() whose
    /// application object starts threads, before there can be an object of this class.
    static void block();
    /// Undoes that for this thread: a signal ends the program at once.
    static void unblock();

    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace tessara
