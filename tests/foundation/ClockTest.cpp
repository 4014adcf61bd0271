#include "foundation/Clock.h"
#include "foundation/TerminationSignals.h"
#include "foundation/WorkerThreads.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>

using namespace tessara;

TEST(SystemPause, WakesUpWhenTheProgramShutsDown)
{
    std::stop_source shutdown;
    SystemPause pause(shutdown.get_token());
    std::atomic<bool> goesOn = true;
    {
        WorkerThreads threads;
        threads.start([&] { goesOn = pause.sleep(3600); });
        shutdown.request_stop();
    } // hangs here if it does not wake up
    EXPECT_FALSE(goesOn);
    EXPECT_FALSE(pause.sleep(3600)) << "and nobody falls asleep any more";
}

TEST(SystemClock, CallsATimerUntilItIsDestroyed)
{
    SystemClock clock;
    QEventLoop loop;
    int calls = 0;
    auto timer = clock.repeat(0.001, [&] {
        if (++calls == 3)
            loop.quit();
    });
    loop.exec();
    timer.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 3);
}

TEST(TerminationSignals, BecomeACallFromTheEventLoop)
{
    QEventLoop loop;
    int calls = 0;
    {
        const TerminationSignals signalsOfTheUser([&] {
            ++calls;
            loop.quit();
        });
        ::raise(SIGTERM);
        EXPECT_EQ(calls, 0) << "not from the signal's own context";
        loop.exec();
    }
    EXPECT_EQ(calls, 1);
}
