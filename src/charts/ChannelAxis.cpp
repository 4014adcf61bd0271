#include "charts/ChannelAxis.h"

#include "charts/TSThemeHelper.h"

#include <algorithm>
#include <span>

namespace tessara {

namespace {

constexpr double kLeftOfFirst = 10;   // points from the edge to one step before the first position
constexpr int kSkippedPositions = 84; // channels 52 to 135
constexpr double kNumberOpacity = 0.8;

/// A channel that is marked on its axis.
struct MarkedChannel {
    int channel;
    double smallestStep; ///< points; its number is left out where positions stand closer
};

constexpr MarkedChannel k2Dot4GHzChannels[] = {
    {1, 0}, {2, 0}, {3, 0},  {4, 0},   {5, 0},  {6, 0},   {7, 0},
    {8, 0}, {9, 0}, {10, 0}, {11, 12}, {12, 0}, {13, 12}, {14, 0},
};

constexpr MarkedChannel k5GHzChannels[] = {
    {36, 0},    {40, 4.5},  {44, 0},    {48, 4.5},  {52, 0},    {56, 4.5},  {60, 0},
    {64, 4.5},  {100, 0},   {104, 5.5}, {108, 2.2}, {112, 5.5}, {116, 0},   {120, 5.5},
    {124, 2.2}, {128, 5.5}, {132, 0},   {136, 5.5}, {140, 2.2}, {144, 5.5}, {149, 0},
    {153, 5.5}, {157, 2.2}, {161, 5.5}, {165, 0},
};

/// A part of the 5 GHz band, as regulators divide it.
struct BandPart {
    const char16_t* name;
    int first;
    int last;
};

constexpr BandPart k5GHzParts[] = {
    {u"UNII-1", 36, 48},
    {u"UNII-2", 52, 64},
    {u"UNII-2 Ext", 100, 144},
    {u"UNII-3", 149, 165},
};

/// The layout of a band's axis.
struct AxisOfBand {
    int first; ///< the channel number of the first position, and of the last
    int last;
    int positions;
    std::span<const MarkedChannel> channels;
};

const AxisOfBand& axisOf(Band band)
{
    // Channel 14 stands apart, 12 MHz above 13: the axis has a position more than numbers.
    static constexpr AxisOfBand k2Dot4GHz{0, 16, 18, k2Dot4GHzChannels};
    static constexpr AxisOfBand k5GHz{32, 176, 145, k5GHzChannels};
    return band == Band::k2Dot4GHz ? k2Dot4GHz : k5GHz;
}

QColor colorOf(int channel)
{
    if (isDFSChannel(channel))
        return TSThemeHelper::colorFor5GHzBand();
    // The three channels of 2.4 GHz that do not overlap.
    if (channel == 1 || channel == 6 || channel == 11)
        return QColor::fromRgbF(1, 0.5F, 0, kNumberOpacity);
    return withAlpha(Qt::white, kNumberOpacity);
}

} // namespace

ChannelAxis::ChannelAxis(Band band, const QRectF& rect, bool skipsDFS)
    : m_band(band)
    , m_rect(rect)
    , m_skipsDFS(skipsDFS && band == Band::k5GHz)
    , m_step(rect.width() / (axisOf(band).positions - (m_skipsDFS ? kSkippedPositions : 0)))
{
}

bool ChannelAxis::contains(std::int64_t channelCenter) const
{
    const AxisOfBand& axis = axisOf(m_band);
    return channelCenter != 0 && channelCenter >= axis.first && channelCenter <= axis.last;
}

double ChannelAxis::xFor(std::int64_t position, std::int64_t channel) const
{
    constexpr int kFirstSkipped = 52;
    std::int64_t steps = position - axisOf(m_band).first + 1;
    if (m_skipsDFS && channel >= kFirstSkipped)
        steps -= kSkippedPositions;
    return m_rect.x() + kLeftOfFirst + static_cast<double>(steps) * m_step;
}

double ChannelAxis::tickX(int channel) const
{
    // The shape of a network on channel 14 goes by its number and not by this tick.
    return xFor(channel == 14 ? 15 : channel, channel);
}

std::vector<ChannelTick> ChannelAxis::ticks() const
{
    std::vector<ChannelTick> ticks;
    for (const MarkedChannel& marked : axisOf(m_band).channels) {
        if (m_skipsDFS && isDFSChannel(marked.channel))
            continue;
        ticks.push_back({marked.channel, tickX(marked.channel), colorOf(marked.channel),
                         m_step >= marked.smallestStep});
    }
    return ticks;
}

std::vector<BandPartLabel> ChannelAxis::partLabels() const
{
    if (m_band == Band::k2Dot4GHz)
        return {{QStringLiteral("ISM"), m_rect.x() + m_rect.width() / 2}};
    std::vector<BandPartLabel> labels;
    for (const BandPart& part : k5GHzParts) {
        if (!m_skipsDFS || !isDFSChannel(part.first))
            labels.push_back(
                {QStringView(part.name).toString(), (tickX(part.first) + tickX(part.last)) / 2});
    }
    return labels;
}

} // namespace tessara
