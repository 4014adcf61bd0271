#include "enrichment/TextToSpeechVoice.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessara;

TEST(TextToSpeechVoice, IsSilentWithoutAnEngineAndSaysSoOnce)
{
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({}); // where engines lie
    TextToSpeechVoice voice;
    testing::internal::CaptureStderr();
    for (int i = 0; i < 2; ++i) {
        voice.stopSpeaking();
        voice.startSpeakingString(QStringLiteral("Hello"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !voice.isSpeaking(); }, 10'000));
    }
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(log, '\n'), 1) << log;
    QCoreApplication::setLibraryPaths(paths);
}
