#pragma once

#include "shell/PreferencesPane.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QSlider;

namespace tessara {

/// What is listed and how: the threshold of signals, their unit, and how long a network stays that
/// is no longer seen.
class GeneralPrefsViewController final : public PreferencesPane {
    Q_OBJECT

public:
    explicit GeneralPrefsViewController(QWidget* parent = nullptr);

    QString identifier() const override { return QStringLiteral("General"); }
    QString toolbarItemLabel() const override;
    QIcon toolbarItemImage() const override;
    void viewWillAppear() override;

Q_SIGNALS:
    /// A setting that the list of networks depends on has changed.
    void valuesDidChange();

private:
    void sensitivityDidChange(int sensitivity);
    void makeForm();
    void showSensitivity(int sensitivity);
    void deleteIfNotSeenDidChange(bool on);
    void write(QStringView key, const QVariant& value);

    QSlider* m_sensitivity;
    QLabel* m_sensitivityLbl;
    QComboBox* m_units;
    QCheckBox* m_deleteIfNotSeen;
    QComboBox* m_maxElapsedTimeNotSeen;
    QCheckBox* m_checkForUpdates;
    QComboBox* m_updateCheckInterval;
};

} // namespace tessara
