#pragma once

#include <QColor>
#include <QToolButton>

namespace tessara {

/// A button that shows a colour, and asks for another one when it is pressed.
class ColorWell final : public QToolButton {
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);

    const QColor& color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    /// The user has chosen a colour.
    void didSelectColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void askForColor();

    QColor m_color;
};

} // namespace tessara
