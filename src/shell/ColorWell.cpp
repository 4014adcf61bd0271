#include "shell/ColorWell.h"

#include "foundation/Localized.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace tessara {

namespace {

constexpr double kRadius = 3;
constexpr double kLineAlpha = 0.35;

} // namespace

ColorWell::ColorWell(QWidget* parent)
    : QToolButton(parent)
{
    setAccessibleName(localized("Colour of the network"));
    setToolTip(localized("Colour of the network in the table and in the charts"));
    setFocusPolicy(Qt::TabFocus);
    const int side = fontMetrics().height();
    setFixedSize(2 * side, side);
}

void ColorWell::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(kLineAlpha);
    painter.setPen(line);
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace tessara
