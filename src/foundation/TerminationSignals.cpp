#include "foundation/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace tessara {

namespace {

sigset_t terminationSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&set, signal);
    return set;
}

} // namespace

void TerminationSignals::block()
{
    // A program that is started from here takes its signals as any other does.
    [[maybe_unused]] static const int registered = ::pthread_atfork(nullptr, nullptr, unblock);
    const sigset_t set = terminationSignals();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
}

void TerminationSignals::unblock()
{
    const sigset_t set = terminationSignals();
    ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
}

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
{
    // Blocked here, and in the threads that are started from now on: read from the descriptor.
    block();
    const sigset_t set = terminationSignals();
    const int descriptor = ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
    m_notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated,
                     [descriptor, action = std::move(onSignal)] {
                         signalfd_siginfo info{};
                         if (::read(descriptor, &info, sizeof info) == sizeof info)
                             action();
                     });
}

TerminationSignals::~TerminationSignals()
{
    const int descriptor = static_cast<int>(m_notifier->socket());
    m_notifier.reset();
    ::close(descriptor);
    unblock();
}

} // namespace tessara
