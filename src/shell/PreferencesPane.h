#pragma once

#include <QIcon>
#include <QWidget>

namespace tessara {

/// One pane of the preferences window. What it shows it reads from the settings when it is about
/// to be seen, and what the user changes it writes there at once.
class PreferencesPane : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The pane's name in the settings.
    virtual QString identifier() const = 0;
    virtual QString toolbarItemLabel() const = 0;
    virtual QIcon toolbarItemImage() const = 0;

    virtual void viewWillAppear() = 0;

protected:
    static constexpr int kMargin = 18; ///< pixels, around what the pane holds
};

} // namespace tessara
