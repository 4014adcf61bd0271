#include "cli/TableText.h"
#include "cli/Terminal.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <clocale>

using namespace tessara;

namespace {

NetworkPtr network(const QString& name)
{
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("0:0:0:0:0:1");
    dictionary.channelNumber = 6;
    dictionary.ssid = name;
    return std::make_shared<TSNetwork>(dictionary, 0);
}

std::vector<const Column*> columns(std::initializer_list<QStringView> identifiers)
{
    std::vector<const Column*> result;
    for (const QStringView identifier : identifiers)
        result.push_back(columnWithIdentifier(identifier));
    return result;
}

class TableTextTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr); }
};

} // namespace

TEST_F(TableTextTest, LinesUpWhateverTheNamesAreWrittenIn)
{
    const NetworkList networks = {network(QStringLiteral("Home")),
                                  network(QStringLiteral("喫茶月光")),
                                  network(QStringLiteral("cafe\u0301"))};
    const QStringList table = tableText(networks, columns({u"SSID", u"CHANNEL"}), {}, 0);
    const QStringList expected = {
        QStringLiteral("Network Name  Channel"),
        QStringLiteral("Home                6"),
        QStringLiteral("喫茶月光            6"),
        QStringLiteral("cafe\u0301                6"),
    };
    EXPECT_EQ(table, expected);
}

TEST_F(TableTextTest, CutsNamesAndThenLeavesColumnsOutToFitTheTerminal)
{
    const NetworkList networks = {network(QStringLiteral("A rather long name")),
                                  network(QStringLiteral("光光光光光光光光光"))};
    const auto all = columns({u"BSSID", u"SSID", u"CHANNEL"});
    for (int width = 60; width > 0; --width) {
        for (const QString& line : tableText(networks, all, {}, width))
            EXPECT_LE(displayWidth(line), width) << line.toStdString();
    }
    EXPECT_EQ(tableText(networks, all, {}, 40)[1],
              QStringLiteral("00:00:00:00:00:01  A rather lo…        6"));
    EXPECT_EQ(tableText(networks, all, {}, 37)[1],
              QStringLiteral("00:00:00:00:00:01  A rather long name"))
        << "without the channel there is room for the name";
    EXPECT_EQ(tableText(networks, all, {}, 20)[1], QStringLiteral("00:00:00:00:00:01"));
    EXPECT_EQ(tableText(networks, all, {}, 12)[1], QStringLiteral("00:00:00:00…"));
    EXPECT_EQ(tableText(networks, columns({u"SSID", u"CHANNEL"}), {}, 19)[2],
              QStringLiteral("光光光光…         6"))
        << "half a character is not shown";
}

TEST_F(TableTextTest, ANameCannotCommandTheTerminal)
{
    const QStringList table = tableText({network(QStringLiteral("a\x1b[2J\r\n\tb\u202Ec\u0007"))},
                                        columns({u"SSID"}), {}, 0);
    EXPECT_EQ(table[1], QStringLiteral("a\uFFFD[2J\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD"));
}
