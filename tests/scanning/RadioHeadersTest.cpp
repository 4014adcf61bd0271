#include "scanning/capture/RadioHeaders.h"
#include "scanning/CaptureBuilder.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace tessara;

namespace {

constexpr int kBare = 105;
constexpr int kPrism = 119;
constexpr int kRadiotap = 127;
constexpr int kAVS = 163;
constexpr int kPPI = 192;

// The frame behind each header; all that counts here is where it begins.
const QByteArray kFrame = QByteArray::fromHex("80001122");

constexpr std::nullopt_t kNone = std::nullopt;

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

/// A wlan-ng message with three items, numbered by either scheme.
QByteArray prismHeader(const char* channel, const char* signal, const char* noise,
                       const char* statusOfSignal)
{
    return QByteArray::fromHex(QByteArray("440000003c000000") + "77696669300000000000000000000000" +
                               channel + "00000400" + "0b000000" + signal + statusOfSignal +
                               "0400" + "c4ffffff" + noise + "00000400" + "a6ffffff");
}

QByteArray avsHeader(const char* signalType)
{
    return QByteArray::fromHex(QByteArray("8021100100000040") + "0000000000000000" +
                               "0000000000000000" + "00000004" + "00000024" + "0000006e" +
                               "00000000" + "00000000" + signalType + "ffffffc9" + "ffffffa1" +
                               "00000000" + "00000001");
}

QByteArray ppiHeader(const char* flags, const char* signalAndNoise)
{
    // A field of three bytes goes first; the packet's flag says that fields are aligned.
    return QByteArray::fromHex(QByteArray("0001") + "2800" + "69000000" + "0100" + "0300" +
                               "aabbcc" + "00" + "0200" + "1400" + "0000000000000000" + flags +
                               "0c00" + "8514" + "4001" + "0000" + signalAndNoise);
}

} // namespace

TEST(RadioHeaders, GiveSignalNoiseChannelAndTheFrame)
{
    struct Case {
        const char* name;
        int linkType;
        QByteArray header;
        std::optional<int> signal, noise, frequency;
        bool endsWithFCS = false;
        bool isCorrupt = false;
    };
    const Case cases[] = {
        {"bare", kBare, "", kNone, kNone, kNone},
        {"radiotap: flags with FCS, rate, channel, signal, noise, antenna", kRadiotap,
         hex("00001100 6e080000 10 02 6c09 a000 c4 a6 01"), -60, -90, 2412, true},
        {"radiotap: a bad FCS", kRadiotap, hex("00000900 02000000 50"), kNone, kNone, kNone, true,
         true},
        {"radiotap: fields aligned from the header's start", kRadiotap,
         hex("00001d00 2b000000 1122334455667788 00 00 8514 4001 b5 00000000"
             "0000"),
         -75, kNone, 5253},
        {"radiotap: a time after two present words begins at 16", kRadiotap,
         hex("00002600 2b0000a0 20080000 00000000 1122334455667788 10 00 6c09 a000"
             "d8 ce 01 0000000000"),
         -40, kNone, 2412, true},
        {"radiotap: the first of several signals is that of the radio", kRadiotap,
         hex("00001800 200000a0 200800a0 20080000 d8 c4 00 d0 01 000000"), -40, kNone, kNone},
        {"radiotap: no signal before those of the antennas", kRadiotap,
         hex("00001000 000000a0 20080000 c4 00 0000"), -60, kNone, kNone},
        {"radiotap: a vendor's namespace is skipped, whatever its bits", kRadiotap,
         hex("00001c00 000000c0 ff0000a0 20000000 001122 00 0300 ddccbb d0 0000"), -48, kNone,
         kNone},
        {"radiotap: extended channel, MCS and A-MPDU before the second word", kRadiotap,
         hex("00002300 00001ca0 20000000 40010000 6c09 01 00 010203 00 01020304"
             "05060708 d6 0000"),
         -42, kNone, 2412},
        {"radiotap: what lies behind a field of unknown size cannot be found", kRadiotap,
         hex("00000f00 02000090 20000000 00 c4 c4"), kNone, kNone, kNone},
        {"radiotap: a field beyond the header's end is absent", kRadiotap,
         hex("00000900 22000000 10"), kNone, kNone, kNone, true},
        {"PPI", kPPI, ppiHeader("0100", "c9a1"), -55, -95, 5253, true},
        {"PPI: a bad FCS", kPPI, ppiHeader("0500", "c9a1"), -55, -95, 5253, true, true},
        {"PPI: levels that are not known", kPPI, ppiHeader("0000", "8080"), kNone, kNone, 5253},
        {"Prism", kPrism, prismHeader("44000300", "44000600", "44000700", "0000"), -60, -90, 2462},
        {"Prism, numbered the other way", kPrism,
         prismHeader("41300000", "41600000", "41700000", "0000"), -60, -90, 2462},
        {"Prism: an item without a value", kPrism,
         prismHeader("44000300", "44000600", "44000700", "0100"), kNone, -90, 2462},
        {"AVS", kAVS, avsHeader("00000002"), -55, -95, 5180},
        {"AVS: signals of another unit", kAVS, avsHeader("00000001"), kNone, kNone, 5180},
        {"AVS behind the link type of Prism", kPrism, avsHeader("00000002"), -55, -95, 5180},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const QByteArray packet = c.header + kFrame;
        const auto received = radioHeaderDecoder(c.linkType)(bytesOf(packet));
        ASSERT_TRUE(received);
        EXPECT_TRUE(std::ranges::equal(received->frame, bytesOf(kFrame)));
        EXPECT_EQ(received->signal, c.signal);
        EXPECT_EQ(received->noise, c.noise);
        EXPECT_EQ(received->frequency, c.frequency);
        EXPECT_EQ(received->endsWithFCS, c.endsWithFCS);
        EXPECT_EQ(received->isCorrupt, c.isCorrupt);
    }
}

TEST(RadioHeaders, RefuseWhatIsNoHeader)
{
    struct Case {
        const char* name;
        int linkType;
        QByteArray packet;
    };
    const Case cases[] = {
        {"nothing", kRadiotap, ""},
        {"radiotap of another version", kRadiotap, hex("01000800000000008000")},
        {"radiotap longer than the packet", kRadiotap, hex("00000b0000000000")},
        {"radiotap shorter than itself", kRadiotap, hex("00000700000000008000")},
        {"PPI before another link type", kPPI, hex("00000800010000008000")},
        {"PPI longer than the packet", kPPI, hex("0000090069000000")},
        {"Prism of another message", kPrism,
         hex("45000000180000000000000000000000000000000000000000008000")},
        {"Prism longer than the packet", kPrism, hex("44000000ffffffff")},
        {"AVS of another version", kAVS, hex("80211009") + QByteArray(80, '\0')},
        {"AVS longer than the packet", kAVS, hex("8021100100000040")},
    };
    for (const Case& c : cases)
        EXPECT_FALSE(radioHeaderDecoder(c.linkType)(bytesOf(c.packet))) << c.name;
    EXPECT_EQ(radioHeaderDecoder(1), nullptr); // Ethernet
}
