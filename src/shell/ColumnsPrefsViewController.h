#pragma once

#include "shell/PreferencesPane.h"

class QCheckBox;
class QLabel;
class QTreeView;

namespace tessara {

class ColumnVisibilityModel;
class TSNetworksView;

/// Which columns the networks table shows, and what each is about.
class ColumnsPrefsViewController final : public PreferencesPane {
    Q_OBJECT

public:
    /// @param networksView the table; must outlive the pane
    explicit ColumnsPrefsViewController(TSNetworksView& networksView, QWidget* parent = nullptr);

    QString identifier() const override { return QStringLiteral("Columns"); }
    QString toolbarItemLabel() const override;
    QIcon toolbarItemImage() const override;
    void viewWillAppear() override;

Q_SIGNALS:
    /// The user wants notes in the spectrum, or wants them no more.
    void displayAnnotationsDidChange(bool display);

private:
    void showDescription();

    ColumnVisibilityModel* m_tableColumns;
    QTreeView* m_columnNamesTableView;
    QLabel* m_columnDescLbl;
    QCheckBox* m_displayAnnotationsBtn;
};

} // namespace tessara
