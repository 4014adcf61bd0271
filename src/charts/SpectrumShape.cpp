#include "charts/SpectrumShape.h"

#include "charts/Clipping.h"
#include "charts/RoundedCorner.h"

#include <algorithm>

namespace tessara {

namespace {

/// The places that a shape hangs on.
struct Anchors {
    double left, center, right; ///< x
    double floor, top;          ///< y
};

bool isDSSSOnly(const TSNetwork& network)
{
    constexpr float kFastest = 11; // Mbit/s
    const float rate = network.maxRate();
    return network.is2Dot4GHz() && rate != 0 && rate <= kFastest;
}

/// How much shapes spread, which grows with the width of the window.
double spread(const TSNetwork& network, const WindowScale& window)
{
    return window.horizontal * (network.is2Dot4GHz() ? 0.4 : 0.1);
}

SpectrumShape flatTop(const Anchors& at, const ChartScale& scale, double spread,
                      const WindowScale& window)
{
    const double height = at.top - at.floor;
    const double share = height / scale.rect.height();
    const double shoulder = at.floor + height * (1 - 0.8 * share);
    const double atShoulder = 7.5 * share * window.horizontal * spread;
    const double atTop = 15 * share * window.horizontal * spread;
    const double left = at.left + atTop;
    const double right = at.right - atTop;
    const double radius = 10 * share; // also where the corners then overlap, on a narrow axis

    QPainterPath path({at.right, at.floor});
    path.lineTo(at.right - atShoulder, shoulder);
    path.lineTo(right, at.top - radius);
    addCorner(path, {right, at.top}, {right - radius, at.top});
    path.lineTo(left + radius, at.top);
    addCorner(path, {left, at.top}, {left, at.top - radius});
    path.lineTo(at.left + atShoulder, shoulder);
    path.lineTo(at.left, at.floor);
    return {at.center, at.top, path, path};
}

/// @param plateau half the width of the flat part on top
SpectrumShape bell(const Anchors& at, const SpectrumBand& band, double plateau,
                   const WindowScale& window)
{
    const double share = (at.top - at.floor) / band.scale.plotHeight();
    const double foot = (1 - share) * 18 * window.horizontal + 5;
    const double rise = at.floor + share * 20;
    const double reach = (band.isAlone ? 56 : 36) * window.horizontal;
    const QPointF left(at.left, at.floor);
    const QPointF right(at.right, at.floor);
    const QPointF topLeft(at.center - plateau, at.top);
    const QPointF topRight(at.center + plateau, at.top);

    SpectrumShape shape{at.center, at.top, {}, {}};
    QPainterPath& outline = shape.outline;
    outline.moveTo(left);
    outline.cubicTo({left.x() + foot, rise}, {topLeft.x() - reach, at.top}, topLeft);
    if (plateau > 0)
        outline.lineTo(topRight);
    outline.moveTo(right);
    outline.cubicTo({right.x() - foot, rise}, {topRight.x() + reach, at.top}, topRight);

    QPainterPath& area = shape.area;
    area.moveTo(right);
    area.lineTo(left);
    area.cubicTo({left.x() + foot, rise}, {topLeft.x() - reach, at.top}, topLeft);
    area.lineTo(topRight);
    area.cubicTo({topRight.x() + reach, at.top}, {right.x() - foot, rise}, right);
    return shape;
}

} // namespace

int halfWidthInPositions(ChannelWidth width)
{
    switch (width) {
    case ChannelWidth::k40MHz:
        return 4;
    case ChannelWidth::k80MHz:
        return 8;
    case ChannelWidth::k160MHz:
        return 16;
    default:
        return 2;
    }
}

std::optional<SpectrumShape> spectrumShape(const TSNetwork& network, const SpectrumBand& band,
                                           const WindowScale& window)
{
    const std::int64_t center = network.channelCenter();
    if (!band.axis.contains(center))
        return std::nullopt;
    const ChannelWidth width = network.attributes().channelWidth;
    const int halfWidth = halfWidthInPositions(width);
    const double spreads = spread(network, window);
    const double overhang = network.is2Dot4GHz() ? 5 * spreads : 0;
    const auto xFor = [&](std::int64_t position) {
        return band.axis.xFor(position, network.channel());
    };
    const double floor = band.scale.rect.y();
    const Anchors anchors{.left = xFor(center - halfWidth) - overhang,
                          .center = xFor(center),
                          .right = xFor(center + halfWidth) + overhang,
                          .floor = floor,
                          .top = floor + band.scale.heightFor(network.rssiLast())};
    const bool isPointed = width == ChannelWidth::kUnknown || width == ChannelWidth::k20MHz;
    SpectrumShape shape = isDSSSOnly(network)
                              ? bell(anchors, band, isPointed ? 0 : 2 * band.axis.step(), window)
                              : flatTop(anchors, band.scale, spreads, window);
    shape.area = clippedArea(shape.area, band.scale.rect);
    shape.outline = clippedOutline(shape.outline, band.scale.rect);
    return shape;
}

} // namespace tessara
