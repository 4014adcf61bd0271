#pragma once

#include <QColor>
#include <QToolButton>

namespace tessara {

/// A button that shows a colour.
class ColorWell final : public QToolButton {
    Q_OBJECT

public:
    explicit ColorWell(QWidget* parent = nullptr);

    const QColor& color() const { return m_color; }
    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace tessara
