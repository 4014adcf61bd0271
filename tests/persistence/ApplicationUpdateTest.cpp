#include "persistence/ApplicationUpdate.h"

#include "HttpsServer.h"
#include "RecordingPrompt.h"
#include "VendorFiles.h"
#include "foundation/Defaults.h"
#include "support/ManualClock.h"

#include <QDateTime>
#include <QTest>

#include <gmock/gmock.h>

#include <cmath>

using namespace tessara;
using testing::HasSubstr;

namespace {

class ApplicationUpdateTest : public testing::Test {
protected:
    static void TearDownTestSuite() { s_server.reset(); }
    void SetUp() override
    {
        if (!s_server)
            s_server = std::make_unique<HttpsServer>();
        Defaults::standard().attach(nullptr);
    }

    /// What the user is told when the server answers so.
    std::string found(const QByteArray& answer, bool isAskedFor = true)
    {
        writeFile(s_server->filePath("version"), answer);
        ApplicationUpdate update(
            user, clock, {s_server->url(QStringLiteral("/file/version")), s_server->trusting()});
        update.checkForUpdatesIfDue();
        if (isAskedFor)
            update.checkForUpdates();
        EXPECT_TRUE(QTest::qWaitFor([&] { return clock.activeTimers() == 0; }, 20'000));
        const auto seen = user.finished();
        return seen.empty() ? std::string() : seen.back();
    }

    static inline std::unique_ptr<HttpsServer> s_server;
    ManualClock clock;
    RecordingPrompt user;
};

} // namespace

TEST_F(ApplicationUpdateTest, SaysWhatTheServerKnows)
{
    const std::string own = TESSARA_VERSION;
    EXPECT_EQ(found("99.1.2\n"),
              "A new version of Tessara is available! Version 99.1.2 is available; you have "
              "version " +
                  own +
                  ". It comes the way this one came, with the system's packages "
                  "for instance.");
    EXPECT_THAT(found(TESSARA_VERSION), HasSubstr("up-to-date! Version " + own));
    EXPECT_THAT(found("0.0.1"), HasSubstr("up-to-date!"));
    for (const char* answer : {"", "404 not found", "<html>"})
        EXPECT_THAT(found(answer), HasSubstr("Unable to check for updates. The server's answer"));
    EXPECT_THAT(found(QByteArray(1000, '9')), HasSubstr("Unable to check for updates. "));
}

TEST_F(ApplicationUpdateTest, ChecksByItselfOnlyAsOftenAsWanted)
{
    Defaults& defaults = Defaults::standard();
    EXPECT_EQ(found("99", false), "") << "it was not wanted";
    defaults.setValue(DefaultKey::CheckForUpdates, true);
    defaults.setValue(DefaultKey::UpdateCheckInterval, 86400);
    EXPECT_THAT(found("0.0.1"), HasSubstr("up-to-date!")) << "also while it looks by itself";
    defaults.remove(DefaultKey::LastUpdateCheck);
    EXPECT_THAT(found("99", false), HasSubstr("Version 99"));
    clock.advance(86399);
    EXPECT_EQ(found("99", false), "");
    clock.advance(1);
    EXPECT_THAT(found("99", false), HasSubstr("Version 99"));
    clock.advance(86400);
    EXPECT_EQ(found("x", false), "") << "only news are told unasked";
    defaults.setValue(DefaultKey::LastUpdateCheck,
                      QDateTime::fromSecsSinceEpoch(std::llround(clock.now()) + 1000));
    EXPECT_THAT(found("99", false), HasSubstr("Version 99")) << "the clock was wrong once";
}
