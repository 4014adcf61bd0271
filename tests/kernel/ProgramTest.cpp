#include "kernel/RadioTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tessara;
using namespace tessara::kernel;

namespace {

constexpr double kMillisecondsPerTimeUnit = 1.024;

QString outputOfProgram(const QString& arguments)
{
    return outputOf(QStringLiteral("'" TESSARA_CLI "' ") + arguments);
}

// The whole way: kernel, engine, scan cycle, display pipeline, output.
TEST(Program, ListsTheNetworksOfALiveScan)
{
    const QString text = outputOfProgram(
        QStringLiteral("scan --no-settings --interface wlan0 --duration 6 --format json"));
    const QJsonArray listed =
        QJsonDocument::fromJson(text.toUtf8()).object()[QLatin1String("networks")].toArray();
    const std::vector<AnnouncedNetwork> standing = standingNetworks();
    EXPECT_EQ(listed.size(), static_cast<qsizetype>(standing.size())) << text.toStdString();
    for (const QJsonValue& network : listed) {
        const QJsonObject record = network[QLatin1String("record")].toObject();
        const QString bssid = record[QLatin1String("bssid")].toString();
        SCOPED_TRACE(bssid.toStdString());
        const auto told = std::ranges::find_if(standing, [&](const AnnouncedNetwork& candidate) {
            return candidate.bssid.compare(bssid, Qt::CaseInsensitive) == 0;
        });
        ASSERT_NE(told, standing.end());
        EXPECT_EQ(record[QLatin1String("isHidden")].toBool(), told->isHidden);
        if (!told->isHidden) {
            EXPECT_EQ(record[QLatin1String("ssid")].toString(), QString::fromUtf8(told->ssid));
        }
        EXPECT_EQ(record[QLatin1String("channel")].toInt(), told->channel);
        EXPECT_NEAR(record[QLatin1String("beaconInterval")].toDouble(),
                    told->beaconInterval * kMillisecondsPerTimeUnit, 0.01);
    }
}

TEST(Program, TellsOfTheInterfaces)
{
    const QString text = outputOfProgram(QStringLiteral("interfaces"));
    EXPECT_TRUE(text.startsWith(QLatin1String("wlan0: power on, not associated\n"
                                              "    scans by nl80211")))
        << text.toStdString();
}

} // namespace
