#include "shell/NetworkDetailsForm.h"

#include "foundation/Directories.h"
#include "shell/NetworkDetailsText.h"
#include "shell/TestNetworks.h"

#include <QLabel>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

const QLabel* label(const NetworkDetailsForm& form, const char* name)
{
    for (const QLabel* each : form.findChildren<QLabel*>()) {
        if (each->accessibleDescription() == QLatin1String(name))
            return each;
    }
    throw std::out_of_range(name);
}

} // namespace

TEST(NetworkDetailsText, TellsTheQualityByTheRatioOfSignalToNoise)
{
    const std::pair<int, const char*> levels[] = {
        {41, "Excellent"}, {40, "Good"},      {26, "Good"},      {25, "Poor"},
        {16, "Poor"},      {15, "Very Poor"}, {11, "Very Poor"}, {10, "Extremely Poor"}};
    for (const auto& [snr, text] : levels) {
        EXPECT_STREQ(signalQuality(snr).text.text(), text) << snr;
        EXPECT_EQ(signalQuality(snr).isPoor, snr <= 25) << snr;
    }
    const NetworkPtr network = testNetwork(1, -50);
    network->addDataPoint({-120, -120, -1, -1, 2});
    EXPECT_STREQ(signalQuality(*network, true).text.text(), "No Signal");
    EXPECT_STREQ(signalQuality(*network, false).text.text(), "Excellent")
        << "of a file the last reading";
}

TEST(NetworkDetailsText, HasReadingsInTheChosenUnit)
{
    const NetworkPtr network = testNetwork(1, -67);
    network->addDataPoint({-73, -95, -1, -1, 2});
    const auto dBm = NetworkDetailsText::of(*network, true);
    EXPECT_EQ(dBm.rssi, QStringLiteral("-73 dBm"));
    EXPECT_EQ(dBm.rssiAvg, QStringLiteral("-70/-73/-67 dBm"));
    const auto percent = NetworkDetailsText::of(*network, false);
    EXPECT_EQ(percent.noise, QStringLiteral("1%"));
    EXPECT_EQ(percent.noiseAvg, QStringLiteral("1%/1%/3%"));
    EXPECT_EQ(percent.snrAvg, QStringLiteral("23/22/25 dB"));
}

TEST(NetworkDetailsForm, ShowsOnlyWhatThereIs)
{
    NetworkDetailsForm form;
    form.setVendorURL([](const QString& vendor) {
        return vendor == u"A<B" ? std::optional(QStringLiteral("https://a.example/?x&y"))
                                : std::nullopt;
    });
    class OneVendor final : public VendorDirectory {
    public:
        std::optional<QString> vendorFor(const QString&) const override
        {
            return QStringLiteral("A<B");
        }
    } vendors;
    Directories::installed().vendors = &vendors;
    form.show();
    form.setNetwork(testNetwork(1), {});
    Directories::installed() = {};
    EXPECT_TRUE(label(form, "BSSID")->isVisible());
    EXPECT_EQ(label(form, "BSSID")->text(), QStringLiteral("02:00:00:00:00:01"));
    EXPECT_FALSE(label(form, "Encryption")->isVisible()) << "an open network has none";
    EXPECT_FALSE(label(form, "Beacon Interval")->isVisible());
    EXPECT_EQ(label(form, "WPS")->text(), QStringLiteral("Not Detected"));
    EXPECT_TRUE(label(form, "Vendor")
                    ->text()
                    .endsWith(QLatin1String("<a href=\"https://a.example/?x&amp;y\">A&lt;B</a>")));

    form.setNetwork(nullptr, {});
    EXPECT_FALSE(label(form, "BSSID")->isVisible());
}

TEST(NetworkDetailsForm, FollowsTheDesktopFromLightToDark)
{
    NetworkDetailsForm form;
    form.setNetwork(testNetwork(1), {});
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    form.setPalette(dark);
    for (const QLabel* shown : form.findChildren<QLabel*>())
        EXPECT_GT(shown->palette().color(QPalette::WindowText).lightnessF(), 0.5)
            << shown->text().toStdString();
}
