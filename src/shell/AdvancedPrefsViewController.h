#pragma once

#include "shell/PreferencesPane.h"

class QCheckBox;

namespace tessara {

/// What the spectrum leaves out, and how the vendor database is kept up to date.
class AdvancedPrefsViewController final : public PreferencesPane {
    Q_OBJECT

public:
    explicit AdvancedPrefsViewController(QWidget* parent = nullptr);

    QString identifier() const override { return QStringLiteral("Advanced"); }
    QString toolbarItemLabel() const override;
    QIcon toolbarItemImage() const override;
    void viewWillAppear() override;

Q_SIGNALS:
    void spectrumDidChange();
    /// The user wants the vendor database checked now.
    void checkNowRequested();

private:
    QCheckBox* m_hideChannelGraphs;
    QCheckBox* m_hideDFSChannels;
    QCheckBox* m_checkForUpdates;
    QCheckBox* m_autoUpdate;
};

} // namespace tessara
