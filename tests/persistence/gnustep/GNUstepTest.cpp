// Results files across another implementation of keyed archives, in both directions.
#include "persistence/ResultsFile.h"
#include "persistence/TestResults.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

using namespace tessara;

namespace {

constexpr double kNow = 1'700'000'100;

// The form that the peer prints and reads: one line a value, texts and bytes in hexadecimal.

QString wordOf(const QString& text)
{
    return QString::fromLatin1(text.toUtf8().toHex());
}
QString wordOf(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex());
}
QString wordOf(std::int64_t number)
{
    return QString::number(number);
}
QString wordOf(bool flag)
{
    return QString::number(flag ? 1 : 0);
}
QString wordOf(double time)
{
    return QString::asprintf("%.17g", time);
}

QStringList linesOf(const NetworkSnapshot& network)
{
    QStringList entries;
    forEachKey(network.network, [&](QLatin1String key, const auto& member) {
        if (member)
            entries += QStringLiteral("entry %1 %2").arg(key, wordOf(*member));
    });
    entries.sort();
    QStringList lines = QStringList(QStringLiteral("network")) + entries;
    const QColor& color = network.color;
    lines += QString::asprintf("color %.4f %.4f %.4f %.4f", color.redF(), color.greenF(),
                               color.blueF(), color.alphaF());
    lines += QStringLiteral("lastSeen ") + wordOf(network.lastSeen);
    if (!network.deviceName.isEmpty())
        lines += QStringLiteral("deviceName ") + wordOf(network.deviceName);
    if (network.annotations)
        lines += QStringLiteral("annotations ") + wordOf(*network.annotations);
    for (const TSDataPoint& sample : network.dataPoints) {
        const QStringList words{wordOf(std::int64_t{1}),       wordOf(sample.rssiValue()),
                                wordOf(sample.noiseValue()),   wordOf(sample.channel()),
                                wordOf(sample.stationCount()), wordOf(sample.chUtilization()),
                                wordOf(sample.timestamp())};
        lines += QStringLiteral("sample ") + words.join(u' ');
    }
    return lines;
}

QString textOf(const ResultsSnapshot& results)
{
    QStringList lines{QStringLiteral("lastScanTime ") + wordOf(results.lastScanTime)};
    for (const NetworkSnapshot& network : results.networks)
        lines += linesOf(network);
    return lines.join(u'\n') + u'\n';
}

/// Every key, every kind of text and number, and a history long enough for numbers of two bytes.
ResultsSnapshot results()
{
    NetworkSnapshot full;
    full.network = {
        .bssid = QStringLiteral("a:0:0:0:0:1"),
        .channelNumber = 36,
        .ssid = QStringLiteral("Caf\u00e9 \u2615 \U0001f4f6"),
        .rssiValue = -61,
        .noiseMeasurement = -92,
        .informationElementData = QByteArray::fromHex("0004486f6d65030106dd0300ff7f"),
        .ibss = true,
        .beaconInterval = 100,
        .phyMode = 0,
        .securityMode = std::numeric_limits<std::int64_t>::max(),
    };
    full.color = QColor::fromRgbF(0.25F, 0.5F, 1.0F, 0.75F);
    full.lastSeen = kNow - 0.125;
    full.deviceName = QStringLiteral("Attic");
    full.annotations = QStringLiteral("On the roof, \"west\"\nsecond line");
    for (int i = 0; i < 400; ++i) {
        full.dataPoints.emplace_back(TSDataPoint::Saved{.rssiValue = -120 + i % 90,
                                                        .noiseValue = i - 200,
                                                        .channel = i % 15 - 1,
                                                        .stationCount = 1 << (i % 20),
                                                        .chUtilization = i % 101 - 1,
                                                        .timestamp = kNow - 800 + 2.001 * i});
    }
    NetworkSnapshot plain;
    plain.network.bssid = QStringLiteral("02:00:00:00:00:02");
    plain.network.channelNumber = 1;
    plain.network.ibss = false;
    plain.network.informationElementData = QByteArray();
    plain.color = QColor::fromRgbF(1, 0, 0);
    plain.annotations = QString();
    return {{full, plain}, kNow};
}

QString runPeer(const QStringList& arguments, const QString& input = {})
{
    QProcess peer;
    peer.start(QStringLiteral(GNUSTEP_PEER), arguments);
    peer.write(input.toUtf8());
    peer.closeWriteChannel();
    EXPECT_TRUE(peer.waitForFinished());
    EXPECT_EQ(peer.exitCode(), 0);
    EXPECT_EQ(peer.readAllStandardError().toStdString(), "");
    return QString::fromUtf8(peer.readAllStandardOutput());
}

class GNUstep : public testing::Test {
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("results.tessara"));
    ResultsSnapshot saved = results();
};

} // namespace

TEST_F(GNUstep, ReadsWhatWeWrite)
{
    QString error;
    ASSERT_TRUE(writeResultsFile(path, saved, kGoOn, error)) << qPrintable(error);
    EXPECT_EQ(runPeer({QStringLiteral("read"), path}).toStdString(), textOf(saved).toStdString());
}

TEST_F(GNUstep, WritesWhatWeRead)
{
    runPeer({QStringLiteral("write"), path}, textOf(saved));
    ResultsFileError error;
    const auto read = readResultsFile(path, kNow, kGoOn, error);
    ASSERT_TRUE(read) << qPrintable(error.system + error.format);
    EXPECT_EQ(textOf(ResultsSnapshot::of(read->networks, read->lastScanTime)).toStdString(),
              textOf(saved).toStdString());
}
