#include "scanning/CaptureBuilder.h"
#include "scanning/recorded/RecordingReader.h"
#include "scanning/recorded/RecordingWriter.h"
#include "scanning/recorded/Replay.h"
#include "scanning/recorded/ScanInput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <limits>

using namespace tessara;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();

ScanDictionary completeNetwork()
{
    ScanDictionary network;
    network.bssid = QStringLiteral("0:1a:2:3:4b:5");
    network.channelNumber = 36;
    network.ssid = QStringLiteral("Café \"quoted\" \\ \n \U0001f4f6");
    network.rssiValue = -61;
    network.noiseMeasurement = -93;
    network.informationElementData = QByteArray::fromHex("0003ab00ff");
    network.ibss = false;
    network.beaconInterval = 100;
    network.phyMode = 0;
    network.securityMode = kLargest;
    return network;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

struct Outcome {
    std::vector<RecordedScan> scans;
    std::string error;
};

Outcome readRecording(const QByteArray& content)
{
    RecordingReader reader(inMemory(content), QStringLiteral("test.jsonl"));
    Outcome outcome{allScans(reader), {}};
    outcome.error = reader.error().toStdString();
    return outcome;
}

} // namespace

class RecordingFiles : public testing::Test {
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private:
    QTemporaryDir m_folder;
};

TEST_F(RecordingFiles, ComeBackAsTheyWereWritten)
{
    const std::vector<RecordedScan> scans = {
        {1700000000.123, {completeNetwork(), ScanDictionary()}, true},
        {1700000003.001, {}, true},
        {-0.5, {completeNetwork()}, true},
    };
    for (const char* name : {"a.jsonl", "a.jsonl.gz"}) {
        SCOPED_TRACE(name);
        RecordingWriter writer(path(name));
        for (const RecordedScan& scan : scans)
            EXPECT_TRUE(writer.write(scan));
        ASSERT_TRUE(writer.finish()) << qPrintable(writer.error());

        const ScanInput input = openScanInput(path(name), 3.0);
        ASSERT_TRUE(input.reader) << qPrintable(input.error);
        const auto back = allScans(*input.reader);
        EXPECT_EQ(input.reader->error(), QString());
        ASSERT_EQ(back.size(), scans.size());
        for (std::size_t i = 0; i < scans.size(); ++i) {
            EXPECT_EQ(back[i].time, scans[i].time);
            EXPECT_EQ(back[i].networks, scans[i].networks);
        }
    }
    const QByteArray plain = contentOf(path("a.jsonl"));
    EXPECT_EQ(plain.count('\n'), 3);
    for (const char* text : {"\"securityMode\":9223372036854775807", "\"time\":1700000000.123",
                             "\"informationElementData\":\"0003ab00ff\"", "{}"})
        EXPECT_TRUE(plain.contains(text)) << text;
    EXPECT_TRUE(contentOf(path("a.jsonl.gz")).startsWith("\x1f\x8b"));
}

TEST_F(RecordingFiles, AreReplacedWholeOrNotAtAll)
{
    writeFile(path("kept.jsonl"), "before");
    {
        RecordingWriter writer(path("kept.jsonl"));
        EXPECT_TRUE(writer.write({0, {completeNetwork()}, true}));
    } // never finished
    EXPECT_EQ(contentOf(path("kept.jsonl")), "before");
    EXPECT_EQ(names(), QStringList{QStringLiteral("kept.jsonl")});

    RecordingWriter writer(path("kept.jsonl"));
    EXPECT_TRUE(writer.finish());
    EXPECT_EQ(contentOf(path("kept.jsonl")), "");
}

TEST_F(RecordingFiles, SayWhyTheyCannotBeWritten)
{
    RecordingWriter nowhere(path("no/such/folder.jsonl"));
    EXPECT_FALSE(nowhere.write({}));
    EXPECT_FALSE(nowhere.finish());
    EXPECT_THAT(nowhere.error().toStdString(),
                HasSubstr("no/such/folder.jsonl: could not be written: "));
}

TEST_F(RecordingFiles, ThatAreDamagedGiveWhatTheyHave)
{
    QByteArray lines;
    std::vector<PacketToBuild> packets;
    for (int i = 0; i < 8000; ++i) { // more than is unpacked at once, and not all alike
        const QByteArray content = QByteArray::number(i * 2654435761u);
        lines +=
            R"({"time":1,"networks":[{"informationElementData":")" + content.toHex() + "\"}]}\n";
        packets.push_back({double(i), build({.elements = content})});
    }
    for (const auto& [name, content] :
         {std::pair("a.jsonl.gz", lines), std::pair("a.pcap.gz", capture(105, packets))}) {
        const GzipHandle file(gzopen(QFile::encodeName(path(name)).constData(), "wb"));
        ASSERT_GT(gzwrite(file.get(), content.constData(), unsigned(content.size())), 0);
        gzflush(file.get(), Z_FINISH);
        const QByteArray whole = contentOf(path(name));
        QByteArray damaged = whole;
        damaged[whole.size() - 8] = char(~damaged[whole.size() - 8]); // of the checksum
        for (const auto& [bytes, error] :
             {std::pair(whole.chopped(whole.size() / 3), "the compressed data ends too early"),
              std::pair(damaged, "the compressed data is damaged")}) {
            writeFile(path(name), bytes);
            const ScanInput input = openScanInput(path(name), 3.0);
            ASSERT_TRUE(input.reader) << qPrintable(input.error);
            EXPECT_GT(allScans(*input.reader).size(), 1000u) << name << ' ' << error;
            EXPECT_THAT(input.reader->error().toStdString(),
                        EndsWith(name + std::string(": ") + error));
        }
    }
}

TEST(RecordingReader, TakesRecordingsOfAnyLayout)
{
    struct Case {
        const char* name;
        QByteArray content;
        std::size_t scans;
    };
    const QByteArray line = R"({"time":1,"networks":[]})";
    const Case cases[] = {
        {"none", "", 0},
        {"one, without a line feed", line, 1},
        {"two, in the manner of Windows", line + "\r\n" + line + "\r\n", 2},
        {"blank lines at the end", line + "\n\n \t\r\n\n", 1},
        {"nothing but blank lines", "\n\n", 0},
        {"spaces, other order, unknown keys",
         R"( { "networks" : [ {"x":[1,{}], "bssid":"a"} ],)"
         R"( "y":null, "time" : 1e3 } )",
         1},
        {"a line longer than any buffer",
         R"({"time":1,"note":")" + QByteArray(3'000'000, 'x') + "\",\"networks\":[]}\n" + line, 2},
    };
    for (const Case& c : cases) {
        const Outcome outcome = readRecording(c.content);
        EXPECT_EQ(outcome.scans.size(), c.scans) << c.name;
        EXPECT_EQ(outcome.error, "") << c.name;
    }
}

TEST(RecordingReader, NamesTheLineThatIsNoScan)
{
    struct Case {
        const char* line;
        const char* reason;
    };
    const Case cases[] = {
        {"scan", "not JSON"},
        {"{\"time\":1,\"networks\":[]} x", "not JSON"},
        {"{\"time\":1,\"networks\":[{\"ssid\":\"\xff\xfe\"}]}", "not JSON"},
        {"", "the line is empty"},
        {"[1]", "not an object"},
        {R"({"time":"1","networks":[]})", "\"time\" is not"},
        {R"({"time":1e300,"networks":[]})", "\"time\" is not"},
        {R"({"time":1,"networks":{}})", "\"networks\" is not"},
        {R"({"time":1,"networks":[{},7]})", "network 2 is not an object"},
        {R"({"time":1,"networks":[{"bssid":7}]})", "network 1: \"bssid\" has"},
        {R"({"time":1,"networks":[{"ssid":null}]})", "\"ssid\" has"},
        {R"({"time":1,"networks":[{"rssiValue":-60.5}]})", "\"rssiValue\" has"},
        {R"({"time":1,"networks":[{"noiseMeasurement":true}]})", "\"noiseMeasurement\" has"},
        {R"({"time":1,"networks":[{"securityMode":9223372036854775808}]})", "\"securityMode\" has"},
        {R"({"time":1,"networks":[{"ibss":1}]})", "\"ibss\" has"},
        {R"({"time":1,"networks":[{"informationElementData":"abc"}]})", "ElementData\" has"},
        {R"({"time":1,"networks":[{"informationElementData":"0g"}]})", "ElementData\" has"},
    };
    const QByteArray good = "{\"time\":1,\"networks\":[]}\n";
    for (const Case& c : cases) {
        const Outcome outcome = readRecording(good + c.line + '\n' + good);
        EXPECT_EQ(outcome.scans.size(), 1u) << c.line;
        EXPECT_THAT(outcome.error, HasSubstr("test.jsonl, line 2: ")) << c.line;
        EXPECT_THAT(outcome.error, HasSubstr(c.reason)) << c.line;
    }
    EXPECT_THAT(readRecording(QByteArray(5000, '[')).error, HasSubstr("line 1: not JSON"));
}

TEST(RecordingReader, KeepsNumbersExactly)
{
    const Outcome outcome = readRecording(
        R"({"time":1700000000.987,"networks":[{"rssiValue":-0,"noiseMeasurement":-9.5e1,)"
        R"("phyMode":-9223372036854775808,"securityMode":9223372036854775807,)"
        R"("beaconInterval":9007199254740993}]})");
    ASSERT_EQ(outcome.scans.size(), 1u) << outcome.error;
    EXPECT_EQ(outcome.scans[0].time, 1700000000.987);
    const ScanDictionary& network = outcome.scans[0].networks[0];
    EXPECT_EQ(network.rssiValue, 0);
    EXPECT_EQ(network.noiseMeasurement, -95);
    EXPECT_EQ(network.phyMode, std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(network.securityMode, kLargest);
    EXPECT_EQ(network.beaconInterval, 9007199254740993);
}

TEST(RecordingReader, KnowsAScanWithoutSignals)
{
    const struct {
        const char* networks;
        bool recordsSignal;
    } cases[] = {
        {R"({"rssiValue":-120},{"rssiValue":-119})", false},
        {R"({"rssiValue":-119},{})", true},
        {"", true},
    };
    for (const auto& c : cases) {
        const Outcome outcome =
            readRecording(QByteArray("{\"time\":1,\"networks\":[") + c.networks + "]}");
        ASSERT_EQ(outcome.scans.size(), 1u);
        EXPECT_EQ(outcome.scans[0].recordsSignal, c.recordsSignal) << c.networks;
    }
}

TEST_F(RecordingFiles, HoldAMillionNetworksInOneLine)
{
    constexpr int kNetworks = 1'000'000;
    QFile file(path("million.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"time\":1,\"networks\":[");
    for (int i = 0; i < kNetworks; ++i) {
        file.write(QByteArray(i == 0 ? "" : ",") + "{\"bssid\":\"2:0:0:" +
                   QByteArray::number(i >> 16, 16) + ':' + QByteArray::number(i >> 8 & 0xff, 16) +
                   ':' + QByteArray::number(i & 0xff, 16) + "\",\"rssiValue\":-50}");
    }
    file.write("]}\n");
    file.close();

    const ScanInput input = openScanInput(file.fileName(), 3.0);
    ASSERT_TRUE(input.reader);
    const Replay result = replay(*input.reader, {std::nullopt, 300});
    EXPECT_EQ(input.reader->error(), QString());
    ASSERT_EQ(result.networks.size(), static_cast<std::size_t>(kNetworks));
    EXPECT_EQ(result.networks.back()->bssid(), QStringLiteral("02:00:00:0F:42:3F"));
}

TEST_F(RecordingFiles, AreToldFromCapturesByTheirEnding)
{
    const QByteArray recording = R"({"time":1,"networks":[]})";
    const QByteArray frames = capture(105, {{1, build({})}});
    for (const auto& [name, content] : {std::pair("a.jsonl", recording),
                                        {"a.JSONL.gz", recording},
                                        {"a.pcapng", frames},
                                        {"a.pcap", frames},
                                        {"a.cap.gz", frames}}) {
        writeFile(path(name), content); // not compressed: the content tells, not the name
        const ScanInput input = openScanInput(path(name), 3.0);
        ASSERT_TRUE(input.reader) << qPrintable(input.error);
        EXPECT_EQ(allScans(*input.reader).size(), 1u) << name;
    }

    const struct {
        QString path;
        double sweepSeconds;
        const char* error;
    } refused[] = {
        {path("a.csv"), 3, "a.csv: not a kind of file that is read here (.jsonl, .pcap,"},
        {path("missing.jsonl"), 3, "missing.jsonl: No such file"},
        {path("missing.pcap.gz"), 3, "missing.pcap.gz: No such file"},
        {path("a.pcap"), 0, "a sweep takes more than 0 seconds"},
        {path("a.pcap"), std::numeric_limits<double>::quiet_NaN(), "a sweep takes more"},
    };
    for (const auto& c : refused) {
        const ScanInput input = openScanInput(c.path, c.sweepSeconds);
        EXPECT_FALSE(input.reader);
        EXPECT_THAT(input.error.toStdString(), HasSubstr(c.error));
    }
}
