#pragma once

#include <QDialog>

#include <vector>

class QActionGroup;
class QToolBar;
class QVBoxLayout;

namespace tessara {

class PreferencesPane;

/// The frame of the preferences: a toolbar of panes, and the selected pane below it, whose size
/// the window takes. The settings remember which pane that is.
class MASPreferencesWindowController final : public QDialog {
    Q_OBJECT

public:
    /// @param panes in the order of the toolbar; the window takes them over
    MASPreferencesWindowController(const std::vector<PreferencesPane*>& panes, QWidget* parent);

    /// Selects the pane of an identifier; one that there is not changes nothing.
    void selectPane(const QString& identifier);

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addPane(PreferencesPane& pane);
    void setPane(PreferencesPane& pane);

    const std::vector<PreferencesPane*> m_panes;
    PreferencesPane* m_selectedPane = nullptr;
    QToolBar* m_toolBar;
    QActionGroup* m_items;
    QVBoxLayout* m_layout;
};

} // namespace tessara
