#include "shell/GeneralPrefsViewController.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/GlyphIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>

namespace tessara {

namespace {

// The threshold in dBm, with its sign turned: at 100 what receivers barely hear is listed.
constexpr int kLowestSensitivity = 30;
constexpr int kHighestSensitivity = 100;
constexpr int kSensitivityStep = 5;

struct Choice {
    qint64 tag; ///< the value of the setting
    EnglishText title;
};
constexpr Choice kUnits[] = {{0, "Percent"_en}, {1, "dBm"_en}};
constexpr Choice kTimes[] = {{1, "1 minute"_en},   {2, "2 minutes"_en}, {3, "5 minutes"_en},
                             {4, "30 minutes"_en}, {5, "1 hour"_en},    {6, "2 hours"_en}};

constexpr Choice kUpdateIntervals[] = {
    {86400, "Daily"_en}, {604800, "Weekly"_en}, {2592000, "Monthly"_en}};

QComboBox* makePopUp(std::span<const Choice> choices)
{
    auto* popUp = new QComboBox;
    for (const Choice& choice : choices)
        popUp->addItem(localized(choice.title), choice.tag);
    return popUp;
}

void selectTag(QComboBox& popUp, qint64 tag)
{
    popUp.setCurrentIndex(popUp.findData(tag));
}

} // namespace

GeneralPrefsViewController::GeneralPrefsViewController(QWidget* parent)
    : PreferencesPane(parent)
    , m_sensitivity(new QSlider(Qt::Horizontal))
    , m_sensitivityLbl(new QLabel)
    , m_units(makePopUp(kUnits))
    , m_deleteIfNotSeen(new QCheckBox(localized("&Remove networks not seen for")))
    , m_maxElapsedTimeNotSeen(makePopUp(kTimes))
    , m_checkForUpdates(new QCheckBox(localized("Check for &updates of Tessara")))
    , m_updateCheckInterval(makePopUp(kUpdateIntervals))
{
    m_sensitivity->setRange(kLowestSensitivity, kHighestSensitivity);
    m_sensitivity->setPageStep(kSensitivityStep);
    m_sensitivity->setToolTip(localized("Networks with a weaker signal are not listed"));
    m_sensitivityLbl->setMinimumWidth(fontMetrics().horizontalAdvance(localized("Highest")) +
                                      kMargin);
    m_maxElapsedTimeNotSeen->setAccessibleName(localized("Time until a network is removed"));

    m_updateCheckInterval->setAccessibleName(localized("Time between checks for updates"));
    makeForm();

    connect(m_sensitivity, &QSlider::valueChanged, this,
            &GeneralPrefsViewController::sensitivityDidChange);
    connect(m_units, &QComboBox::activated, this,
            [this] { write(DefaultKey::Units, m_units->currentData()); });
    connect(m_maxElapsedTimeNotSeen, &QComboBox::activated, this, [this] {
        write(DefaultKey::MaxElapsedTimeNotSeen, m_maxElapsedTimeNotSeen->currentData());
    });
    connect(m_deleteIfNotSeen, &QCheckBox::clicked, this,
            &GeneralPrefsViewController::deleteIfNotSeenDidChange);
    // Of these the list of networks knows nothing.
    connect(m_checkForUpdates, &QCheckBox::clicked, this, [this](bool on) {
        m_updateCheckInterval->setEnabled(on);
        Defaults::standard().setValue(DefaultKey::CheckForUpdates, on);
    });
    connect(m_updateCheckInterval, &QComboBox::activated, this, [this] {
        Defaults::standard().setValue(DefaultKey::UpdateCheckInterval,
                                      m_updateCheckInterval->currentData());
    });
}

void GeneralPrefsViewController::makeForm()
{
    auto* sensitivity = new QHBoxLayout;
    sensitivity->addWidget(m_sensitivity, 1);
    sensitivity->addWidget(m_sensitivityLbl);
    auto* removal = new QHBoxLayout;
    removal->addWidget(m_deleteIfNotSeen);
    removal->addWidget(m_maxElapsedTimeNotSeen);
    removal->addStretch();
    auto* updates = new QHBoxLayout;
    updates->addWidget(m_checkForUpdates);
    updates->addWidget(m_updateCheckInterval);
    updates->addStretch();
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setLabelAlignment(Qt::AlignRight);
    form->addRow(localized("&Sensitivity:"), sensitivity);
    qobject_cast<QLabel*>(form->labelForField(sensitivity))->setBuddy(m_sensitivity);
    form->addRow(localized("Show s&ignals in:"), m_units);
    form->addRow(QString(), removal);
    form->addRow(QString(), updates);
    m_units->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QString GeneralPrefsViewController::toolbarItemLabel() const
{
    return localized("General");
}

QIcon GeneralPrefsViewController::toolbarItemImage() const
{
    return glyphIcon(Glyph::kGeneral);
}

void GeneralPrefsViewController::viewWillAppear()
{
    const Defaults& defaults = Defaults::standard();
    const QSignalBlocker blocker(m_sensitivity);
    m_sensitivity->setValue(static_cast<int>(defaults.integerForKey(DefaultKey::Sensitivity)));
    showSensitivity(m_sensitivity->value());
    selectTag(*m_units, defaults.integerForKey(DefaultKey::Units));
    selectTag(*m_maxElapsedTimeNotSeen, defaults.integerForKey(DefaultKey::MaxElapsedTimeNotSeen));
    m_deleteIfNotSeen->setChecked(defaults.boolForKey(DefaultKey::DeleteIfNotSeen));
    m_maxElapsedTimeNotSeen->setEnabled(m_deleteIfNotSeen->isChecked());
    m_checkForUpdates->setChecked(defaults.boolForKey(DefaultKey::CheckForUpdates));
    m_updateCheckInterval->setEnabled(m_checkForUpdates->isChecked());
    selectTag(*m_updateCheckInterval, defaults.integerForKey(DefaultKey::UpdateCheckInterval));
}

void GeneralPrefsViewController::showSensitivity(int sensitivity)
{
    m_sensitivityLbl->setText(
        sensitivity == kLowestSensitivity ? localized("Lowest")
        : sensitivity == kHighestSensitivity
            ? localized("Highest")
            : QStringLiteral("%1 %2").arg(-sensitivity).arg(localized("dBm")));
}

void GeneralPrefsViewController::sensitivityDidChange(int sensitivity)
{
    showSensitivity(sensitivity);
    write(DefaultKey::Sensitivity, sensitivity);
}

void GeneralPrefsViewController::deleteIfNotSeenDidChange(bool on)
{
    m_maxElapsedTimeNotSeen->setEnabled(on);
    Defaults::standard().setValue(DefaultKey::DeleteIfNotSeen, on);
    if (on) // the time counts from now on
        Defaults::standard().setValue(DefaultKey::MaxElapsedTimeNotSeen,
                                      m_maxElapsedTimeNotSeen->currentData());
    Q_EMIT valuesDidChange();
}

void GeneralPrefsViewController::write(QStringView key, const QVariant& value)
{
    Defaults::standard().setValue(key, value);
    Q_EMIT valuesDidChange();
}

} // namespace tessara
