#include "shell/SpeechMenu.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"

#include <QActionGroup>

namespace tessara {

namespace {

/// How long after a report an unchanged signal is told again.
struct RepeatInterval {
    double seconds;
    EnglishText title;
};
constexpr RepeatInterval kRepeatIntervals[] = {
    {0, "&Never"_en},
    {5, "After 5 Seconds"_en},
    {10, "After 10 Seconds"_en},
    {15, "After 15 Seconds"_en},
    {30, "After 30 Seconds"_en},
    {60, "After 1 Minute"_en},
};

/// An item that turns a setting on and off.
QAction* addSetting(QMenu& menu, EnglishText title, QStringView key)
{
    QAction* item = menu.addAction(localized(title));
    item->setCheckable(true);
    QObject::connect(item, &QAction::triggered, item,
                     [key](bool on) { Defaults::standard().setValue(key, on); });
    return item;
}

} // namespace

SpeechMenu::SpeechMenu(QWidget* parent)
    : QMenu(localized("S&peech"), parent)
    , m_speakMenuItem(addAction(QString(), this, &SpeechMenu::speakTriggered))
    , m_intervals(new QActionGroup(this))
{
    m_speakMenuItem->setObjectName(QStringLiteral("speakMenuItem"));
    m_speakMenuItem->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    addSeparator();
    m_speakOn =
        addSetting(*this, "Speak the &Signal of the Selected Network"_en, DefaultKey::SpeakOn);
    m_speakWhenOnBackground =
        addSetting(*this, "Speak in the &Background"_en, DefaultKey::SpeakWhenOnBackground);
    makeRepeatMenu();
    connect(&Defaults::standard(), &Defaults::didChange, this, &SpeechMenu::validateItems);
    validateItems();
}

void SpeechMenu::makeRepeatMenu()
{
    QMenu& menu = *addMenu(localized("&Repeat an Unchanged Signal"));
    m_intervals->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const auto& [seconds, title] : kRepeatIntervals) {
        QAction* item = menu.addAction(localized(title));
        item->setCheckable(true);
        item->setData(seconds);
        m_intervals->addAction(item);
    }
    connect(m_intervals, &QActionGroup::triggered, this, [this](const QAction* item) {
        Defaults::standard().setValue(DefaultKey::SpeakIntervalInSeconds, item->data());
        validateItems(); // the item that was checked already stays so
    });
}

void SpeechMenu::setSpeaking(bool speaking)
{
    m_isSpeaking = speaking;
    validateItems();
}

void SpeechMenu::validateItems()
{
    const Defaults& defaults = Defaults::standard();
    const bool isOn = defaults.boolForKey(DefaultKey::SpeakOn);
    m_speakMenuItem->setText(localized(m_isSpeaking ? "S&top Speaking"_en : "Speak &Now"_en));
    m_speakMenuItem->setEnabled(isOn || m_isSpeaking);
    m_speakOn->setChecked(isOn);
    m_speakWhenOnBackground->setChecked(defaults.boolForKey(DefaultKey::SpeakWhenOnBackground));
    const double interval = defaults.doubleForKey(DefaultKey::SpeakIntervalInSeconds);
    for (QAction* item : m_intervals->actions())
        item->setChecked(item->data().toDouble() == interval);
}

} // namespace tessara
