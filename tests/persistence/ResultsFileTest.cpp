#include "persistence/ResultsFile.h"

#include "persistence/TestResults.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

using namespace tessara;

namespace {

class ResultsFileTest : public testing::Test {
protected:
    std::optional<SavedResults> read() const
    {
        ResultsFileError error;
        auto results = readResultsFile(path, 1'700'000'100, kGoOn, error);
        EXPECT_TRUE(results) << qPrintable(error.system + error.format);
        return results;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("a.tessara"));
};

/// Saves in a process that may write no more than so many bytes to a file, as on a full disk.
/// @return whether the save failed, with a reason
bool failsWithinBytes(const QString& path, const ResultsSnapshot& results, rlim_t bytes)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
        QString error;
        const bool isSaved = writeResultsFile(path, results, kGoOn, error);
        _exit(!isSaved && !error.isEmpty() && !error.contains(u'\n') ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

TEST_F(ResultsFileTest, RestoresRecordsWithTheirStatistics)
{
    const NetworkList networks = scannedNetworks(1, TSNetwork::kMaxDataPoints + 10);
    const TSNetwork& saved = *networks[0];
    QString error;
    ASSERT_TRUE(writeResultsFile(path, ResultsSnapshot::of(networks, 5), kGoOn, error));
    const auto results = read();
    ASSERT_EQ(results->networks.size(), 1U);
    const TSNetwork& record = *results->networks[0];
    EXPECT_EQ(results->lastScanTime, 5);
    EXPECT_EQ(record.network(), saved.network());
    EXPECT_EQ(record.dataPoints(), saved.dataPoints());
    EXPECT_EQ(record.color(), saved.color());
    EXPECT_EQ(record.rssiLast(), saved.rssiLast());
    EXPECT_EQ(record.lastSeenElapsedSeconds(), 100);
    EXPECT_EQ(record.rssi(), saved.rssiLast()) << "a record of a file, though seen long ago";
    // Samples that had left the history are no longer part of the statistics.
    EXPECT_EQ(record.rssiStatistic().count, static_cast<std::int64_t>(TSNetwork::kMaxDataPoints));
}

TEST_F(ResultsFileTest, KeepsTheOldFileWhereTheDiskIsFull)
{
    QString error;
    const auto old = ResultsSnapshot::of(scannedNetworks(3), 1);
    const auto large = ResultsSnapshot::of(scannedNetworks(50, 300), 2);
    ASSERT_TRUE(writeResultsFile(path, old, kGoOn, error));
    // Too little for anything, for the objects, and for the table behind them.
    for (const rlim_t bytes : {0U, 1'000U, 300'000U, 1'000'000U}) {
        EXPECT_TRUE(failsWithinBytes(path, large, bytes)) << bytes;
        EXPECT_EQ(read()->lastScanTime, 1);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing is left behind";
    }
}

TEST_F(ResultsFileTest, LeavesNoFileInAFolderThatIsGone)
{
    QString error;
    QDir(folder.path()).mkdir(QStringLiteral("sub"));
    const QString sub = folder.filePath(QStringLiteral("sub"));
    const WorkProgress vanish = [&sub](double) {
        QDir(sub).removeRecursively();
        return true;
    };
    EXPECT_FALSE(writeResultsFile(sub + QStringLiteral("/a.tessara"),
                                  ResultsSnapshot::of(scannedNetworks(2), 1), vanish, error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(QFile::exists(sub));
}

TEST_F(ResultsFileTest, HoldsTheOldOrTheNewResultsWheneverASaveIsKilled)
{
    constexpr int kKills = 200;
    constexpr useconds_t kLongest = 10'000; // microseconds: several saves
    std::mt19937 random(1);
    std::uniform_int_distribution<useconds_t> delay(0, kLongest);
    int changes = 0;
    double previous = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        int saves[2];
        ASSERT_EQ(pipe(saves), 0);
        const pid_t child = fork();
        if (child == 0) {
            dup2(saves[1], STDOUT_FILENO);
            execl(SAVE_REPEATEDLY, SAVE_REPEATEDLY, path.toLocal8Bit().constData(), nullptr);
            _exit(1);
        }
        close(saves[1]);
        char saved = 0;
        EXPECT_EQ(::read(saves[0], &saved, 1), 1) << "it goes on, and is in the midst of a save";
        usleep(delay(random));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(saves[0]);
        const auto results = read();
        ASSERT_TRUE(results);
        const bool isLarge = results->lastScanTime == 2;
        ASSERT_EQ(results->networks.size(), isLarge ? 30U : 20U);
        ASSERT_EQ(results->networks.back()->history().size(), isLarge ? 200U : 100U);
        changes += results->lastScanTime != previous ? 1 : 0;
        previous = results->lastScanTime;
    }
    EXPECT_GT(changes, 1) << "both were saved";
}
