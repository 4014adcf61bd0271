#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

namespace {

struct Outcome {
    int exitCode = -1;
    QString out;
    QString err;
};

/// Runs the program by way of a shell, in a folder of its own, with fresh settings.
class ProgramTest : public testing::Test {
protected:
    Outcome run(const QString& arguments, const QString& setup = QString())
    {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.path());
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), folder.path());
        environment.insert(QStringLiteral("CLI"), QStringLiteral(TESSARA_CLI));
        environment.insert(QStringLiteral("RECORDING"), QStringLiteral(TESSARA_RECORDING));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral("/bin/bash"),
                      {QStringLiteral("-c"), setup + QStringLiteral("\n\"$CLI\" ") + arguments});
        EXPECT_TRUE(process.waitForFinished(60'000));
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QByteArray contents(const char* name) const
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const char* name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir folder;
};

const QByteArray kTwoScans =
    R"({"time":1700000000.5,"networks":[{"bssid":"a:0:0:0:0:1","channelNumber":6,"ssid":"Zoo","rssiValue":-50,"noiseMeasurement":-90,"beaconInterval":100},{"bssid":"a:0:0:0:0:2","channelNumber":36,"ssid":"Attic","rssiValue":-80}]}
{"time":1700000003.5,"networks":[{"bssid":"a:0:0:0:0:1","channelNumber":6,"ssid":"Zoo","rssiValue":-52,"securityMode":9223372036854775807}]}
)";

} // namespace

TEST_F(ProgramTest, TellsHowItIsUsed)
{
    struct Case {
        const char* arguments;
        int exitCode;
        const char* out; ///< what standard output holds; nothing else does if empty
        const char* err;
    };
    const Case cases[] = {
        {"--help", 0, "convert INPUT OUTPUT", ""},
        {"--version", 0, "tessara-cli 0.", ""},
        {"networks --help", 0, "Usage: tessara-cli networks [options] INPUT", ""},
        {"", 2, "", "which command?"},
        {"fly", 2, "", "there is no command 'fly'"},
        {"networks", 2, "", "networks takes one input"},
        {"networks a.jsonl --nonsense", 2, "", "nonsense"},
        {"networks a.jsonl --sort NO", 2, "", "there is no column 'NO'"},
        {"networks a.jsonl --columns SSID,NO", 2, "", "there is no column 'NO'"},
        {"networks a.jsonl --format xml", 2, "", "'xml'"},
        {"networks a.pcap --sweep 0", 2, "", "--sweep"},
        {"networks a.jsonl --default Units", 2, "", "KEY=VALUE"},
        {"networks a.jsonl --default Units=metric", 2, "", "'metric'"},
        {"networks a.jsonl --default Unit=1", 2, "", "there is no setting 'Unit'"},
        {"networks a.jsonl", 1, "", "a.jsonl"},
        {"networks a.doc", 1, "", ".pcapng"},
        {"convert a.jsonl b.txt", 2, "", "b.txt"},
        {"convert a.jsonl b.csv", 1, "", "a.jsonl"},
        {"networks a.jsonl --annotations none.plist", 1, "", "none.plist"},
        {"scan --duration -1", 2, "", "--duration"},
        {"scan --save out.txt", 2, "", "out.txt"},
        {"scan --watch --format json", 2, "", "--watch"},
        {"networks a.jsonl --sort RSSI:", 2, "", "'desc'"},
        {"scan --interface none0", 1, "", "there is no Wi-Fi interface 'none0'"},
        {"scan --interface recorded:none.jsonl", 1, "", "none.jsonl"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.arguments);
        const Outcome outcome = run(QString::fromLatin1(c.arguments));
        EXPECT_EQ(outcome.exitCode, c.exitCode);
        EXPECT_TRUE(outcome.out.contains(QString::fromLatin1(c.out))) << outcome.out.toStdString();
        EXPECT_EQ(outcome.out.isEmpty(), *c.out == '\0');
        EXPECT_TRUE(outcome.err.contains(QString::fromLatin1(c.err))) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.isEmpty(), *c.err == '\0');
        EXPECT_LE(outcome.err.count(u'\n'), c.exitCode) << "what failed, and where usage is told";
    }
}

TEST_F(ProgramTest, ListsTheNetworksAfterTheLastScan)
{
    write("two.jsonl", kTwoScans);
    EXPECT_EQ(run(QStringLiteral("networks two.jsonl --columns SSID,RSSI,CHANNEL --sort SSID")).out,
              QStringLiteral("Network Name  Signal  Channel\n"
                             "Attic         30%          36\n"
                             "Zoo           76%           6\n"));
    EXPECT_EQ(run(QStringLiteral("networks two.jsonl --columns SSID,RSSI --sort RSSI:desc "
                                 "--default Units=1"))
                  .out,
              QStringLiteral("Network Name  Signal\nZoo           -52\nAttic         -80\n"));
    EXPECT_EQ(run(QStringLiteral("networks - --columns SSID <two.jsonl")).out,
              QStringLiteral("Network Name\nZoo\nAttic\n"));

    const QJsonObject json =
        QJsonDocument::fromJson(
            run(QStringLiteral("networks two.jsonl --format json")).out.toUtf8())
            .object();
    EXPECT_EQ(json[QStringLiteral("lastScanTime")].toDouble(), 1700000003.5);
    const QJsonArray networks = json[QStringLiteral("networks")].toArray();
    ASSERT_EQ(networks.size(), 2);
    const QJsonObject attic = networks[1].toObject()[QStringLiteral("record")].toObject();
    EXPECT_EQ(attic[QStringLiteral("rssi")].toInteger(), -120);
    EXPECT_EQ(attic[QStringLiteral("rssiLast")].toInteger(), -80);
    EXPECT_EQ(attic[QStringLiteral("dataPoints")].toInteger(), 2);
    EXPECT_EQ(attic[QStringLiteral("lastSeenElapsedSeconds")].toDouble(), 3);
    EXPECT_TRUE(attic[QStringLiteral("vendor")].isNull());
    EXPECT_EQ(attic[QStringLiteral("securityMode")].toInteger(),
              std::numeric_limits<qint64>::max());
}

TEST_F(ProgramTest, ListsWhatAFilterSelects)
{
    write("two.jsonl", kTwoScans);
    EXPECT_EQ(run(QStringLiteral("networks two.jsonl --columns SSID --filter '>-60 & !36'")).out,
              QStringLiteral("Network Name\nZoo\n"));
    const QString json =
        run(QStringLiteral("networks two.jsonl --format json --filter 'att, 6 & !5GHz, !n'")).out;
    EXPECT_EQ(QJsonDocument::fromJson(json.toUtf8())[QStringLiteral("filterIdentifiers")].toArray(),
              (QJsonArray{QStringLiteral("CHANNEL"), QStringLiteral("CHANNEL_BAND"),
                          QStringLiteral("SSID")}));
}

TEST_F(ProgramTest, PaintsAChart)
{
    write("two.jsonl", kTwoScans);
    const auto chart = [this](const char* options) {
        return run(QStringLiteral("chart two.jsonl --output out.png ") +
                   QString::fromLatin1(options));
    };
    EXPECT_EQ(chart("--size 640x320").exitCode, 0);
    const QByteArray plain = contents("out.png");
    EXPECT_TRUE(plain.startsWith("\x89PNG"));
    EXPECT_EQ(chart("--size 640x320 --bssid 0A:00:00:00:00:02").exitCode, 0);
    EXPECT_NE(contents("out.png"), plain);
    EXPECT_EQ(chart("--size 640x320 --default Units=1").exitCode, 0);
    EXPECT_NE(contents("out.png"), plain);
    EXPECT_EQ(chart("--kind details --bssid 0A:00:00:00:00:02").exitCode, 0);
    const QByteArray signal = contents("out.png");
    EXPECT_EQ(chart("--kind details --bssid 0A:00:00:00:00:02 --metric snr").exitCode, 0);
    EXPECT_NE(contents("out.png"), signal);
    EXPECT_EQ(chart("--size 640x320 --kind spectrum").exitCode, 0);
    EXPECT_NE(contents("out.png"), plain);

    write("out.png", "old");
    struct Case {
        const char* options;
        int exitCode;
        const char* says;
    };
    for (const Case& c :
         {Case{"--kind details", 2, "details takes one --bssid"},
          Case{"--metric snr", 2, "signal takes no --metric"},
          Case{"--kind details --bssid 02:00:00:00:00:01 --metric best", 2, "no metric 'best'"},
          Case{"--bssid 02:00:00:00:00:09", 1, "holds no network 02:00"},
          Case{"--kind pie", 2, "no kind of chart 'pie'"}, Case{"--size 0x10", 2, "--size takes"},
          Case{"--size 99999x99999", 2, "--size takes"},
          Case{"--timescale 0", 2, "--timescale takes"},
          Case{"--timescale soon", 2, "--timescale takes"},
          Case{"--kind spectrum --timescale 300", 2, "takes no --timescale"},
          Case{"--output out.gif", 2, ".png, .pdf or .svg"},
          Case{"--output gone/out.svg", 1, "gone/out.svg: "}}) {
        SCOPED_TRACE(c.options);
        const Outcome outcome = chart(c.options);
        EXPECT_EQ(outcome.exitCode, c.exitCode);
        EXPECT_TRUE(outcome.err.contains(QLatin1String(c.says))) << outcome.err.toStdString();
    }
    EXPECT_EQ(contents("out.png"), "old");
}

TEST_F(ProgramTest, ShowsWhatCouldBeReadBeforeAnError)
{
    write("broken.jsonl", kTwoScans + "{\"time\":1}\n");
    const Outcome outcome = run(QStringLiteral("networks broken.jsonl --columns SSID"));
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("Zoo")));
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("line 3"))) << outcome.err.toStdString();
    EXPECT_EQ(outcome.err.count(u'\n'), 1);

    write("out.jsonl", "old");
    EXPECT_EQ(run(QStringLiteral("convert broken.jsonl out.jsonl")).exitCode, 1);
    EXPECT_EQ(contents("out.jsonl"), "old") << "half a file does not replace a whole one";
}

TEST_F(ProgramTest, SaysThatARecordingHoldsNothing)
{
    write("none.jsonl", "");
    write("torn.jsonl", "{\n");
    for (const char* expected : {"none.jsonl holds no scans", "torn.jsonl, line 1: not JSON"}) {
        const Outcome outcome =
            run(QStringLiteral("networks ") + QString::fromLatin1(expected).left(10));
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_EQ(outcome.out, QString()) << "not even the titles of a table";
        EXPECT_TRUE(
            outcome.err.startsWith(QLatin1String("tessara-cli: ") + QLatin1String(expected)));
    }
    write("quiet.jsonl", "{\"time\":1,\"networks\":[]}\n");
    EXPECT_EQ(run(QStringLiteral("networks quiet.jsonl")).exitCode, 0) << "a scan that found none";
}

TEST_F(ProgramTest, TakesNumbersThatNoRadioGives)
{
    write("far.jsonl",
          "{\"time\":1,\"networks\":[{\"bssid\":\"a:0:0:0:0:1\",\"channelNumber\":65535,"
          "\"rssiValue\":9223372036854775807,\"noiseMeasurement\":-9223372036854775807,"
          "\"beaconInterval\":-9223372036854775807}]}\n");
    const QString columns = QStringLiteral(" --columns BSSID,RSSI,SNR,CENTER_FREQUENCY,BEACON_INT");
    for (const char* sensitivity : {"-9223372036854775808", "9223372036854775807"}) {
        const Outcome outcome = run(QStringLiteral("networks far.jsonl --default Sensitivity=%1")
                                        .arg(QLatin1String(sensitivity)) +
                                    columns);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    }
    write("wild.jsonl",
          "{\"time\":1,\"networks\":[{\"bssid\":\"a\",\"channelNumber\":-9223372036854775807}]}\n");
    EXPECT_EQ(run(QStringLiteral("networks wild.jsonl")).exitCode, 1);
}

TEST_F(ProgramTest, TellsWhenItsOutputIsLost)
{
    write("two.jsonl", kTwoScans);
    for (const char* format : {"table", "csv", "json"}) {
        const Outcome full = run(
            QStringLiteral("networks two.jsonl --format %1 >/dev/full").arg(QLatin1String(format)));
        EXPECT_EQ(full.exitCode, 1);
        EXPECT_EQ(full.err.count(u'\n'), 1) << full.err.toStdString();
    }
    // A reader that goes away costs no recording.
    const Outcome gone = run(QStringLiteral(
        "scan --interface \"recorded:$RECORDING\" --save walk.jsonl --watch --duration 4 | true"));
    EXPECT_EQ(gone.exitCode, 0);
    EXPECT_FALSE(contents("walk.jsonl").isEmpty());
}

TEST_F(ProgramTest, ConvertsInACircle)
{
    EXPECT_EQ(run(QStringLiteral("convert \"$RECORDING\" a.jsonl")).exitCode, 0);
    EXPECT_EQ(run(QStringLiteral("convert a.jsonl b.jsonl.gz")).exitCode, 0);
    EXPECT_EQ(run(QStringLiteral("convert b.jsonl.gz c.jsonl")).exitCode, 0);
    EXPECT_FALSE(contents("a.jsonl").isEmpty());
    EXPECT_EQ(contents("a.jsonl"), contents("c.jsonl"));
    EXPECT_LT(contents("b.jsonl.gz").size(), contents("a.jsonl").size() / 4);
}

TEST_F(ProgramTest, AFullDiskLosesNothing)
{
    run(QStringLiteral("networks \"$RECORDING\"")); // installs the vendors' names
    for (const char* name : {"out.jsonl", "out.jsonl.gz", "out.csv"}) {
        SCOPED_TRACE(name);
        write(name, "old");
        // No file may grow beyond 10 KiB: writing fails as it does on a full disk.
        const Outcome outcome = run(QStringLiteral("convert \"$RECORDING\" ") + QLatin1String(name),
                                    QStringLiteral("trap '' XFSZ; ulimit -f 10"));
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_EQ(outcome.err,
                  QStringLiteral("tessara-cli: %1: could not be written: File too large\n")
                      .arg(QLatin1String(name)));
        EXPECT_EQ(contents(name), "old");
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
}

TEST_F(ProgramTest, ScansInRealTimeUntilTheDurationIsOverOrASignalComes)
{
    // The program against the real clock: both ways at once.
    const Outcome outcome = run(QStringLiteral(
        "scan --interface \"recorded:$RECORDING\" --duration 4 --columns BSSID,SEEN >table.txt &\n"
        "table=$!\n"
        "\"$CLI\" scan --interface \"recorded:$RECORDING\" --save walk.jsonl &\n"
        "sleep 4; kill -TERM $!; wait $! && wait $table"));
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    EXPECT_GT(contents("table.txt").count('\n'), 5) << contents("table.txt").toStdString();
    EXPECT_GT(run(QStringLiteral("networks walk.jsonl")).out.count(u'\n'), 5);
}

TEST_F(ProgramTest, ASignalEndsTheReadingOfARecordingThatIsToBePlayed)
{
    // What is written is more than a pipe holds: by then the program is reading.
    const Outcome outcome = run(QStringLiteral(
        "--version; mkfifo pipe; \"$CLI\" scan --interface recorded:- <pipe & exec 3>pipe\n"
        "head -c 200000 /dev/zero | tr '\\0' ' ' >&3; kill -TERM $!; wait $!"));
    EXPECT_EQ(outcome.exitCode, 128 + SIGTERM) << outcome.err.toStdString();
}
