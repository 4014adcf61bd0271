#include "foundation/Defaults.h"
#include "scanning/recorded/Replay.h"
#include "scanning/recorded/ScanInput.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

struct RealCapture {
    QString name;
    qsizetype bssids; ///< as counted by another program
};

/// The captures that the index of a folder lists: a table of Markdown with one line a file, its
/// name in the first column, the number of BSSIDs in the seventh.
std::vector<RealCapture> capturesIn(const QDir& folder)
{
    QFile index(folder.filePath(QStringLiteral("INDEX.md")));
    std::vector<RealCapture> captures;
    if (!index.open(QIODevice::ReadOnly))
        return captures;
    while (!index.atEnd()) {
        const QStringList cells = QString::fromUtf8(index.readLine()).split(u'|');
        const QString name = cells.value(1).trimmed();
        if (name.endsWith(QStringLiteral(".pcap")))
            captures.push_back({name, cells.value(7).trimmed().section(u' ', 0, 0).toLongLong()});
    }
    return captures;
}

} // namespace

TEST(RealCaptures, GiveTheNetworksThatAnotherProgramFinds)
{
    const QString folder = qEnvironmentVariable("TESSARA_CAPTURES");
    if (folder.isEmpty())
        GTEST_SKIP() << "TESSARA_CAPTURES does not name a folder of real captures";
    const std::vector<RealCapture> captures = capturesIn(QDir(folder));
    EXPECT_FALSE(captures.empty());
    MergeLimits limits = MergeLimits::fromDefaults(Defaults());
    limits.maxLastSeenElapsedSeconds = 1e9; // all that was ever seen
    for (const RealCapture& expected : captures) {
        SCOPED_TRACE(expected.name.toStdString());
        const ScanInput input = openScanInput(QDir(folder).filePath(expected.name), 3.0);
        ASSERT_TRUE(input.reader) << qPrintable(input.error);
        QSet<QString> bssids;
        for (const NetworkPtr& network : replay(*input.reader, limits).networks)
            bssids.insert(network->bssid());
        EXPECT_EQ(bssids.size(), expected.bssids);
        EXPECT_EQ(input.reader->error(), QString());
    }
}
