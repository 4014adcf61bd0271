#include "shell/ActivityIndicator.h"

#include "foundation/Localized.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tessara {

namespace {

constexpr int kSpokes = 10;
constexpr int kStepInterval = 90; // milliseconds

} // namespace

ActivityIndicator::ActivityIndicator(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ActivityIndicator::start()
{
    if (!isAnimating())
        m_timer.start(kStepInterval, this);
    setAccessibleName(localized("Scan in progress"));
    update();
}

void ActivityIndicator::stop()
{
    m_timer.stop();
    setAccessibleName({});
    update();
}

QSize ActivityIndicator::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {side, side};
}

void ActivityIndicator::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_step = (m_step + 1) % kSpokes;
    update();
}

void ActivityIndicator::paintEvent(QPaintEvent*)
{
    if (!isAnimating())
        return;
    const double radius = std::min(width(), height()) / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    QColor color = palette().color(QPalette::WindowText);
    for (int spoke = 0; spoke < kSpokes; ++spoke) {
        // The spoke that was passed last is the strongest.
        const int age = (m_step - spoke + kSpokes) % kSpokes;
        color.setAlphaF(0.1F + 0.6F * static_cast<float>(kSpokes - age) / kSpokes);
        painter.setPen(QPen(color, radius / 5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(360.0 / kSpokes * spoke);
        painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
        painter.restore();
    }
}

} // namespace tessara
