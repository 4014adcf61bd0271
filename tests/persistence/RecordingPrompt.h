#pragma once

#include "foundation/UserPrompt.h"

#include <QTest>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tessara {

/// Notes what a user would see, in the order of events.
struct RecordingPrompt final : UserPrompt {
    AlertId beginAlert(const TSAlert& alert, Answer) override
    {
        seen.push_back((alert.messageText + u' ' + alert.informativeText).toStdString());
        return 0;
    }
    void endAlert(AlertId) override {}
    ProgressId beginProgress(const QString& message) override
    {
        seen.push_back(message.toStdString());
        return ++running;
    }
    void endProgress(ProgressId) override { --running; }

    /// Waits for the work on another thread. @return what was seen since the last time
    std::vector<std::string> finished()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return running == 0; }, 30'000));
        return std::exchange(seen, {});
    }

    std::vector<std::string> seen;
    int running = 0;
};

} // namespace tessara
