#include "persistence/CSVExport.h"

#include "RecordingPrompt.h"
#include "VendorFiles.h"
#include "foundation/Defaults.h"
#include "foundation/Directories.h"
#include "support/QtPrinters.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tessara;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr double kTime = 1'700'000'000.5;

/// A network that was seen with these readings, one every two seconds.
NetworkPtr networkNamed(const QString& ssid, std::initializer_list<TSDataPoint> samples)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("a:b:c:d:e:f");
    dictionary.ssid = ssid;
    dictionary.channelNumber = 6;
    dictionary.beaconInterval = 100;
    // Supported rates: 1 and 5.5 basic, 11, 54.
    dictionary.informationElementData = QByteArray::fromHex("0104828b166c");
    auto network = std::make_shared<TSNetwork>(dictionary, kTime);
    for (const TSDataPoint& sample : samples)
        network->addDataPoint(sample);
    return network;
}

TSDataPoint sample(std::int64_t rssi, std::int64_t noise)
{
    return {rssi, noise, -1, -1, kTime};
}

std::vector<const Column*> columns(const char* identifiers)
{
    std::vector<const Column*> result;
    for (const QString& identifier : QString::fromLatin1(identifiers).split(u' '))
        result.push_back(columnWithIdentifier(identifier));
    return result;
}

class StationNotes final : public AnnotationsDirectory {
    std::optional<QString> annotationsFor(const QString&) const override
    {
        return QStringLiteral("first, \"last\"");
    }
    void setAnnotations(const QString&, const QString&) override {}
};

} // namespace

TEST(CSVExportTest, WritesTitlesWithUnitsAndCellsWithout)
{
    struct Case {
        const char* identifiers;
        const char* titles;
        const char* percent;
        const char* dBm;
    };
    const Case cases[] = {
        {"RSSI RSSI_AVG RSSI_MIN RSSI_MAX",
         "Signal (%),Avg Signal (%),Min Signal (%),Max Signal (%)", "66,73,66,79",
         "-60,-55,-60,-50"},
        {"NOISE NOISE_AVG NOISE_MIN NOISE_MAX",
         "Noise (%),Avg Noise (%),Min Noise (%),Max Noise (%)", "1,3,1,8", "-95,-92,-95,-90"},
        {"SNR SNR_AVG SNR_MIN SNR_MAX", "SNR (dB),Avg SNR (dB),Min SNR (dB),Max SNR (dB)",
         "35,37,35,40", "35,37,35,40"},
        {"BEACON_INT MIN_RATE MAX_RATE BASIC_RATES",
         "Beacon Interval (ms),Min Rate (Mbps),Max Rate (Mbps),Basic Rates (Mbps)",
         "102.4,1,54,\"1, 5.5\"", "102.4,1,54,\"1, 5.5\""},
        {"SEEN CENTER_FREQUENCY CHANNEL_UTILIZATION STREAMS",
         "Seen,Center Frequency (MHz),Ch. Utilization (%),Streams", ",2437,,1", ",2437,,1"},
        {"IS_USER_HIDDEN SSID BSSID CHANNEL_BAND ANNOTATIONS",
         "Network Name,BSSID,Band,Annotations", "Net,0A:0B:0C:0D:0E:0F,2.4 GHz,\"first, \"last\"\"",
         "Net,0A:0B:0C:0D:0E:0F,2.4 GHz,\"first, \"last\"\""},
    };
    StationNotes notes;
    Directories::installed().annotations = &notes;
    const NetworkPtr network =
        networkNamed(QStringLiteral("Net"), {sample(-50, -90), sample(-60, -95)});
    for (const Case& c : cases) {
        const QByteArray titles(c.titles);
        EXPECT_EQ(csvText({network}, columns(c.identifiers), 0), titles + '\n' + c.percent + '\n');
        QByteArray dBmTitles = titles;
        if (titles.contains("Signal") || titles.contains("Noise"))
            dBmTitles.replace("(%)", "(dBm)");
        EXPECT_EQ(csvText({network}, columns(c.identifiers), 1), dBmTitles + '\n' + c.dBm + '\n');
    }
    Directories::installed() = {};
}

TEST(CSVExportTest, ANetworkWithoutAReadingHasNoSignalNoNoiseAndNoRatio)
{
    const NetworkPtr network = networkNamed(QStringLiteral("Net"), {sample(-120, 0)});
    EXPECT_EQ(csvText({network}, columns("RSSI NOISE SNR RSSI_MAX LAST_SEEN"), 1).split('\n')[1],
              ",,,-120," + QDateTime::fromMSecsSinceEpoch(1'700'000'000'500)
                               .toString(QStringLiteral("yyyy/MM/dd hh:mm:ss AP"))
                               .toUtf8());
}

TEST(CSVExportTest, QuotesNamesWithCommasAndDoesNothingElseToThem)
{
    const std::pair<const char*, const char*> names[] = {
        {"a,b", "\"a,b\""},
        {"a\"b", "a\"b"},
        {"a,\"b", "\"a,\"b\""},
        {"two\nlines", "two\nlines"},
        {" 'Büro' 🦊 ", " 'Büro' 🦊 "},
    };
    for (const auto& [name, cell] : names) {
        EXPECT_EQ(csvText({networkNamed(QString::fromUtf8(name), {})}, columns("SSID"), 0),
                  QByteArray("Network Name\n") + cell + '\n');
    }
}

TEST(CSVExportTest, WritesTheFileWholeOrTellsWhyNot)
{
    Defaults::standard().attach(nullptr);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("büro.csv"));
    writeFile(path, "old");
    RecordingPrompt user;
    CSVExport exporter(user);
    const NetworkPtr network = networkNamed(QStringLiteral("Net"), {sample(-60, -95)});
    exporter.doExportWithFileInBackground({path, {network}, columns("SSID RSSI")});
    network->addDataPoint(sample(-20, -95)); // the next scan
    EXPECT_THAT(user.finished(), ElementsAre("Exporting \"" + path.toStdString() + '"'));
    EXPECT_EQ(contentsOf(path), "Network Name,Signal (%)\nNet,66\n");

    for (const char* lost : {"/proc/export.csv", "/nowhere/export.csv", "/tmp"}) {
        exporter.doExportWithFileInBackground({QString::fromLatin1(lost), {}, columns("SSID")});
        EXPECT_THAT(user.finished(), ElementsAre(std::string("Exporting \"") + lost + '"',
                                                 HasSubstr(std::string("The export failed. ") +
                                                           lost + ": could not be written: ")));
    }
}

TEST(CSVExportTest, SuggestsANameWithVersionAndLocalTime)
{
    EXPECT_EQ(CSVExport::suggestedFileName(kTime),
              QStringLiteral("tessara-" TESSARA_VERSION "_") +
                  QDateTime::fromSecsSinceEpoch(1'700'000'000)
                      .toString(QStringLiteral("yyyyMMdd_HHmmss")) +
                  QStringLiteral(".csv"));
}
