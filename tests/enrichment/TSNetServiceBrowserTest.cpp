#include "enrichment/TSNetServiceBrowser.h"

#include "enrichment/FakeNetServices.h"
#include "support/ManualClock.h"

#include <QSignalSpy>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;

namespace {

class TSNetServiceBrowserTest : public testing::Test {
protected:
    std::string name(const char* bssid) const
    {
        return browser.deviceNameFor(QString::fromLatin1(bssid))
            .value_or(QStringLiteral("(none)"))
            .toStdString();
    }
    static QByteArrayList radio(const QByteArray& address) { return {"waMA=raMA=" + address}; }

    FakeNetServices services;
    ManualClock clock;
    TSNetServiceBrowser browser{services, clock};
};

} // namespace

TEST_F(TSNetServiceBrowserTest, KnowsTheRadiosOfADeviceByItsName)
{
    browser.searchServices();
    EXPECT_EQ(services.searchedFor, QStringLiteral("_airport._tcp.local"));
    services.find(QStringLiteral("Büro 2"), true);
    services.find(QStringLiteral("Keller"), true);
    EXPECT_EQ(services.timeout, 5.0);
    services.answer({"waMA=0-1,raMA=00-1C-B3-00-00-02,raM2=00-1c-b3-00-00-0a"});
    EXPECT_EQ(name("00:1C:B3:00:00:02"), "Büro 2");
    EXPECT_EQ(name("00:1c:b3:00:00:0a"), "Büro 2");
    EXPECT_EQ(name("00:1C:B3:00:00:0A"), "(none)") << "the letters count";
    EXPECT_EQ(name(""), "(none)");
    services.answer(radio("00-1C-B3-00-00-02"));
    EXPECT_EQ(name("00:1C:B3:00:00:02"), "Keller") << "the later one has it";
}

TEST_F(TSNetServiceBrowserTest, SearchesForGoodWithPausesThatGrow)
{
    browser.searchServices();
    clock.advance(3600);
    EXPECT_EQ(services.searches, 1) << "nothing was found: the search is still under way";

    std::vector<double> pauses;
    for (int i = 0; i < 6; ++i) {
        services.find(QStringLiteral("Keller"), true);
        EXPECT_TRUE(services.isSearching);
        services.find(QStringLiteral("Attic"), false);
        EXPECT_FALSE(services.isSearching);
        const double begin = clock.now();
        while (!services.isSearching)
            clock.advance(0.5);
        pauses.push_back(clock.now() - begin);
    }
    EXPECT_THAT(pauses, ElementsAre(4, 8, 16, 30, 30, 30));
    EXPECT_EQ(services.searches, 7);
    EXPECT_EQ(services.resolving.size(), 2U) << "they have not answered and are not asked twice";
}

TEST_F(TSNetServiceBrowserTest, AsksAgainWhatDidNotResolve)
{
    browser.searchServices();
    services.find(QStringLiteral("Keller"), false);
    services.dontAnswer();
    EXPECT_TRUE(services.resolving.empty());
    clock.advance(4);
    services.find(QStringLiteral("Keller"), false);
    services.answer(radio("1-2"));
    EXPECT_EQ(name("1:2"), "Keller");
}

TEST_F(TSNetServiceBrowserTest, KeepsWithinBoundsWhatANetworkAnnounces)
{
    browser.searchServices();
    services.find(QString(64, u'x'), true);
    services.find(QString(32, u'ü'), true);
    EXPECT_TRUE(services.resolving.empty()) << "these are too long for names";
    for (int i = 0; i < 20'000; ++i)
        services.find(QString::number(i), true);
    int answers = 0;
    for (; !services.resolving.empty(); ++answers) {
        ASSERT_LE(services.resolving.size(), 32U) << "the daemon would refuse more";
        QByteArray many;
        for (int j = 0; j < 10; ++j)
            many += ",raMA=" + QByteArray::number(answers * 10 + j);
        services.answer({"waMA=" + many});
    }
    EXPECT_LT(answers, 5000);
    EXPECT_EQ(name("0"), "0") << "what is known stays known";
    EXPECT_EQ(name("39999"), "(none)");
    services.find(QStringLiteral("late"), false);
    services.answer(radio("5"));
    EXPECT_EQ(name("5"), "late");
}

TEST_F(TSNetServiceBrowserTest, TellsWhenAllThatWasFoundHasAnswered)
{
    QSignalSpy told(&browser, &TSNetServiceBrowser::didLookUpServices);
    browser.searchServices();
    services.find(QStringLiteral("Keller"), true);
    services.answer(radio("1-2"));
    EXPECT_EQ(told.size(), 0) << "more may come";
    services.find(QStringLiteral("Attic"), false);
    EXPECT_EQ(told.size(), 0);
    services.dontAnswer();
    EXPECT_EQ(told.size(), 1);
}
