#include "charts/TSSpectrumView.h"

#include "charts/ChartText.h"
#include "charts/PaintingOrder.h"
#include "charts/RadioMerge.h"
#include "charts/SpectrumLayout.h"
#include "charts/SpectrumShape.h"
#include "charts/TSThemeHelper.h"
#include "foundation/Defaults.h"

#include <QPainter>

#include <algorithm>
#include <set>

namespace tessara {

namespace {

/// Takes the frame away between the charts of two bands.
void drawDivider(QPainter& painter, const QRectF& divider, const QRectF& chart)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(divider, TSThemeHelper::backgroundColorForChartView());
    painter.setPen(axisPen(painter, withAlpha(Qt::white, 0.3)));
    for (const double x : {divider.x(), divider.x() + divider.width()})
        painter.drawLine(QLineF(x, chart.y(), x, chart.y() + chart.height()));
    painter.restore();
}

QPen outlinePen(const TSNetwork& network, const QColor& color)
{
    constexpr double kWidth = 1.5;
    constexpr double kCollectionWidth = 2.5;
    constexpr double kAssociatedWidth = 4;
    const double width = network.isAssociated()             ? kAssociatedWidth
                         : isCollectionHighlighted(network) ? kCollectionWidth
                                                            : kWidth;
    QPen pen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    if (network.isAdHoc())
        pen.setDashPattern({5 / width, 3 / width});
    return pen;
}

bool containsEmoji(const QString& text)
{
    return std::ranges::any_of(text.toUcs4(), [](char32_t character) {
        return (character >= 0x1f000 && character <= 0x1faff) ||
               (character >= 0x2600 && character <= 0x27bf) || character == 0xfe0f;
    });
}

QString labelText(const TSNetwork& network, const RadioMerge* merge)
{
    if (const auto label = merge ? merge->labelOf(network) : std::nullopt)
        return *label;
    return network.isHidden() ? network.bssid() : network.ssid();
}

/// Who the caption is of.
QString captionName(const TSNetwork& network, const RadioMerge* merge)
{
    if (!merge)
        return network.deviceid();
    const QStringList* ssids = merge->ssids(network);
    if (network.isUserHighlighted() || !ssids)
        return network.ssid();
    QStringList names = *ssids;
    names.sort(Qt::CaseInsensitive);
    return names.join(QStringLiteral(", "));
}

QString captionText(const TSNetwork& network, const RadioMerge* merge)
{
    QString text = QStringLiteral("%1, %2").arg(captionName(network, merge)).arg(network.channel());
    if (const QString width = network.humanReadableChannelWidth(); !width.isEmpty())
        text += QStringLiteral(" @ ") + width;
    return text;
}

/// A line of a label.
struct LabelLine {
    double above; ///< the label's foot, in points of a fresh window
    QString text;
    TextAttributes attributes;
};

QSizeF sizeOf(const std::vector<LabelLine>& lines, const QPaintDevice& device)
{
    QSizeF size(0, 0);
    for (const LabelLine& line : lines) {
        const QSizeF text = sizeOfText(line.text, line.attributes, device);
        size = {std::max(size.width(), text.width()), size.height() + text.height()};
    }
    if (containsEmoji(lines.front().text))
        size.rheight() += lines.size() == 1 ? 10 : 5; // their glyphs are higher than they tell
    return size;
}

} // namespace

struct TSSpectrumView::Emphasis {
    QColor color;
    double stroke; ///< opacities
    double fill;
};

TSSpectrumView::TSSpectrumView(const Clock& clock, QWidget* parent)
    : TSSignalStrengthView(clock, parent)
{
    setDisplayAnnotations(true);
    setDisplayDeviceName(true);
    setDrawLeftYLabels(true);
    setDrawRightYLabels(true);
}

QRectF TSSpectrumView::rectForChart(const QRectF& view) const
{
    return {view.x() + 45, view.y() + 56, view.width() - 90, view.height() - 80};
}

void TSSpectrumView::drawDataPoints(QPainter& painter, const ChartScale& scale)
{
    drawDataPoints(painter, scale, nullptr);
}

void TSSpectrumView::drawDataPoints(QPainter& painter, const ChartScale& scale,
                                    const RadioMerge* merge) const
{
    const SpectrumLayout layout =
        spectrumLayout(scale.rect, networks(), SpectrumSettings::fromDefaults());
    const bool hasTwoBands = !layout.divider.isEmpty();
    if (hasTwoBands)
        drawDivider(painter, layout.divider, scale.rect);
    const std::pair<Band, QRectF> bands[] = {{Band::k2Dot4GHz, layout.rect2Dot4GHz},
                                             {Band::k5GHz, layout.rect5GHz}};
    for (const auto& [band, rect] : bands) {
        if (rect.isEmpty())
            continue;
        SpectrumBand chart{ChannelAxis(band, rect, layout.skipsDFS), scale, !hasTwoBands};
        chart.scale.rect = rect;
        drawAxis(painter, chart);
        if (chart.scale.plotHeight() > 0)
            drawNetworks(painter, chart, merge);
    }
}

// The axis of channels --------------------------------------------------------------------------

void TSSpectrumView::drawAxis(QPainter& painter, const SpectrumBand& band) const
{
    constexpr double kTickLength = 5;
    constexpr double kNumbersBelowChart = 19;
    constexpr double kPartsAboveChart = 9;
    const QRectF& rect = band.axis.rect();
    const WindowScale window = windowScale();
    const double top = rect.y() + rect.height();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRectF(rect.x(), top + 5, rect.width(), 14),
                     TSThemeHelper::backgroundColorForChart());
    painter.fillRect(QRectF(rect.x(), top + 2, rect.width(), 2),
                     band.axis.band() == Band::k2Dot4GHz ? TSThemeHelper::colorFor2Dot4GHzBand()
                                                         : TSThemeHelper::colorFor5GHzBand());

    const double numberSize = window.fontSize(12, 10, 12);
    QPainterPath lines;
    for (const ChannelTick& tick : band.axis.ticks()) {
        lines.moveTo(tick.x, rect.y() - kTickLength);
        lines.lineTo(tick.x, rect.y());
        if (tick.isNumbered) {
            centerTextInContextAtOrigin(painter, {tick.x, rect.y() - kNumbersBelowChart},
                                        QString::number(tick.channel), {numberSize, tick.color});
        }
    }
    painter.strokePath(lines, axisPen(painter, Qt::white));

    const double partSize = std::clamp(window.vertical * 12, 8.0, 12.0) - 2;
    for (const BandPartLabel& part : band.axis.partLabels()) {
        centerTextInContextAtOrigin(painter, {part.x, top + kPartsAboveChart}, part.name,
                                    {partSize, withAlpha(Qt::white, 0.8)});
    }
    painter.restore();
}

// Networks --------------------------------------------------------------------------------------

void TSSpectrumView::drawNetworks(QPainter& painter, const SpectrumBand& band,
                                  const RadioMerge* merge) const
{
    std::set<std::shared_ptr<const NetworkRow>> collectionsWithSelected;
    for (const NetworkPtr& network : highlightedNetworks())
        collectionsWithSelected.insert(network->parentCollection());
    collectionsWithSelected.erase(nullptr);
    const auto draw = [&](const TSNetwork& network) {
        if (!isShown(network))
            return;
        const bool isAmongSelected = collectionsWithSelected.contains(network.parentCollection());
        drawNetwork(painter, band, network, emphasisOf(network, isAmongSelected), merge);
    };
    // Weak networks lie over strong ones, which would hide them, and selected ones over all.
    for (auto network = networks().rbegin(); network != networks().rend(); ++network) {
        if (!isHighlighted(**network))
            draw(**network);
    }
    for (const NetworkPtr& network : networks()) {
        if (isHighlighted(*network))
            draw(*network);
    }
}

bool TSSpectrumView::isShown(const TSNetwork& network) const
{
    if (network.isUserHidden())
        return false;
    return !displayOnlyLastSeen() || network.rssi() != TSDataPoint::kNoData ||
           isHighlighted(network);
}

TSSpectrumView::Emphasis TSSpectrumView::emphasisOf(const TSNetwork& network,
                                                    bool isAmongSelected) const
{
    Emphasis emphasis{network.color(), 0.8, 0.7};
    if (itemHighlightEnabled())
        emphasis.stroke = isHighlighted(network) || isAmongSelected ? 1 : 0.4;
    if (displayOnlyLastSeen() && network.rssi() == TSDataPoint::kNoData)
        emphasis = {Qt::white, emphasis.stroke * 0.4, 0.3}; // out of sight: a ghost
    return emphasis;
}

void TSSpectrumView::drawNetwork(QPainter& painter, const SpectrumBand& band,
                                 const TSNetwork& network, const Emphasis& emphasis,
                                 const RadioMerge* merge) const
{
    constexpr double kCaptionBelowChart = 41;
    const auto shape = spectrumShape(network, band, windowScale());
    if (!shape)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setClipRect(band.axis.rect(), Qt::IntersectClip);
    painter.fillPath(shape->area, network.isUserHighlighted()
                                      ? withAlpha(emphasis.color, emphasis.fill)
                                      : withAlpha(Qt::white, 0.025));
    painter.strokePath(shape->outline,
                       outlinePen(network, withAlpha(emphasis.color, emphasis.stroke)));
    painter.restore();
    if (Defaults::standard().boolForKey(DefaultKey::ShowNetworkLabel))
        drawLabel(painter, *shape, network, emphasis, merge);
    if (network.isUserHighlighted() || (merge && isCollectionHighlighted(network)))
        drawCaption(painter, {shape->center, band.axis.rect().y() - kCaptionBelowChart}, network,
                    emphasis, merge);
}

void TSSpectrumView::drawLabel(QPainter& painter, const SpectrumShape& shape,
                               const TSNetwork& network, const Emphasis& emphasis,
                               const RadioMerge* merge) const
{
    constexpr double kBeside = 12; // from the text to the edge of its box
    const double scale = std::min(1.1, windowScale().vertical);
    const TextStyle style = network.isAssociated() ? TextStyle::kBold : TextStyle::kPlain;
    const bool tellsMore = !merge || network.isUserHighlighted();
    const bool hasAnnotations = tellsMore && displayAnnotations() && network.hasAnnotations();
    const bool hasDeviceName = displayDeviceName() && network.hasDeviceName();

    // From the top: the name, the device's name, the note.
    std::vector<LabelLine> lines;
    const double aboveNote = hasAnnotations ? 14 : 0;
    lines.push_back({aboveNote + (hasDeviceName ? 14 : 0),
                     labelText(network, merge),
                     {scale * 14, withAlpha(emphasis.color, emphasis.stroke), style}});
    if (hasDeviceName) {
        lines.push_back({aboveNote,
                         network.deviceName(),
                         {scale * 11, withAlpha(emphasis.color, emphasis.stroke * 0.8), style}});
    }
    if (hasAnnotations) {
        lines.push_back(
            {0,
             network.annotations(),
             {scale * 10, withAlpha(Qt::white, emphasis.stroke * 0.5), TextStyle::kItalic}});
    }

    const QPointF foot(shape.center, shape.top + scale * 13);
    if (network.isUserHighlighted() && itemHighlightEnabled()) {
        const QSizeF size = sizeOf(lines, *painter.device());
        const double reach = size.width() / 2 + kBeside;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(withAlpha(emphasis.color, emphasis.stroke / 3), 1.5));
        painter.setBrush(withAlpha(Qt::black, 0.8));
        painter.drawRoundedRect(QRectF(foot.x() - reach, foot.y() - 7, 2 * reach, size.height()),
                                scale * 6, scale * 6);
        painter.restore();
    }
    for (const LabelLine& line : lines) {
        centerTextInContextAtOrigin(painter, foot + QPointF(0, line.above * scale), line.text,
                                    line.attributes);
    }
}

void TSSpectrumView::drawCaption(QPainter& painter, const QPointF& origin, const TSNetwork& network,
                                 const Emphasis& emphasis, const RadioMerge* merge) const
{
    const double scale = std::min(1.1, windowScale().vertical);
    centerTextInContextAtOrigin(painter, origin, captionText(network, merge),
                                {scale * 11.5, withAlpha(Qt::white, emphasis.stroke * 0.8)},
                                viewRect().adjusted(5, 5, -5, -5),
                                merge && network.isUserHighlighted() ? network.ssid() : QString());
}

} // namespace tessara
