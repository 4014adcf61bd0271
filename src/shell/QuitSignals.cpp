#include "shell/QuitSignals.h"

#include <csignal>
#include <initializer_list>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tessara {

namespace {

constexpr std::initializer_list<int> kSignals = {SIGINT, SIGTERM, SIGHUP};

// What a signal handler may touch: the descriptor of an event counter.
int eventDescriptor()
{
    static const int descriptor = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return descriptor;
}

void handle(int)
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = write(eventDescriptor(), &one, sizeof one);
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    for (const int signal : kSignals)
        sigaction(signal, &action, nullptr);
}

} // namespace

QuitSignals::QuitSignals()
    : m_notifier(eventDescriptor(), QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        [[maybe_unused]] const auto got = read(eventDescriptor(), &count, sizeof count);
        Q_EMIT quitRequested();
    });
    setHandler(handle);
}

QuitSignals::~QuitSignals()
{
    setHandler(SIG_DFL);
}

} // namespace tessara
