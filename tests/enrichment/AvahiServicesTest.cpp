#include "enrichment/AvahiServices.h"

#include "enrichment/StandInAvahi.h"
#include "support/PrivateBus.h"

#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tessara;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const auto kType = QStringLiteral("_airport._tcp.");
const auto kDomain = QStringLiteral("local");

/// Remembers what it is told, a word for each.
class RecordingDelegate final : public NetServicesDelegate {
public:
    void netServiceBrowserDidFindService(const NetService& service, bool moreComing) override
    {
        found = service;
        told.push_back(service.name.toStdString() + (moreComing ? "..." : "."));
    }
    void netServiceBrowserDidStopSearch() override { told.emplace_back("stopped"); }
    void netServiceDidResolveAddress(const NetService& service, const QByteArrayList& txt) override
    {
        told.push_back(service.name.toStdString() + " " + txt.join('|').toStdString());
    }
    void netServiceDidNotResolve(const NetService& service) override
    {
        told.push_back(service.name.toStdString() + "?");
    }

    NetService found{};
    std::vector<std::string> told;
};

class AvahiServicesTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (bus.address().isEmpty())
            GTEST_SKIP() << "dbus-daemon cannot be started (package dbus-daemon)";
        services.setDelegate(&delegate);
    }

    static bool becomesTrue(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, 10'000);
    }
    /// Whether the delegate comes to be told so many things.
    bool tells(std::size_t count)
    {
        return becomesTrue([&] { return delegate.told.size() >= count; });
    }
    bool searches(int started)
    {
        return becomesTrue([&] { return daemon && daemon->started == started; });
    }
    void startDaemon() { daemon = std::make_unique<StandInAvahi>(bus.connection()); }

    PrivateBus bus;
    std::unique_ptr<StandInAvahi> daemon;
    RecordingDelegate delegate;
    AvahiServices services{bus.connection()};
};

} // namespace

TEST_F(AvahiServicesTest, FindsWhatIsThereAndThenWhatComes)
{
    startDaemon();
    services.searchForServices(kType, kDomain);
    ASSERT_TRUE(searches(1));
    daemon->find(bus.connection(), QStringLiteral("forged"));
    daemon->send(QStringLiteral("ItemNew"), {1, 2});
    daemon->send(QStringLiteral("CacheExhausted"));
    daemon->find(QStringLiteral("a"));
    daemon->find(QStringLiteral("b"));
    daemon->send(QStringLiteral("AllForNow"));
    ASSERT_TRUE(tells(2));
    daemon->find(QStringLiteral("c"));
    ASSERT_TRUE(tells(3));
    EXPECT_THAT(delegate.told, ElementsAre("a...", "b.", "c."));
    EXPECT_EQ(delegate.found,
              (NetService{2, QStringLiteral("c"), QStringLiteral("_airport._tcp"), kDomain}));
    services.stop();
    services.stop();
    EXPECT_EQ(delegate.told.back(), "stopped");
    EXPECT_EQ(delegate.told.size(), 4U);
    EXPECT_TRUE(becomesTrue([&] { return daemon->freed == 1; }));
}

TEST_F(AvahiServicesTest, ASearchOutlivesTheDaemon)
{
    services.searchForServices(kType, kDomain);
    for (const char* name : {"a", "b"}) {
        startDaemon(); // after the search, and again
        ASSERT_TRUE(searches(1));
        daemon->send(QStringLiteral("AllForNow"));
        daemon->find(QString::fromLatin1(name));
        ASSERT_TRUE(tells(1)) << name;
        EXPECT_THAT(delegate.told, ElementsAre(std::string(name) + "."));
        delegate.told.clear();
        daemon.reset();
    }
    services.stop();
    startDaemon();
    EXPECT_FALSE(QTest::qWaitFor([&] { return daemon->started > 0; }, 100)) << "nobody asked";
}

TEST_F(AvahiServicesTest, EndsASearchThatTheDaemonRefusesOrGivesUp)
{
    startDaemon();
    daemon->refusesToSearch = true;
    services.searchForServices(kType, kDomain);
    ASSERT_TRUE(tells(1));
    EXPECT_THAT(delegate.told, ElementsAre("stopped"));

    daemon->refusesToSearch = false;
    services.searchForServices(kType, kDomain);
    services.searchForServices(kType, kDomain); // takes the place of the first
    ASSERT_TRUE(searches(1));
    EXPECT_TRUE(becomesTrue([&] { return daemon->freed == 1; })) << "the first one's browser";
    daemon->send(QStringLiteral("Failure"), {QStringLiteral("Not permitted")});
    ASSERT_TRUE(tells(2));
    EXPECT_THAT(delegate.told, ElementsAre("stopped", "stopped"));
}

TEST_F(AvahiServicesTest, ResolvesAServiceOrSaysThatItDidNot)
{
    const NetService service{2, QStringLiteral("Büro"), QStringLiteral("_airport._tcp"), kDomain};
    services.resolve(service, 5);
    ASSERT_TRUE(tells(1)) << "there is no daemon";
    startDaemon();
    daemon->txt = {QVariant::fromValue(QByteArrayList{"waMA=\xff", "", "x"})};
    services.resolve(service, 5);
    ASSERT_TRUE(tells(2));
    daemon->txt = {QStringLiteral("no array of bytes")};
    services.resolve(service, 5);
    ASSERT_TRUE(tells(3));
    daemon->resolves = false;
    services.resolve(service, 0.05);
    ASSERT_TRUE(tells(4));
    EXPECT_THAT(delegate.told, ElementsAre("Büro?", "Büro waMA=\xff||x", "Büro?", "Büro?"));
}

TEST(AvahiServices, FindNothingWithoutABus)
{
    RecordingDelegate delegate;
    AvahiServices services(QDBusConnection(QStringLiteral("no such bus")));
    services.setDelegate(&delegate);
    testing::internal::CaptureStderr();
    services.searchForServices(kType, kDomain);
    services.searchForServices(kType, kDomain);
    services.resolve({}, 5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !delegate.told.empty(); }, 10'000));
    EXPECT_THAT(delegate.told, ElementsAre("?"));
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(log, '\n'), 1) << log;
}
