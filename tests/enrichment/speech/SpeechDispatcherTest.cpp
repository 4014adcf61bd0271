#include "enrichment/SpokenReports.h"
#include "enrichment/TextToSpeechVoice.h"
#include "foundation/Defaults.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

/// A speech dispatcher of the test's own.
class SpeechDispatcherTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(QStringLiteral("speech-dispatcher")).isEmpty() ||
            !QFile::exists(QStringLiteral("/usr/lib/speech-dispatcher-modules/sd_espeak-ng")))
            GTEST_SKIP() << "there is no speech engine here (packages speech-dispatcher, "
                            "speech-dispatcher-espeak-ng)";
        write("speechd.conf", "LogLevel 5\n"
                              "AudioOutputMethod \"libao\"\n"
                              "AddModule \"espeak-ng\" \"sd_espeak-ng\" \"\"\n"
                              "DefaultModule espeak-ng\n");
        write(".libao", "default_driver=null\n");
        qputenv("HOME", folder.path().toLocal8Bit());
        const QString socket = folder.filePath(QStringLiteral("socket"));
        qputenv("SPEECHD_ADDRESS", "unix_socket:" + socket.toLocal8Bit());
        dispatcher.start(QStringLiteral("speech-dispatcher"),
                         {QStringLiteral("--run-single"), QStringLiteral("--config-dir"),
                          folder.path(), QStringLiteral("--log-dir"), folder.path(),
                          QStringLiteral("--socket-path"), socket, QStringLiteral("--pid-file"),
                          folder.filePath(QStringLiteral("pid"))});
        ASSERT_TRUE(eventually([&] { return QFile::exists(socket); }));
    }
    void TearDown() override
    {
        dispatcher.terminate();
        dispatcher.waitForFinished();
    }

    static bool eventually(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, 20'000);
    }

    void write(const char* name, const QByteArray& text) const
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    /// What the dispatcher and its module have noted.
    QByteArray log() const
    {
        QByteArray all;
        for (const QString& name : QDir(folder.path()).entryList({QStringLiteral("*.log")})) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                all += file.readAll();
        }
        return all;
    }

    QTemporaryDir folder;
    QProcess dispatcher;
    TextToSpeechVoice voice;
};

} // namespace

TEST_F(SpeechDispatcherTest, SaysReports)
{
    ScanDictionary dictionary;
    dictionary.ssid = QStringLiteral("Büro");
    dictionary.channelNumber = 149;
    const auto network = std::make_shared<TSNetwork>(dictionary, 0);
    network->addDataPoint({-67, -92, -1, -1, 0});
    Defaults::standard().setValue(DefaultKey::SpeakOn, true);
    Defaults::standard().setValue(DefaultKey::Units, 1);
    ManualClock clock;
    SpokenReports reports(voice, clock, [] { return true; });
    reports.setSelectedNetwork(network);

    reports.speak(network);
    EXPECT_TRUE(voice.isSpeaking());
    EXPECT_TRUE(eventually([&] { return !voice.isSpeaking(); })) << "it comes to an end";
    EXPECT_TRUE(log().contains("Büro , channel 1 49, neg 67"));

    network->addDataPoint({-70, -92, -1, -1, 1});
    reports.speak(network);
    EXPECT_TRUE(eventually([&] { return !voice.isSpeaking(); }));
    EXPECT_TRUE(log().contains("neg 70"));
}

TEST_F(SpeechDispatcherTest, StopsWhenItIsTold)
{
    voice.startSpeakingString(QStringLiteral("one, two, three, ").repeated(200));
    EXPECT_TRUE(voice.isSpeaking());
    voice.stopSpeaking();
    EXPECT_FALSE(voice.isSpeaking());
    QSignalSpy speaks(&voice, &Voice::speakingDidChange);
    voice.startSpeakingString(QStringLiteral("Hello"));
    EXPECT_TRUE(eventually([&] { return !voice.isSpeaking(); }));
}
