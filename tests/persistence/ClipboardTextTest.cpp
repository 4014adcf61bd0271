#include "persistence/ClipboardText.h"

#include "model/TSNetwork.h"
#include "model/TimeText.h"
#include "support/QtPrinters.h"

#include <QMimeData>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <gmock/gmock.h>

using namespace tessara;

namespace {

std::unique_ptr<TSNetwork> network(const char* ssid, std::int64_t rssi)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("a:b:c:d:e:f");
    dictionary.ssid = QString::fromUtf8(ssid);
    dictionary.channelNumber = 6;
    auto result = std::make_unique<TSNetwork>(dictionary, 1'700'000'000.0);
    result->addDataPoint({rssi, -90, -1, -1, 1'700'000'000.0});
    return result;
}

std::vector<const Column*> columns(const char* identifiers)
{
    std::vector<const Column*> result;
    for (const QString& identifier : QString::fromLatin1(identifiers).split(u' '))
        result.push_back(columnWithIdentifier(identifier));
    return result;
}

} // namespace

TEST(ClipboardTextTest, MakesABlockOfLinesForEachRow)
{
    const auto first = network("Büro", -67);
    const auto second = network("Attic", -85);
    const auto shown = columns("IS_USER_HIDDEN SSID RSSI NOISE_MAX SNR VENDOR CHANNEL");
    EXPECT_EQ(textOfRows({first.get(), second.get()}, shown, {.dBm = true, .isScanning = true}),
              QStringLiteral("Network Name: Büro\nSignal: -67 dBm\nMax Noise: -90 dBm\nSNR: 23 dB\n"
                             "Channel: 6\n\n"
                             "Network Name: Attic\nSignal: -85 dBm\nMax Noise: -90 dBm\n"
                             "SNR: 5 dB\nChannel: 6"))
        << "a column without a value makes no line";
    EXPECT_EQ(textOfRows({first.get()}, columns("RSSI NOISE_MAX SNR"), {}),
              QStringLiteral("Signal: 55%\nMax Noise: 8%\nSNR: 23 dB"));
    EXPECT_EQ(
        textOfRows({first.get()}, columns("FIRST_SEEN LAST_SEEN SEEN"), {.isScanning = true}),
        QStringLiteral("First Seen: %1\nLast Seen: %1\nSeen: %1").arg(timeText(1'700'000'000.0)))
        << "no time that is told from now";
}

TEST(ClipboardTextTest, OffersRichAndPlainText)
{
    const auto data = clipboardData(QStringLiteral("Name: {Büro}"));
    EXPECT_EQ(data->text(), QStringLiteral("Name: {Büro}"));
    EXPECT_EQ(data->data(QStringLiteral("text/rtf")), richText(data->text()));
}

TEST(ClipboardTextTest, AnotherProgramReadsTheRichText)
{
    if (QStandardPaths::findExecutable(QStringLiteral("unrtf")).isEmpty())
        GTEST_SKIP() << "needs unrtf";
    // It makes HTML, and takes the two halves of a character beyond U+FFFF for two characters.
    const QString text =
        QStringLiteral("Name: {a}\\b\\par ä, 名前\nSignal: -67 dBm\n\n'x' \"y\" <z>");
    const QString command =
        QStringLiteral("unrtf --quiet --html \"$0\" | python3 -c 'import html, re, sys\n"
                       "body = re.sub(r\"(?s)^.*?<body>|</body>.*|<br>\", \"\", sys.stdin.read())\n"
                       "sys.stdout.write(html.unescape(re.sub(\"<[^>]*>\", \"\", body)))'");
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(richText(text));
    file.close();
    QProcess process;
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command, file.fileName()});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(process.readAllStandardOutput()), text);
    EXPECT_TRUE(richText(QStringLiteral("🦊")).contains("\\u-10178\\'3f\\u-8822\\'3f"))
        << "RTF 1.9: UTF-16";
}
