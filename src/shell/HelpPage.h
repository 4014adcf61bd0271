#pragma once

#include <QTextBrowser>

namespace tessara {

/// A window with one page of the documentation, as the program carries it.
class HelpPage final : public QTextBrowser {
    Q_OBJECT

public:
    /// @param name of a page, such as "filter"
    HelpPage(const QString& name, const QString& title, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessara
