#include "scanning/recorded/RecordedInterface.h"
#include "scanning/CaptureBuilder.h"
#include "scanning/capture/CaptureReader.h"
#include "scanning/recorded/RecordingWriter.h"
#include "support/ManualClock.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace tessara;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::HasSubstr;

class PlayedRecording : public testing::Test {
protected:
    /// A recording whose scans find one network each, with the signals -1, -2, … dBm.
    std::unique_ptr<RecordedInterface> play(const std::vector<double>& times,
                                            const char* name = "office.jsonl")
    {
        RecordingWriter writer(path(name));
        for (const double& time : times) {
            ScanDictionary network;
            network.bssid = QStringLiteral("02:00:00:00:00:01");
            network.ssid = QStringLiteral("Office");
            network.channelNumber = 36;
            network.rssiValue = -1 - (&time - times.data());
            network.informationElementData = ssidElement("Office");
            writer.write({time, {network}, true});
        }
        EXPECT_TRUE(writer.finish());
        return open(name);
    }
    std::unique_ptr<RecordedInterface> open(const char* name)
    {
        return RecordedInterface::open(path(name), 3.0, {clock, pause, notifications}, error);
    }
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    /// Which scan is in force, counted from 1; 0 for none.
    static std::int64_t inForce(const std::vector<CWNetwork>& networks)
    {
        return networks.empty() ? 0 : -networks[0].rssiValue;
    }

    ManualClock clock;
    ManualPause pause{clock};
    NotificationCenter notifications;
    QString error;

private:
    QTemporaryDir m_folder;
};

TEST_F(PlayedRecording, RunsInRealTimeAndStartsOver)
{
    const auto interface = play({1000, 1003, 1010});
    ASSERT_TRUE(interface) << qPrintable(error);
    const struct {
        double second; ///< since the interface was made
        int scan;
    } cases[] = {
        {0, 1}, {2.9, 1}, {3.1, 2}, {9.9, 2}, {10.1, 3}, {16.9, 3}, {17.1, 1}, {20.1, 2}, {34.1, 1},
    };
    double now = 0;
    for (const auto& c : cases) {
        clock.advance(c.second - now);
        now = c.second;
        EXPECT_EQ(inForce(interface->cachedScanResults()), c.scan) << "after " << now << " s";
    }
    clock.advance(-40); // somebody sets the machine's clock back
    EXPECT_EQ(inForce(interface->cachedScanResults()), 3);
}

TEST_F(PlayedRecording, ScansUntilTheNextScanIsInForce)
{
    const auto interface = play({1000, 1001.5, 1010});
    std::vector<std::int64_t> scans;
    for (int i = 0; i < 7; ++i)
        scans.push_back(inForce(interface->scanForNetworksWithSSID(std::nullopt).networks));
    EXPECT_THAT(scans, ElementsAre(2, 2, 2, 2, 2, 3, 3));
    EXPECT_THAT(pause.sleeps,
                ElementsAre(DoubleNear(1.5, 0.01), 2, 2, 2, 2, DoubleNear(0.5, 0.01), 2));
}

TEST_F(PlayedRecording, SurvivesTimesThatMakeNoSense)
{
    for (const std::vector<double>& times :
         std::vector<std::vector<double>>{{5}, {9, 5, 1}, {7, 7, 7}, {0, 1e11, 2}, {-2e11, 2e11}}) {
        const auto interface = play(times);
        ASSERT_TRUE(interface);
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(interface->scanForNetworksWithSSID(std::nullopt).networks.size(), 1u);
    }
    for (const double sleep : pause.sleeps)
        EXPECT_TRUE(sleep > 0 && sleep <= 2.0) << sleep;
}

TEST_F(PlayedRecording, FindsANetworkByItsName)
{
    const auto interface = play({1000});
    EXPECT_EQ(interface->scanForNetworksWithSSID(QByteArray("Office")).networks.size(), 1u);
    EXPECT_EQ(interface->scanForNetworksWithSSID(QByteArray("office")).networks.size(), 0u);
}

TEST_F(PlayedRecording, GivesBackWhatWasScanned)
{
    const QByteArray frame =
        build({.capability = 0x0013, .elements = ssidElement("Net") + dsElement(6)});
    const QByteArray content = capture(127, {{1000, withSignal(-60, frame)}});
    QFile file(path("a.pcap"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const auto interface = open("a.pcap");
    ASSERT_TRUE(interface) << qPrintable(error);
    CaptureReader reader(inMemory(content), {}, 3.0);
    EXPECT_EQ(interface->cachedScanResults().at(0).dictionary(), reader.next()->networks.at(0));
}

TEST_F(PlayedRecording, FollowsItsPowerAndItsAssociation)
{
    std::vector<std::string> told;
    QObject::connect(&notifications, &NotificationCenter::powerDidChange,
                     [&] { told.emplace_back("power"); });
    QObject::connect(&notifications, &NotificationCenter::bssidDidChange,
                     [&] { told.emplace_back("bssid"); });
    QObject::connect(&notifications, &NotificationCenter::linkQualityDidChange,
                     [&] { told.emplace_back("quality"); });
    const auto interface = play({1000, 1003});
    EXPECT_FALSE(interface->isAssociated());

    RecordedInterface::Association home{QStringLiteral("02:00:00:00:00:01"),
                                        QByteArrayLiteral("Office"),
                                        {36, Band::k5GHz, ChannelWidth::k80MHz},
                                        433.3};
    interface->setAssociation(home);
    EXPECT_TRUE(interface->isAssociated());
    EXPECT_EQ(interface->ssid(), QStringLiteral("Office"));
    EXPECT_EQ(interface->channelWidth(), 80);
    home.transmitRate = 866.7;
    interface->setAssociation(home);
    interface->setAssociation(home);
    EXPECT_EQ(interface->transmitRate(), 866.7);

    EXPECT_FALSE(interface->setPower(false));
    EXPECT_FALSE(interface->powerOn());
    EXPECT_FALSE(interface->isAssociated());
    EXPECT_TRUE(interface->cachedScanResults().empty());
    EXPECT_TRUE(interface->scanForNetworksWithSSID(std::nullopt).error);
    EXPECT_TRUE(pause.sleeps.empty());
    interface->setPower(true);
    interface->setPower(true);
    interface->setAssociation(std::nullopt);
    EXPECT_THAT(told, ElementsAre("bssid", "quality", "power", "power", "bssid"));

    pause.shutDown = true;
    EXPECT_TRUE(interface->scanForNetworksWithSSID(std::nullopt).error);
}

TEST_F(PlayedRecording, IsNamedForAStatusLine)
{
    const auto longName = play({1}, "the-third-floor-on-a-busy-monday.morning.jsonl");
    EXPECT_LE(longName->interfaceName().size(), 24);
    EXPECT_EQ(longName->scanMethod(),
              QStringLiteral("recording the-third-floor-on-a-busy-monday.morning.jsonl"));
}

TEST_F(PlayedRecording, IsRefusedWhenThereIsNothingToPlay)
{
    EXPECT_FALSE(play({}));
    EXPECT_THAT(error.toStdString(), HasSubstr("office.jsonl holds no scans"));
}

TEST_F(PlayedRecording, SharesTheElementsThatStayTheSame)
{
    const auto interface = play({1000, 1003});
    const QByteArray first = interface->cachedScanResults().at(0).informationElementData;
    clock.advance(4);
    const QByteArray second = interface->cachedScanResults().at(0).informationElementData;
    EXPECT_EQ(first.constData(), second.constData());
}
