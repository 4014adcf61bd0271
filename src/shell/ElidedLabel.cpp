#include "shell/ElidedLabel.h"

#include "shell/ToolTipText.h"

#include <QPainter>

namespace tessara {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ElidedLabel::setText(const QString& text, const QString& ownToolTip)
{
    if (text == m_text && ownToolTip == m_ownToolTip)
        return;
    m_text = text;
    m_ownToolTip = ownToolTip;
    setAccessibleName(text);
    updateToolTip();
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateToolTip();
}

bool ElidedLabel::isCut() const
{
    return fontMetrics().horizontalAdvance(m_text) > width();
}

void ElidedLabel::updateToolTip()
{
    const QString& toolTip = m_ownToolTip.isEmpty() && isCut() ? m_text : m_ownToolTip;
    setToolTip(toolTipOf(toolTip));
}

} // namespace tessara
