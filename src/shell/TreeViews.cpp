#include "shell/TreeViews.h"

#include "shell/LegibleColor.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>

namespace tessara {

bool isTyping(const QKeyEvent& event)
{
    const QString text = event.text();
    return !text.isEmpty() && text.front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

void setFontSizeOf(QAbstractItemView& view, double points)
{
    QFont font = view.font();
    font.setPointSizeF(points);
    view.setFont(font);
}

void paintPlaceholder(QAbstractItemView& view, const QString& text)
{
    if (view.model()->rowCount() > 0)
        return;
    QPainter painter(view.viewport());
    painter.setFont(view.font());
    painter.setPen(dimmed(view.palette()));
    painter.drawText(view.viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace tessara
