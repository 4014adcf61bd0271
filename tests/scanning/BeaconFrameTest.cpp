#include "scanning/capture/BeaconFrame.h"
#include "scanning/CaptureBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessara;

namespace {

ReceivedFrame received(const QByteArray& frame)
{
    return {.frame = bytesOf(frame)};
}

// The elements of a network on channel 36 that names it in HT Operation alone.
const QByteArray kHTOperation36 = element(61, "\x24" + QByteArray(21, '\0'));
// HE Operation with 6 GHz Operation Information.
const QByteArray kHEOperation6GHz = element(255, QByteArray::fromHex("24000002000000"));

} // namespace

TEST(BeaconFrame, ReadsTheFixedFieldsAndElements)
{
    const QByteArray elements = ssidElement("Net") + dsElement(11);
    const QByteArray frame = build({.control = 0x0850, // retried
                                    .beaconInterval = 512,
                                    .capability = 0x0012,
                                    .elements = elements});
    const auto beacon = decodeBeacon(received(frame), 0);
    ASSERT_TRUE(beacon);
    EXPECT_TRUE(beacon->isProbeResponse);
    EXPECT_TRUE(std::ranges::equal(beacon->bssid, bytesOf(QByteArray::fromHex("02aabbccdd01"))));
    EXPECT_EQ(beacon->beaconInterval, 512);
    EXPECT_TRUE(beacon->ibss);
    EXPECT_TRUE(beacon->privacy);
    EXPECT_TRUE(std::ranges::equal(beacon->elements, bytesOf(elements)));
    EXPECT_EQ(beacon->channel, 11);
}

TEST(BeaconFrame, PassesOverEveryOtherFrame)
{
    struct Case {
        const char* name;
        QByteArray frame;
    };
    const Case cases[] = {
        {"nothing", ""},
        {"association response", build({.control = 0x0010})},
        {"data", build({.control = 0x0088})},
        {"a version to come", build({.control = 0x0081})},
        {"encrypted", build({.control = 0x4050})},
        {"first fragment", build({.control = 0x0450})},
        {"second fragment", build({.control = 0x0050, .sequence = 0x1231})},
        {"fixed fields cut short", build({.elements = ""}).chopped(1)},
        {"fixed fields cut short behind an HT Control field",
         build({.control = 0x8080, .htControl = "HTC!", .elements = ""}).chopped(1)},
        {"6 GHz by its elements", build({.elements = ssidElement("Six") + kHEOperation6GHz})},
    };
    for (const Case& c : cases)
        EXPECT_FALSE(decodeBeacon(received(c.frame), 0)) << c.name;

    const QByteArray good = build({});
    ASSERT_TRUE(decodeBeacon(received(good), 0));
    EXPECT_FALSE(decodeBeacon({.frame = bytesOf(good), .isCorrupt = true}, 0));
    const QByteArray badFCS = good + "FCS!";
    EXPECT_FALSE(decodeBeacon({.frame = bytesOf(badFCS), .endsWithFCS = true}, 0));
    EXPECT_FALSE(decodeBeacon({.frame = bytesOf(good), .frequency = 5955}, 0));
}

TEST(BeaconFrame, TakesTheElementsWithoutWhatSurroundsThem)
{
    const QByteArray elements = ssidElement("Net") + dsElement(6);
    const QByteArray plain = build({});
    // Trailing bytes that happen to look like an element, and are not the frame's check sequence.
    const QByteArray lookalike = element(5, "ab");
    struct Case {
        const char* name;
        QByteArray frame;
        bool endsWithFCS;
        std::size_t missingBytes;
        QByteArray elements;
    };
    const Case cases[] = {
        {"no FCS", plain, false, 0, elements},
        {"FCS that the header tells of", withFCS(plain), true, 0, elements},
        {"FCS that nothing tells of", withFCS(plain), false, 0, elements},
        {"FCS that was cut off", plain, true, 4, elements},
        {"FCS of which half was cut off", withFCS(plain).chopped(2), true, 2, elements},
        {"an element in the place of the FCS", plain + lookalike, false, 0, elements + lookalike},
        {"an HT Control field", build({.control = 0x8080, .htControl = "HTC!"}), false, 0,
         elements},
        {"cut in its last element", plain.chopped(1), false, 1, elements.chopped(1)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto beacon =
            decodeBeacon({.frame = bytesOf(c.frame), .endsWithFCS = c.endsWithFCS}, c.missingBytes);
        ASSERT_TRUE(beacon);
        EXPECT_TRUE(std::ranges::equal(beacon->elements, bytesOf(c.elements)));
    }
}

TEST(BeaconFrame, KnowsItsChannelFromTheBestSource)
{
    struct Case {
        const char* name;
        QByteArray elements;
        std::optional<int> frequency;
        int channel;
    };
    const Case cases[] = {
        {"DS Parameter Set", dsElement(7) + kHTOperation36, 2417, 7},
        {"HT Operation", kHTOperation36, 5200, 36},
        {"frequency", ssidElement("Net"), 5200, 40},
        {"channel 0 says nothing", dsElement(0), 2484, 14},
        {"nothing", ssidElement("Net"), {}, 0},
    };
    for (const Case& c : cases) {
        const QByteArray frame = build({.elements = c.elements});
        const auto beacon = decodeBeacon({.frame = bytesOf(frame), .frequency = c.frequency}, 0);
        ASSERT_TRUE(beacon) << c.name;
        EXPECT_EQ(beacon->channel, c.channel) << c.name;
    }
}
