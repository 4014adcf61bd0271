#include "model/EstimatedMCS.h"
#include "model/OccupiedChannels.h"
#include "model/PhyMode.h"
#include "model/RateText.h"
#include "model/TSNetwork.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace tessara;

namespace {

TSNetwork network(const QByteArray& elementsInHex)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("0:0:0:0:0:1");
    dictionary.informationElementData = QByteArray::fromHex(elementsInHex);
    return {dictionary, 0};
}

} // namespace

TEST(OccupiedChannels, AreThoseOfTheBlockThatHoldsThePrimaryOne)
{
    struct Case {
        int channel;
        ChannelWidth width;
        int offset;
        const char* shown;
        int center;
        const char* range;
        const char* underlined;
    };
    using enum ChannelWidth;
    const Case cases[] = {
        {6, k20MHz, 0, "6", 6, "6", ""},
        {40, k40MHz, 3, "40,-1", 38, "36 40", "40"},
        {11, k40MHz, 3, "11,-1", 9, "7 11", "11"},
        {149, k80MHz, 0, "149", 155, "149 153 157 161", "149"},
        {144, k80MHz, 0, "144", 138, "132 136 140 144", "144"},
        {36, k160MHz, 0, "36", 50, "36 40 44 48 52 56 60 64", "36"},
        {128, k160MHz, 0, "128", 114, "100 104 108 112 116 120 124 128", "128"},
        {149, k160MHz, 0, "149", 149, "0", ""},
    };
    for (const Case& c : cases) {
        const ChannelPlace place{c.channel, c.width, c.offset};
        EXPECT_EQ(humanReadableChannel(place), QString::fromLatin1(c.shown));
        EXPECT_EQ(channelCenter(place), c.center) << c.shown;
        const ChannelRangeText range = humanReadableChannelRange(place);
        EXPECT_EQ(range.text, QString::fromLatin1(c.range));
        EXPECT_EQ(range.text.mid(range.underlineStart, range.underlineLength),
                  QString::fromLatin1(c.underlined));
    }
    const std::pair<int, const char*> parts[] = {
        {1, "2.4 GHz ISM"},
        {35, "2.4 GHz ISM"},
        {36, "5 GHz UNII-1"},
        {48, "5 GHz UNII-1"},
        {49, "5 GHz UNII-2"},
        {99, "5 GHz UNII-2"},
        {100, "5 GHz UNII-2 Extended"},
        {148, "5 GHz UNII-2 Extended"},
        {149, "5 GHz UNII-3"},
    };
    for (const auto& [channel, name] : parts)
        EXPECT_STREQ(humanReadableChannelBand(channel).text(), name) << channel;
}

TEST(RateText, ShowsTenthsOnlyWhereThereAreSome)
{
    const double rates[] = {-6, 9, -12, 54};
    EXPECT_EQ(humanReadableDataRates(rates), QStringLiteral("6(B), 9, 12(B), 54"));
    EXPECT_EQ(humanReadableBasicDataRates(rates), QStringLiteral("6, 12"));
    const double fractions[] = {-5.5, 6.5, 866.668, 1300.002};
    EXPECT_EQ(humanReadableDataRates(fractions), QStringLiteral("5.5(B), 6.5, 866.7, 1300"));
    EXPECT_EQ(humanReadableDataRates({}), QString());
    const std::pair<float, const char*> values[] = {
        {54.0F, "54"},     {5.5F, "5.5"}, {433.334F, "433.3"},
        {1300.0F, "1300"}, {0.0F, ""},    {-1.0F, ""},
    };
    for (const auto& [rate, text] : values)
        EXPECT_EQ(rateValue(rate), QString::fromLatin1(text));
}

TEST(EstimatedMCS, IsTheHighestIndexWhoseThresholdTheRatioReaches)
{
    struct Case {
        int snr;
        std::int64_t modes;
        ChannelWidth width;
        int index;
    };
    using enum ChannelWidth;
    const Case cases[] = {
        {0, kPhyModeN, k20MHz, -1},
        {1, kPhyModeN, k20MHz, -1},
        {2, kPhyModeN, k20MHz, 0},
        {24, kPhyModeN, k20MHz, 6},
        {25, kPhyModeN, k20MHz, 7},
        {90, kPhyModeN, k20MHz, 7},
        {28, kPhyModeN, k40MHz, 7},
        {28, kPhyModeN, k80MHz, -1},
        {40, kPhyModeAC, k160MHz, 9},
        {39, kPhyModeAC, k160MHz, 8},
        {35, kPhyModeAC | kPhyModeN, k80MHz, 8},
        {31, kPhyModeAC, k20MHz, 9},
        {30, kPhyModeAC, k80Plus80MHz, -1},
        {20, kPhyModeB | kPhyModeG, k20MHz, 7},
        {3, kPhyModeA, k20MHz, 0},
        {16, kPhyModeB, k20MHz, 3},
        {3, kPhyModeB, k20MHz, -1},
        {30, 0, k20MHz, -1},
    };
    for (const Case& c : cases)
        EXPECT_EQ(estimatedMCS(c.snr, c.modes, c.width), c.index) << c.snr << ' ' << c.modes;
}

TEST(TSNetworkValues, NameTheKindOfSecurity)
{
    const TSNetwork mixed = network("3014 0100 000fac04 0100 000fac04 0100 000fac02 0000"
                                    "dd16 0050f201 0100 0050f202 0100 0050f202 0100 0050f202");
    EXPECT_EQ(mixed.securityMode(), QStringLiteral("WPA/WPA2 Personal"));
    EXPECT_TRUE(mixed.security().isWPA && mixed.security().isWPA2 && mixed.security().isPSK);
    EXPECT_FALSE(mixed.isOpen() || mixed.security().is80211X || mixed.security().isWEP);

    const TSNetwork open = network("0000");
    EXPECT_EQ(open.securityMode(), QString());
    EXPECT_TRUE(open.isOpen());
    EXPECT_EQ(open.firstSeenValue(), std::nullopt) << "no samples";
}
