#include "persistence/VendorDatabaseUpdate.h"

#include "HttpsServer.h"
#include "VendorFiles.h"
#include "foundation/Defaults.h"
#include "support/ManualClock.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QTest>

#include <gmock/gmock.h>

using namespace tessara;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const QString kBSSID = QStringLiteral("00:11:22:33:44:55");
const QDateTime kLocalDate(QDate(2024, 5, 6), QTime(7, 8, 10), Qt::UTC);

/// A user who answers as told and notes what there was to see.
struct ScriptedUser final : UserPrompt {
    AlertId beginAlert(const TSAlert& alert, Answer answer) override
    {
        seen.push_back(alert.messageText.toStdString());
        last = alert;
        if (alert.buttons.size() > 1)
            question = std::move(answer);
        return 0;
    }
    void endAlert(AlertId) override {}
    AlertId beginSuppressibleAlert(const TSAlert& alert, SuppressibleAnswer answer) override
    {
        seen.push_back("with check box");
        return beginAlert(alert, [this, answer](int code) { answer(code, ticks); });
    }
    ProgressId beginProgress(const QString& message) override
    {
        seen.push_back(message.toStdString());
        return ++progresses;
    }
    void endProgress(ProgressId) override { --progresses; }
    bool deliverNotification(const QString& title, const QString&) override
    {
        if (hasNotifications)
            seen.push_back("notification: " + title.toStdString());
        return hasNotifications;
    }

    std::vector<std::string> seen;
    TSAlert last;
    Answer question;
    int progresses = 0;
    bool ticks = false;
    bool hasNotifications = true;
};

constexpr char kChecking[] = "Checking for database updates...";
constexpr char kQuestion[] = "A new vendors database is available!";
constexpr char kUpToDate[] = "The database is up-to-date!";
constexpr char kNoCheck[] = "Unable to check for updates.";
constexpr char kNoDownload[] = "Unable to download database update.";
constexpr char kFinished[] = "Update finished.";

class VendorDatabaseUpdateTest : public testing::Test {
protected:
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override
    {
        if (!s_server)
            startServer();
        Defaults::standard().attach(nullptr);
        writeFile(database.pathToDatabase(), propertyList({{"00:11:22", "Old"}}), kLocalDate);
        database.dropDatabase();
        EXPECT_EQ(vendor(), QStringLiteral("Old"));
    }

    static void startServer()
    {
        s_server = std::make_unique<HttpsServer>();
        writeArchive(s_server->filePath("new.zip"),
                     {{"vendors.plist", propertyList({{"00:11:22", "New"}})}});
        writeFile(s_server->filePath("cut.zip"),
                  contentsOf(s_server->filePath("new.zip")).chopped(50));
        writeFile(s_server->filePath("page.zip"), "<html>Please log in</html>");
    }

    QString vendor() const { return database.stringForVendor(kBSSID).value_or(QString()); }

    /// The published archive, with a date this much newer than that of the database.
    static QString published(qint64 seconds)
    {
        return QStringLiteral("/file/new.zip?modified=") +
               QLocale::c().toString(kLocalDate.addSecs(seconds),
                                     QStringLiteral("ddd,%20dd%20MMM%20yyyy%20HH:mm:ss%20'GMT'"));
    }

    VendorDatabaseUpdate& use(const QUrl& location, const QSslConfiguration& tls)
    {
        update = std::make_unique<VendorDatabaseUpdate>(database, user, clock,
                                                        UpdateSource{location, tls});
        return *update;
    }
    VendorDatabaseUpdate& use(const QString& path)
    {
        return use(s_server->url(path), s_server->trusting());
    }

    /// Waits until so many things were seen, and no longer than they can take.
    void waitFor(std::size_t count)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return user.seen.size() >= count; }, 20'000))
            << user.seen.size();
    }

    /// Waits until the server has got a request, while the program goes on.
    static void awaitRequest(const QByteArray& path)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return s_server->takeRequest() == path; }, 20'000));
    }

    /// Runs a check of the program's own to its end, and says what it has led to.
    bool automaticCheckAsks(const QString& path)
    {
        user.seen.clear();
        use(path).checkForDatabaseUpdates(false);
        EXPECT_TRUE(QTest::qWaitFor([&] { return clock.activeTimers() == 0; }, 20'000));
        return !user.seen.empty();
    }

    static inline std::unique_ptr<HttpsServer> s_server;
    QTemporaryDir folder;
    ManualClock clock;
    const double start = clock.now();
    ScriptedUser user;
    TSVendorDatabaseHelper database{{.database = folder.filePath(QStringLiteral("vendors.plist"))}};
    std::unique_ptr<VendorDatabaseUpdate> update;
};

} // namespace

TEST_F(VendorDatabaseUpdateTest, OffersADatabaseThatIsNewerByMoreThanTwelveWholeHours)
{
    const struct {
        QString path;
        bool offered;
    } cases[] = {
        {published(0), false},
        {published(-30 * 86400), false},
        {published(12 * 3600 + 59 * 60 + 59), false},
        {published(13 * 3600), true},
        {published(30 * 86400), true},
        {QStringLiteral("/file/new.zip"), false}, // no date at all
        {QStringLiteral("/file/new.zip?modified=yesterday"), false},
        {QStringLiteral("/file/new.zip?modified=2033-05-06"), false},
    };
    for (const auto& c : cases) {
        user.seen.clear();
        use(c.path).checkForDatabaseUpdates(true);
        waitFor(2);
        EXPECT_THAT(user.seen, ElementsAre(kChecking, c.offered ? kQuestion : kUpToDate))
            << c.path.toStdString();
        EXPECT_EQ(user.progresses, 0);
        EXPECT_EQ(user.last.style,
                  c.offered ? TSAlert::Style::kWarning : TSAlert::Style::kInformational);
    }

    QFile::remove(database.pathToDatabase());
    user.seen.clear();
    use(published(30 * 86400)).checkForDatabaseUpdates(true);
    waitFor(2);
    EXPECT_EQ(user.seen.back(), kUpToDate) << "without a file there is no date to compare";
}

TEST_F(VendorDatabaseUpdateTest, ChecksByItselfOnceADayAndNotAgainstTheUsersWish)
{
    const QString newer = published(86400);
    EXPECT_TRUE(automaticCheckAsks(newer));
    EXPECT_THAT(user.seen, ElementsAre("with check box", kQuestion));
    clock.advance(86399);
    EXPECT_FALSE(automaticCheckAsks(newer));
    clock.advance(2);
    EXPECT_TRUE(automaticCheckAsks(newer));

    clock.advance(100'000);
    Defaults::standard().setValue(DefaultKey::UpdateAlertSuppressionButton, 1);
    EXPECT_FALSE(automaticCheckAsks(newer));
    use(newer).checkForDatabaseUpdates(true);
    waitFor(2);
    EXPECT_EQ(user.seen.back(), kQuestion) << "the user asked for it";
}

TEST_F(VendorDatabaseUpdateTest, AFailedCheckIsSilentAndDoesNotHoldBackTheNextOne)
{
    const QString fruitless[] = {QStringLiteral("/status/404"), QStringLiteral("/status/500"),
                                 QStringLiteral("/file/new.zip"), // without a date
                                 QStringLiteral("/redirect?to=") +
                                     s_server->plainUrl(published(86400)).toString()};
    for (const QString& path : fruitless)
        EXPECT_FALSE(automaticCheckAsks(path)) << path.toStdString();
    EXPECT_TRUE(automaticCheckAsks(published(86400)));
}

TEST_F(VendorDatabaseUpdateTest, TellsWhyACheckFailed)
{
    const QString insecure =
        QStringLiteral("/redirect?to=") + s_server->plainUrl(published(86400)).toString();
    const QSslConfiguration distrusting = QSslConfiguration::defaultConfiguration();
    const struct {
        QUrl location;
        QSslConfiguration tls;
        const char* reason;
    } cases[] = {
        {s_server->url(QStringLiteral("/status/404")), s_server->trusting(), "404 Not Found"},
        {s_server->url(QStringLiteral("/status/500")), s_server->trusting(), "500"},
        {s_server->url(published(86400)), distrusting, "SSL"},
        {s_server->url(published(86400), QStringLiteral("127.0.0.1")), s_server->trusting(),
         "host"},
        {s_server->url(insecure), s_server->trusting(), "edirect"},
        {QUrl(QStringLiteral("https://localhost:1/vendors.plist.zip")), s_server->trusting(),
         "refused"},
    };
    for (const auto& c : cases) {
        user.seen.clear();
        use(c.location, c.tls).checkForDatabaseUpdates(true);
        waitFor(2);
        EXPECT_THAT(user.seen, ElementsAre(kChecking, kNoCheck))
            << c.location.toString().toStdString();
        EXPECT_THAT(user.last.informativeText.toStdString(), HasSubstr(c.reason));
        EXPECT_FALSE(user.last.informativeText.contains(u'\n'));
        EXPECT_EQ(user.progresses, 0);
    }
}

TEST_F(VendorDatabaseUpdateTest, LeavesAServerThatKeepsSilentAfterTenSeconds)
{
    use(QStringLiteral("/silent")).checkForDatabaseUpdates(true);
    awaitRequest("/silent");
    clock.advance(9);
    EXPECT_THAT(user.seen, ElementsAre(kChecking));
    clock.advance(1);
    EXPECT_THAT(user.seen, ElementsAre(kChecking, kNoCheck));
    EXPECT_EQ(user.last.informativeText, QStringLiteral("The request timed out."));
}

TEST_F(VendorDatabaseUpdateTest, DoesWhatTheUserAnswers)
{
    const struct {
        int answer;
        bool ticked;
        int suppression; ///< afterwards
        bool automatic;
        const char* vendor;
    } cases[] = {
        {TSAlert::kSecondButton, false, 0, false, "Old"},
        {TSAlert::kSecondButton, true, 1, false, "Old"},
        {TSAlert::kFirstButton, true, 1, false, "New"},
        {TSAlert::kThirdButton, true, 0, true, "New"},
    };
    const Defaults& defaults = Defaults::standard();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer);
        SetUp();
        user.ticks = c.ticked;
        ASSERT_TRUE(automaticCheckAsks(published(86400)));
        const std::size_t seen = user.seen.size();
        user.question(c.answer);
        if (c.vendor != std::string("Old"))
            waitFor(seen + 1);
        EXPECT_EQ(user.seen.size(), seen + (c.vendor != std::string("Old") ? 1 : 0));
        EXPECT_EQ(defaults.integerForKey(DefaultKey::UpdateAlertSuppressionButton), c.suppression);
        EXPECT_EQ(defaults.boolForKey(DefaultKey::AutoUpdateVendorsDatabase), c.automatic);
        EXPECT_EQ(vendor(), QString::fromLatin1(c.vendor));
    }
}

TEST_F(VendorDatabaseUpdateTest, UpdatesUnaskedWhenToldTo)
{
    Defaults::standard().setValue(DefaultKey::AutoUpdateVendorsDatabase, true);
    use(published(86400)).checkForDatabaseUpdates(false);
    waitFor(1);
    EXPECT_THAT(user.seen, ElementsAre(std::string("notification: ") + kFinished));
    EXPECT_EQ(vendor(), QStringLiteral("New"));

    user.hasNotifications = false;
    user.seen.clear();
    update->startDatabaseUpdate();
    update->startDatabaseUpdate(); // while the first is under way
    waitFor(1);
    EXPECT_THAT(user.seen, ElementsAre(kFinished)) << "a desktop without notifications";
    EXPECT_THAT(folder.path().isEmpty() ? QStringList()
                                        : QDir(folder.path()).entryList(QDir::Files),
                ElementsAre(QStringLiteral("vendors.plist")));
}

TEST_F(VendorDatabaseUpdateTest, ADownloadThatFailsIsToldAndChangesNothing)
{
    const QString paths[] = {
        QStringLiteral("/status/404"),
        QStringLiteral("/status/500"),
        QStringLiteral("/long/new.zip"),
        QStringLiteral("/huge"),
        QStringLiteral("/endless"),
        QStringLiteral("/redirect?to=") +
            s_server->plainUrl(QStringLiteral("/file/new.zip")).toString(),
    };
    for (const QString& path : paths) {
        user.seen.clear();
        use(path).startDatabaseUpdate();
        waitFor(1);
        EXPECT_THAT(user.seen, ElementsAre(kNoDownload)) << path.toStdString();
        EXPECT_FALSE(user.last.informativeText.isEmpty());
        database.dropDatabase();
        EXPECT_EQ(vendor(), QStringLiteral("Old")) << path.toStdString();
    }
}

TEST_F(VendorDatabaseUpdateTest, ADamagedDownloadLeavesTheDatabaseInForce)
{
    for (const char* path : {"/file/cut.zip", "/file/page.zip", "/short/new.zip"}) {
        use(QString::fromLatin1(path)).startDatabaseUpdate();
        EXPECT_TRUE(QTest::qWaitFor([&] { return clock.activeTimers() == 0; }, 20'000));
        update.reset(); // waits for the installation
        EXPECT_THAT(user.seen, IsEmpty());
        database.dropDatabase();
        EXPECT_EQ(vendor(), QStringLiteral("Old")) << path;
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }
}

TEST_F(VendorDatabaseUpdateTest, LeavesADownloadThatComesToAHalt)
{
    for (const char* path : {"/silent", "/stalled"}) {
        user.seen.clear();
        use(QString::fromLatin1(path)).startDatabaseUpdate();
        awaitRequest(path);
        clock.advance(59);
        EXPECT_THAT(user.seen, IsEmpty());
        clock.advance(2);
        EXPECT_THAT(user.seen, ElementsAre(kNoDownload));
    }
}

TEST_F(VendorDatabaseUpdateTest, LeavesADownloadThatTakesTooLong)
{
    use(QStringLiteral("/dripping")).startDatabaseUpdate();
    awaitRequest("/dripping");
    while (clock.now() < start + 590) { // never a minute without a byte
        QTest::qWait(50);
        clock.advance(50);
        EXPECT_EQ(user.seen.empty(), clock.now() < start + 600);
    }
    EXPECT_THAT(user.seen, ElementsAre(kNoDownload));
}

TEST_F(VendorDatabaseUpdateTest, MayEndInTheMiddleOfAnything)
{
    use(QStringLiteral("/silent")).checkForDatabaseUpdates(true);
    update->checkForDatabaseUpdates(true); // takes the place of the first
    EXPECT_EQ(user.progresses, 1);
    update->startDatabaseUpdate();
    update.reset();
    EXPECT_EQ(clock.activeTimers(), 0u);
    EXPECT_THAT(user.seen, ElementsAre(kChecking, kChecking));
}
