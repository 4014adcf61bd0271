#include "foundation/Defaults.h"
#include "shell/AdvancedPrefsViewController.h"
#include "shell/ColumnVisibilityModel.h"
#include "shell/ColumnsPrefsViewController.h"
#include "shell/GeneralPrefsViewController.h"
#include "shell/MASPreferencesWindowController.h"
#include "shell/TSNetworksView.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTreeView>

#include <gtest/gtest.h>

using namespace tessara;

namespace {

class PreferencesTest : public testing::Test {
protected:
    PreferencesTest()
    {
        defaults.attach(std::make_unique<QSettings>(folder.filePath(QStringLiteral("t.conf")),
                                                    QSettings::IniFormat));
    }
    ~PreferencesTest() override { defaults.attach(nullptr); }

    QTemporaryDir folder;
    Defaults& defaults = Defaults::standard();
};

template <typename Widget>
Widget* widget(const QWidget& pane, const char* text = nullptr)
{
    for (Widget* each : pane.findChildren<Widget*>()) {
        if (!text || each->property("text").toString().remove(u'&').startsWith(QLatin1String(text)))
            return each;
    }
    throw std::out_of_range(text);
}

} // namespace

TEST_F(PreferencesTest, GeneralWritesEachChangeAtOnceAndTellsOfIt)
{
    defaults.setValue(DefaultKey::MaxElapsedTimeNotSeen, 5);
    GeneralPrefsViewController pane;
    pane.viewWillAppear();
    const QSignalSpy changes(&pane, &GeneralPrefsViewController::valuesDidChange);
    const auto boxes = pane.findChildren<QComboBox*>();
    QComboBox* const units = boxes[0];
    QComboBox* const time = boxes[1];
    EXPECT_EQ(time->currentText(), QStringLiteral("1 hour"));

    auto* slider = widget<QSlider>(pane);
    EXPECT_EQ(slider->value(), 100);
    EXPECT_NO_THROW(widget<QLabel>(pane, "Highest"));
    slider->setValue(70);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Sensitivity), 70);
    EXPECT_NO_THROW(widget<QLabel>(pane, "-70 dBm"));
    slider->setValue(slider->minimum());
    EXPECT_NO_THROW(widget<QLabel>(pane, "Lowest"));
    EXPECT_EQ(changes.size(), 2);

    units->setCurrentIndex(1);
    Q_EMIT units->activated(1);
    EXPECT_EQ(defaults.integerForKey(DefaultKey::Units), 1);

    auto* remove = widget<QCheckBox>(pane);
    remove->click();
    EXPECT_FALSE(defaults.boolForKey(DefaultKey::DeleteIfNotSeen));
    EXPECT_FALSE(time->isEnabled());
    EXPECT_EQ(defaults.integerForKey(DefaultKey::MaxElapsedTimeNotSeen), 5) << "it is kept";
    remove->click();
    EXPECT_TRUE(time->isEnabled());
    EXPECT_EQ(changes.size(), 5);
}

TEST_F(PreferencesTest, ColumnsStayInStepWithTheTable)
{
    TSNetworksView table;
    ColumnVisibilityModel model(table);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto row = [&model](QStringView identifier) {
        for (int each = 0; each < model.rowCount(); ++each) {
            if (model.columnAt(model.index(each, 0)).identifier == identifier)
                return model.index(each, ColumnVisibilityModel::kShowColumn);
        }
        return QModelIndex();
    };
    const auto isChecked = [&](QStringView identifier) {
        return row(identifier).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    };
    EXPECT_FALSE(row(u"IS_USER_HIDDEN").isValid());
    EXPECT_FALSE(model.flags(row(u"BSSID")).testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(isChecked(u"CC"));
    EXPECT_TRUE(model.setData(row(u"CC"), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(isChecked(u"CC"));

    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    table.setColumnShown(*columnWithIdentifier(u"CHANNEL"), false); // as the header's menu does
    EXPECT_FALSE(isChecked(u"CHANNEL"));
    EXPECT_EQ(changes.size(), 1);

    const QPersistentModelIndex country = row(u"CC");
    model.sort(ColumnVisibilityModel::kShowColumn, Qt::AscendingOrder);
    EXPECT_EQ(row(u"CC"), country);
    EXPECT_EQ(model.index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

TEST_F(PreferencesTest, ColumnsTellWhatAColumnIsAbout)
{
    TSNetworksView table;
    ColumnsPrefsViewController pane(table);
    pane.viewWillAppear();
    EXPECT_NO_THROW(widget<QLabel>(pane, "Select a column name for details."));
    auto* list = widget<QTreeView>(pane);
    list->setCurrentIndex(list->model()->index(0, 0));
    EXPECT_NO_THROW(widget<QLabel>(pane, static_cast<ColumnVisibilityModel*>(list->model())
                                             ->columnAt(list->currentIndex())
                                             .description.text()));
}

TEST_F(PreferencesTest, AdvancedTurnsTheSuppressionOfChecksRound)
{
    AdvancedPrefsViewController pane;
    defaults.setValue(DefaultKey::UpdateAlertSuppressionButton, 1);
    pane.viewWillAppear();
    auto* check = widget<QCheckBox>(pane, "Check for updates");
    EXPECT_FALSE(check->isChecked());
    check->click();
    EXPECT_EQ(defaults.integerForKey(DefaultKey::UpdateAlertSuppressionButton), 0);

    const QSignalSpy changes(&pane, &AdvancedPrefsViewController::spectrumDidChange);
    widget<QCheckBox>(pane, "Hide DFS")->click();
    EXPECT_TRUE(defaults.boolForKey(DefaultKey::HideDFSChannels));
    EXPECT_EQ(changes.size(), 1);
}

TEST_F(PreferencesTest, TheWindowRemembersItsPane)
{
    TSNetworksView table;
    const auto open = [&table] {
        return std::make_unique<MASPreferencesWindowController>(
            std::vector<PreferencesPane*>{new GeneralPrefsViewController,
                                          new ColumnsPrefsViewController(table),
                                          new AdvancedPrefsViewController},
            nullptr);
    };
    auto window = open();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("General"));
    window->selectPane(QStringLiteral("Advanced"));
    window->selectPane(QStringLiteral("Filters")); // there is none
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Advanced"));
    EXPECT_EQ(open()->windowTitle(), QStringLiteral("Advanced"));
}
