#pragma once

#include <QLineEdit>

class QMenu;

namespace tessara {

/// The field of the filter line, with the lines that were used lately.
class FilterField final : public QLineEdit {
    Q_OBJECT

public:
    explicit FilterField(QWidget* parent = nullptr);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user wants back to the list.
    void didLeave();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void remember();
    void paletteDidChange();
    void showMenu();
    void fillMenu();

    QMenu* m_recentFilters;
};

} // namespace tessara
