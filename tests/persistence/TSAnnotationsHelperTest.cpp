#include "persistence/TSAnnotationsHelper.h"

#include "VendorFiles.h"
#include "foundation/Defaults.h"
#include "model/TSNetwork.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace tessara;

namespace {

const QString kBSSID = QStringLiteral("00:11:22:33:44:55");
const QString kOther = QStringLiteral("66:77:88:99:AA:BB");

class TSAnnotationsHelperTest : public testing::Test {
protected:
    void SetUp() override { Defaults::standard().attach(nullptr); }
    void TearDown() override { Directories::installed() = {}; }

    /// What a new run of the program has of the notes. The old one waits for its file to be
    /// written when it ends.
    TSAnnotationsHelper::Annotations afterRestart()
    {
        helper.emplace(path);
        helper->readFromDisk();
        return helper->annotations();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("data/annotations.plist"));
    std::optional<TSAnnotationsHelper> helper{path};
};

} // namespace

TEST_F(TSAnnotationsHelperTest, ANoteOnANetworkOutlivesTheRun)
{
    Directories::installed().annotations = &*helper;
    ScanDictionary dictionary;
    dictionary.bssid = QStringLiteral("0:11:22:33:44:55");
    TSNetwork network(dictionary, 0);
    EXPECT_FALSE(network.hasAnnotations());
    network.setAnnotations(QStringLiteral(" \troof, \"east\"\n\u00a0"));
    EXPECT_EQ(network.annotations(), QStringLiteral("roof, \"east\""));
    EXPECT_EQ(afterRestart(),
              (TSAnnotationsHelper::Annotations{{kBSSID, QStringLiteral("roof, \"east\"")}}));

    network.setAnnotations(QStringLiteral(" \n"));
    EXPECT_FALSE(network.hasAnnotations());
    EXPECT_TRUE(afterRestart().isEmpty());
}

TEST_F(TSAnnotationsHelperTest, NoTextOfANoteDamagesTheFile)
{
    const std::pair<const char16_t*, const char16_t*> notes[] = {
        {u"<string>&amp;</dict>]]>", u"<string>&amp;</dict>]]>"},
        {u"one\r\ntwo\rthree\tfour", u"one\r\ntwo\rthree\tfour"},
        {u"naïve 🦊 \u2028", u"naïve 🦊"},
        {u"bell\u0007 \uffff null\u0001.", u"bell\ufffd \ufffd null\ufffd."},
    };
    for (const auto& [note, stored] : notes) {
        helper->setAnnotations(kBSSID, QString::fromUtf16(note));
        EXPECT_EQ(afterRestart().value(kBSSID), QString::fromUtf16(stored));
    }
    const char16_t torn[] = {u'x', 0xd800, u'y', 0};
    helper->setAnnotations(kOther, QString::fromUtf16(torn));
    EXPECT_EQ(afterRestart().size(), 2);
}

TEST_F(TSAnnotationsHelperTest, MovesTheNotesOfAnEarlierVersionOnce)
{
    helper->setAnnotations(kOther, QStringLiteral("in the file"));
    Defaults& defaults = Defaults::standard();
    const QVariantMap legacy{{kBSSID, QStringLiteral("in the settings")}};
    defaults.setValue(DefaultKey::Annotations, legacy);
    EXPECT_EQ(afterRestart(),
              (TSAnnotationsHelper::Annotations{{kBSSID, QStringLiteral("in the settings")}}))
        << "they go before the file";
    EXPECT_FALSE(defaults.value(DefaultKey::Annotations).isValid());
    EXPECT_EQ(afterRestart().value(kBSSID), QStringLiteral("in the settings"));

    // While there is no place for the file, they stay where they are.
    defaults.setValue(DefaultKey::Annotations, legacy);
    TSAnnotationsHelper homeless(QStringLiteral("/proc/tessara/annotations.plist"));
    homeless.readFromDisk();
    EXPECT_EQ(homeless.annotations().size(), 1);
    EXPECT_EQ(defaults.value(DefaultKey::Annotations).toMap(), legacy);
}

TEST_F(TSAnnotationsHelperTest, ADamagedFileIsKeptAside)
{
    helper->setAnnotations(kBSSID, QStringLiteral("old"));
    helper.reset();
    const QByteArray damaged = contentsOf(path).chopped(12);
    for (int round = 1; round <= 2; ++round) {
        writeFile(path, damaged);
        EXPECT_TRUE(afterRestart().isEmpty());
        helper->setAnnotationsForNetwork(kOther, QStringLiteral("new"));
        helper->saveToDisk();
        EXPECT_EQ(contentsOf(path + QStringLiteral(".damaged-%1").arg(round)), damaged);
        EXPECT_EQ(afterRestart().size(), 1);
    }
}

TEST_F(TSAnnotationsHelperTest, AFileThatIsAskedForMustBeOne)
{
    EXPECT_TRUE(helper->load().contains(path)) << "it is missing";
    helper->setAnnotations(kBSSID, QStringLiteral("old"));
    helper.reset();
    const QByteArray whole = contentsOf(path);
    for (const QByteArray& bytes : {QByteArray(), QByteArray("x"), whole.chopped(12)}) {
        writeFile(path, bytes);
        const QString error = TSAnnotationsHelper(path).load();
        EXPECT_TRUE(error.startsWith(path)) << error.toStdString();
        EXPECT_FALSE(error.contains(u'\n'));
        EXPECT_EQ(contentsOf(path), bytes) << "and it is left alone";
    }
    EXPECT_FALSE(TSAnnotationsHelper(folder.path()).load().isEmpty());
}

TEST_F(TSAnnotationsHelperTest, TwoWindowsKeepEachOthersNotes)
{
    helper->setAnnotationsForNetwork(kBSSID, QStringLiteral("old"));
    ASSERT_TRUE(helper->saveToDisk());
    TSAnnotationsHelper other(path);
    other.readFromDisk();

    helper->setAnnotationsForNetwork(kBSSID, {});
    helper->setAnnotationsForNetwork(kOther, QStringLiteral("of the first"));
    ASSERT_TRUE(helper->saveToDisk());
    EXPECT_TRUE(other.saveToDisk()) << "it has nothing to say";
    const QString third = QStringLiteral("00:00:00:00:00:03");
    other.setAnnotationsForNetwork(third, QStringLiteral("of the second"));
    ASSERT_TRUE(other.saveToDisk());

    const TSAnnotationsHelper::Annotations both{{kOther, QStringLiteral("of the first")},
                                                {third, QStringLiteral("of the second")}};
    EXPECT_EQ(other.annotations(), both);
    EXPECT_EQ(afterRestart(), both);
}
