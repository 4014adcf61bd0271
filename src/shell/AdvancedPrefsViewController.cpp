#include "shell/AdvancedPrefsViewController.h"

#include "foundation/Defaults.h"
#include "foundation/Localized.h"
#include "shell/GlyphIcon.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QPushButton>

namespace tessara {

AdvancedPrefsViewController::AdvancedPrefsViewController(QWidget* parent)
    : PreferencesPane(parent)
    , m_hideChannelGraphs(new QCheckBox(localized("Hide the &graph of a band without networks")))
    , m_hideDFSChannels(new QCheckBox(localized("Hide &DFS channels without networks")))
    , m_checkForUpdates(new QCheckBox(localized("&Check for updates")))
    , m_autoUpdate(new QCheckBox(localized("&Install updates without asking")))
{
    m_hideDFSChannels->setToolTip(
        localized("Channels 52 to 144, which networks must leave to radars"));
    auto* checkNow = new QPushButton(localized("Check &Now"));
    checkNow->setAutoDefault(false); // the Return key is not meant for it
    auto* form = new QFormLayout(this);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setLabelAlignment(Qt::AlignRight);
    form->addRow(localized("Spectrum:"), m_hideChannelGraphs);
    form->addRow(QString(), m_hideDFSChannels);
    form->addRow(localized("Vendors database:"), m_checkForUpdates);
    form->addRow(QString(), m_autoUpdate);
    form->addRow(QString(), checkNow);
    checkNow->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);

    Defaults& defaults = Defaults::standard();
    connect(m_hideChannelGraphs, &QCheckBox::clicked, this, [this, &defaults](bool on) {
        defaults.setValue(DefaultKey::HideChannelGraphs, on);
        Q_EMIT spectrumDidChange();
    });
    connect(m_hideDFSChannels, &QCheckBox::clicked, this, [this, &defaults](bool on) {
        defaults.setValue(DefaultKey::HideDFSChannels, on);
        Q_EMIT spectrumDidChange();
    });
    connect(m_checkForUpdates, &QCheckBox::clicked, this, [&defaults](bool on) {
        defaults.setValue(DefaultKey::UpdateAlertSuppressionButton, on ? 0 : 1);
    });
    connect(m_autoUpdate, &QCheckBox::clicked, this,
            [&defaults](bool on) { defaults.setValue(DefaultKey::AutoUpdateVendorsDatabase, on); });
    connect(checkNow, &QPushButton::clicked, this, &AdvancedPrefsViewController::checkNowRequested);
}

QString AdvancedPrefsViewController::toolbarItemLabel() const
{
    return localized("Advanced");
}

QIcon AdvancedPrefsViewController::toolbarItemImage() const
{
    return glyphIcon(Glyph::kAdvanced);
}

void AdvancedPrefsViewController::viewWillAppear()
{
    const Defaults& defaults = Defaults::standard();
    m_hideChannelGraphs->setChecked(defaults.boolForKey(DefaultKey::HideChannelGraphs));
    m_hideDFSChannels->setChecked(defaults.boolForKey(DefaultKey::HideDFSChannels));
    m_checkForUpdates->setChecked(
        defaults.integerForKey(DefaultKey::UpdateAlertSuppressionButton) != 1);
    m_autoUpdate->setChecked(defaults.boolForKey(DefaultKey::AutoUpdateVendorsDatabase));
}

} // namespace tessara
