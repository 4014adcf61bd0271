#include "charts/TSSignalStrengthView.h"

#include "charts/Bubble.h"
#include "charts/ChartPicture.h"
#include "charts/ChartText.h"
#include "charts/PaintingOrder.h"
#include "charts/RadioMerge.h"
#include "charts/SignalLine.h"
#include "charts/TSThemeHelper.h"
#include "charts/TimeAxis.h"
#include "charts/ValueAxis.h"

#include <QApplication>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace tessara {

namespace {

constexpr std::size_t kLongHistory = 150; // samples
constexpr int kShortStretch = 24;         // elements
constexpr double kLabelsBesideChart = 4.5;
constexpr double kAboveChart = 9;
constexpr double kBelowChart = 18;

/// Upright for painting: a chart's y grows upward.
void turnUpright(QPainter& painter, double height)
{
    painter.translate(0, height);
    painter.scale(1, -1);
}

QString labelText(const TSNetwork& network, const RadioMerge* merge)
{
    if (const auto label = merge ? merge->labelOf(network) : std::nullopt)
        return *label;
    return network.isHidden() ? network.deviceid() : network.ssid();
}

/// The names of all collections that are selected, each once.
QString collectionsTitle(const NetworkList& networks, const RadioMerge& merge)
{
    QStringList names;
    for (const NetworkPtr& network : networks) {
        const QStringList* ssids = merge.ssids(*network);
        if (!ssids || !isCollectionHighlighted(*network))
            continue;
        for (const QString& ssid : *ssids) {
            if (!names.contains(ssid))
                names.append(ssid);
        }
    }
    return names.join(QStringLiteral(", "));
}

double lineWidth(const TSNetwork& network, const WindowScale& window)
{
    constexpr double kWidth = 2;
    constexpr double kAssociatedWidth = 4; // in a fresh window
    constexpr double kLargestWidth = 3;
    return network.isAssociated() ? std::min(kLargestWidth, kAssociatedWidth * window.horizontal)
                                  : kWidth;
}

} // namespace

TSSignalStrengthView::TSSignalStrengthView(const Clock& clock, QWidget* parent)
    : QWidget(parent)
    , m_clock(clock)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_AcceptTouchEvents);
    grabGesture(Qt::PinchGesture);
    connect(&m_picture, &KeptPicture::didPaint, this, qOverload<>(&QWidget::update));
}

TSSignalStrengthView::~TSSignalStrengthView() = default;

// What is shown ---------------------------------------------------------------------------------

void TSSignalStrengthView::setNetworks(const NetworkList& networks)
{
    // The sample under the mouse goes with the selection of its network; it stays where that has
    // merely left the list.
    std::unordered_set<std::size_t> selected;
    for (const NetworkPtr& network : m_highlightedNetworks)
        selected.insert(network->keyHash());
    const auto wasDeselected = [&](const NetworkPtr& network) {
        return !network->isUserHighlighted() && selected.contains(network->keyHash());
    };
    if (m_moDataPoint && std::ranges::any_of(networks, wasDeselected))
        clearHoverPoint();
    PaintingOrder order = paintingOrder(networks);
    m_networks = std::move(order.networks);
    m_highlightedNetworks = std::move(order.highlighted);
    setNeedsDisplay();
}

void TSSignalStrengthView::setHighlightedNetworks(NetworkList networks)
{
    m_highlightedNetworks = std::move(networks);
}

void TSSignalStrengthView::setTimescale(std::int64_t seconds)
{
    if (std::exchange(m_timescale, seconds) == seconds)
        return;
    setNeedsDisplay();
    Q_EMIT timescaleDidChange();
}

void TSSignalStrengthView::magnifyWithMagnification(double magnification)
{
    const double seconds = std::trunc((magnification + 1) * static_cast<double>(m_timescale));
    setTimescale(
        static_cast<std::int64_t>(std::max(std::min(seconds, static_cast<double>(m_maxTimescale)),
                                           static_cast<double>(m_minTimescale))));
}

void TSSignalStrengthView::setReferenceTime(double time)
{
    m_referenceTime = time;
    setNeedsDisplay();
}

void TSSignalStrengthView::setUnits(Units units)
{
    m_units = units;
    setNeedsDisplay();
}

void TSSignalStrengthView::setItemHighlightEnabled(bool enabled)
{
    m_itemHighlightEnabled = enabled;
    setNeedsDisplay();
}

void TSSignalStrengthView::setDisplayAnnotations(bool display)
{
    m_displayAnnotations = display;
    setNeedsDisplay();
}

void TSSignalStrengthView::setDisplayDeviceName(bool display)
{
    m_displayDeviceName = display;
    setNeedsDisplay();
}

void TSSignalStrengthView::setDisplayOnlyLastSeen(bool display)
{
    m_displayOnlyLastSeen = display;
    setNeedsDisplay();
}

// Layout ----------------------------------------------------------------------------------------

QRectF TSSignalStrengthView::rectForChart(const QRectF& view) const
{
    return {view.x() + 45, view.y() + 35, view.width() - 220, view.height() - 65};
}

double TSSignalStrengthView::topMargin(const QRectF& view) const
{
    return std::trunc(view.height() * 0.1);
}

ChartScale TSSignalStrengthView::chartScale(const QRectF& view) const
{
    return {.rect = rectForChart(view),
            .topMargin = topMargin(view),
            .units = m_units,
            .referenceTime = m_referenceTime,
            .timescale = m_timescale};
}

QSize TSSignalStrengthView::sizeHint() const
{
    return {1100, 300};
}

QSize TSSignalStrengthView::minimumSizeHint() const
{
    return {320, 200}; // less would let the texts of the axes touch
}

// Painting --------------------------------------------------------------------------------------

void TSSignalStrengthView::setNeedsDisplay()
{
    m_picture.invalidate();
    update();
}

bool TSSignalStrengthView::hasRecentScan() const
{
    return isNow(m_referenceTime, m_clock.now());
}

void TSSignalStrengthView::paint(QPainter& painter)
{
    painter.save();
    turnUpright(painter, height());
    drawRect(painter, viewRect());
    drawHover(painter, viewRect());
    painter.restore();
}

void TSSignalStrengthView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    m_picture.draw(painter, {size(), devicePixelRatioF(), window()->size(), hasRecentScan()},
                   [this](QPainter& picture) {
                       turnUpright(picture, height());
                       drawRect(picture, viewRect());
                   });
    turnUpright(painter, height());
    drawHover(painter, viewRect());
}

void TSSignalStrengthView::hideEvent(QHideEvent* event)
{
    m_picture.forget();
    QWidget::hideEvent(event);
}

QImage TSSignalStrengthView::imageWithSubviews()
{
    const double ratio = devicePixelRatioF();
    QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
    if (image.isNull())
        return image; // there is no room for it
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    paint(painter);
    return image;
}

void TSSignalStrengthView::drawRect(QPainter& painter, const QRectF& view)
{
    painter.fillRect(view, TSThemeHelper::backgroundColorForChartView());
    const ChartScale scale = chartScale(view);
    drawChart(painter, scale);
    drawDataPoints(painter, scale);
}

void TSSignalStrengthView::drawChart(QPainter& painter, const ChartScale& scale)
{
    drawChartFrame(painter, scale,
                   {.leftLabels = m_drawLeftYLabels, .rightLabels = m_drawRightYLabels},
                   windowScale());
}

void TSSignalStrengthView::drawDataPoints(QPainter& painter, const ChartScale& scale)
{
    drawDataPoints(painter, scale, m_networks, nullptr);
}

void TSSignalStrengthView::drawDataPoints(QPainter& painter, const ChartScale& scale,
                                          const NetworkList& networks, const RadioMerge* merge)
{
    const QRectF& rect = scale.rect;
    const bool hasLongHistory = std::ranges::any_of(networks, [](const NetworkPtr& network) {
        return network->history().size() > kLongHistory;
    });
    if (hasLongHistory)
        m_maxBezierPoints = std::min(m_maxBezierPoints, kShortStretch);

    painter.save();
    painter.fillRect(
        QRectF(rect.x() + rect.width() + 2, rect.y(), width() - rect.width() - 60, rect.height()),
        TSThemeHelper::backgroundColorForChart());
    if (!networks.empty()) {
        drawXAxisMarks(
            painter, scale,
            {static_cast<float>(rect.x() + 0.5), static_cast<float>(rect.y() - kBelowChart)},
            labelFontSize(), hasRecentScan());
    }
    drawLabels(painter, scale, networks, merge);
    painter.setClipRect(chartClip(rect), Qt::IntersectClip);
    drawLines(painter, scale, networks);
    painter.restore();
}

double TSSignalStrengthView::labelFontSize() const
{
    return windowScale().fontSize(10, 9, 13);
}

void TSSignalStrengthView::drawLabels(QPainter& painter, const ChartScale& scale,
                                      const NetworkList& networks, const RadioMerge* merge) const
{
    constexpr double kLargerThanAxis = 2.5;
    const WindowScale window = windowScale();
    const double fontSize = labelFontSize();
    const double beside = kLabelsBesideChart * window.horizontal;
    const double x = scale.rect.x() + scale.rect.width() + beside;
    for (const NetworkPtr& network : networks) {
        if (network->isUserHidden())
            continue;
        const auto last = network->lastDataPoint();
        const double y = last ? scale.yFor(*last, Metric::kSignal) : scale.rect.y();
        const double alpha = isHighlighted(*network) ? 1 : m_itemHighlightEnabled ? 0.2 : 0.8;
        TextAttributes attributes{fontSize + kLargerThanAxis, withAlpha(network->color(), alpha),
                                  network->isAssociated() ? TextStyle::kBold : TextStyle::kPlain};
        textInContextAtOrigin(painter, {x, y - beside}, labelText(*network, merge), attributes);
        if (merge && m_displayDeviceName && network->isUserHighlighted()) {
            attributes.size = std::min(1.1, window.vertical) * fontSize;
            attributes.color = withAlpha(network->color(), alpha * 0.8);
            textInContextAtOrigin(painter, {x, y - (fontSize + 3) - beside}, network->deviceName(),
                                  attributes);
        }
    }
}

void TSSignalStrengthView::drawLines(QPainter& painter, const ChartScale& scale,
                                     const NetworkList& networks) const
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    const WindowScale window = windowScale();
    // A selected member of a selected collection takes the area's colour as it stands.
    QColor areaColor = TSThemeHelper::backgroundColorForChart();
    for (const NetworkPtr& network : networks) {
        if (network->isUserHidden())
            continue;
        double opacity = 0.8;
        if (m_itemHighlightEnabled) {
            opacity = isHighlighted(*network) ? 1 : 0.15;
            if (!isCollectionHighlighted(*network))
                areaColor = withAlpha(network->color(), network->isUserHighlighted() ? 0.6 : 0);
        }
        const QPen pen =
            linePen(*network, withAlpha(network->color(), opacity), lineWidth(*network, window));
        const SampleLine line =
            sampleLine(network->history(), scale,
                       {.hasArea = network->isUserHighlighted(), .maxElements = m_maxBezierPoints});
        for (const QPainterPath& stretch : line.stretches)
            painter.strokePath(stretch, pen);
        for (const QPainterPath& area : line.areas)
            painter.fillPath(area, areaColor);
    }
}

void TSSignalStrengthView::drawHover(QPainter& painter, const QRectF& view)
{
    const ChartScale scale = chartScale(view);
    if (m_moDataPoint)
        drawSampleBubble(painter, scale, Metric::kSignal, m_moDataPoint->color);
    else
        drawTitle(painter, scale, nullptr);
}

void TSSignalStrengthView::drawSampleBubble(QPainter& painter, const ChartScale& scale,
                                            Metric metric, const QColor& color) const
{
    const TSDataPoint& sample = m_moDataPoint->sample;
    drawBubble(painter, scale.rect, valueText(sample, metric, m_units),
               timeStringWithFormat(sample.timestamp(), exactTimeFormat()),
               scale.makePointInRect(sample, metric), color, windowScale());
}

void TSSignalStrengthView::drawTitle(QPainter& painter, const ChartScale& scale,
                                     const RadioMerge* merge) const
{
    const QRectF& rect = scale.rect;
    const QPointF origin(rect.x() + rect.width(), rect.y() + rect.height() + kAboveChart);
    const QRectF bounds(rect.x(), rect.y(), rect.width(), rect.height() + 20);
    const double fontSize = labelFontSize() + 1;
    const TextAttributes attributes{fontSize, Qt::white};
    if (m_highlightedNetworks.size() == 1) {
        const TSNetwork& network = *m_highlightedNetworks.front();
        centerTextInContextAtOrigin(painter, origin, merge ? network.ssid() : network.bssid(),
                                    attributes, bounds);
        const double beside = kLabelsBesideChart * windowScale().horizontal;
        textInContextAtOrigin(painter, origin + QPointF(beside, 0), network.annotations(),
                              {fontSize, withAlpha(Qt::white, 0.5), TextStyle::kItalic});
    } else if (merge) {
        centerTextInContextAtOrigin(painter, origin, collectionsTitle(m_networks, *merge),
                                    attributes, bounds);
    }
}

// The mouse -------------------------------------------------------------------------------------

void TSSignalStrengthView::mouseMoved(const QPointF& mouse)
{
    const ChartScale scale = chartScale(viewRect());
    std::optional<HoverPoint> found;
    if (scale.rect.contains(mouse)) {
        const bool follows = m_highlightedNetworks.size() == 1 && m_moDataPointActivated;
        found = nearestSample(m_highlightedNetworks, scale, mouse,
                              follows ? HoverDistance::kAlongTime : HoverDistance::kInPlane);
    }
    if (found == m_moDataPoint)
        return;
    m_moDataPoint = found;
    m_moDataPointActivated = m_moDataPointActivated || found;
    setHoverNeedsDisplay();
}

void TSSignalStrengthView::mouseExited()
{
    m_moDataPointActivated = false;
    clearHoverPoint();
}

void TSSignalStrengthView::clearHoverPoint()
{
    m_moDataPoint.reset();
    setHoverNeedsDisplay();
}

void TSSignalStrengthView::handleAltKeyDownNotification()
{
    m_moDataPointAlternate = true;
    setHoverNeedsDisplay();
}

void TSSignalStrengthView::handleAltKeyUpNotification()
{
    m_moDataPointAlternate = false;
    setHoverNeedsDisplay();
}

void TSSignalStrengthView::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->position();
}

void TSSignalStrengthView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF position = event->position();
    if (event->buttons() == Qt::NoButton) {
        if (isActiveWindow()) // what lies behind does not stir
            mouseMoved({position.x(), height() - position.y()});
    } else if (event->buttons().testFlag(Qt::LeftButton) && !m_dragInProgress &&
               (position - m_pressed).manhattanLength() >= QApplication::startDragDistance()) {
        dragPicture();
    }
}

void TSSignalStrengthView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_dragInProgress = false;
}

void TSSignalStrengthView::leaveEvent(QEvent* /*event*/)
{
    mouseExited();
}

void TSSignalStrengthView::wheelEvent(QWheelEvent* event)
{
    constexpr double kMagnification = 0.2; // of one step of the wheel
    constexpr double kStep = QWheelEvent::DefaultDeltasPerStep;
    magnifyLittle(-kMagnification * event->angleDelta().y() / kStep);
    event->accept();
}

bool TSSignalStrengthView::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto& gesture = static_cast<const QNativeGestureEvent&>(*event);
        if (gesture.gestureType() != Qt::ZoomNativeGesture)
            return false;
        magnifyLittle(-gesture.value()); // fingers that spread shorten the time
        return true;
    }
    if (event->type() == QEvent::Gesture) {
        const auto& gestures = static_cast<const QGestureEvent&>(*event);
        if (const auto* pinch =
                static_cast<const QPinchGesture*>(gestures.gesture(Qt::PinchGesture)))
            magnifyLittle(1 - pinch->scaleFactor());
        return true;
    }
    return QWidget::event(event);
}

void TSSignalStrengthView::magnifyLittle(double magnification)
{
    m_pendingMagnification += magnification;
    if (std::abs(m_pendingMagnification) * static_cast<double>(m_timescale) >= 1)
        magnifyWithMagnification(std::exchange(m_pendingMagnification, 0));
}

void TSSignalStrengthView::dragPicture()
{
    m_dragInProgress = true;
    const QPointer<TSSignalStrengthView> self(this);
    dragChartPicture(imageWithSubviews(), chartPictureName(m_clock.now()), *this);
    if (self)
        m_dragInProgress = false;
}

} // namespace tessara
