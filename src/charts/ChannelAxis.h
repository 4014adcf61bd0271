#pragma once

#include "model/Band.h"

#include <QColor>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <vector>

namespace tessara {

/// Whether a channel is one that radar may use: its networks have to watch for it and to leave
/// (dynamic frequency selection; IEEE Std 802.11-2020, 11.8).
constexpr bool isDFSChannel(std::int64_t channel)
{
    return channel >= 52 && channel <= 144;
}

/// A channel that the axis marks.
struct ChannelTick {
    int channel;
    double x;
    QColor color;
    bool isNumbered; ///< there is room for its number

    bool operator==(const ChannelTick&) const = default;
};

/// The name of a part of a band, and the middle of where it lies.
struct BandPartLabel {
    QString name;
    double x;

    bool operator==(const BandPartLabel&) const = default;
};

/// The axis of the channels of a band, from edge to edge of a chart. A position on it is 5 MHz
/// wide, so that channel numbers count positions.
class ChannelAxis {
public:
    /// @param skipsDFS leaves out the channels of radar, with those of 5 GHz between 52 and 136
    ChannelAxis(Band band, const QRectF& rect, bool skipsDFS);

    Band band() const { return m_band; }
    /// Of the chart, as it is counted in charts: points, y growing upward.
    const QRectF& rect() const { return m_rect; }
    double step() const { return m_step; } ///< points from one position to the next

    /// Whether a channel, by the number of its centre, lies on the axis.
    bool contains(std::int64_t channelCenter) const;
    /// Where a position of a network lies.
    /// @param position a channel number, or one between two or beside them
    /// @param channel the network's primary channel: all of its shape moves up with it where
    ///        channels are left out
    double xFor(std::int64_t position, std::int64_t channel) const;

    /// The channels that are marked, lowest first.
    std::vector<ChannelTick> ticks() const;
    std::vector<BandPartLabel> partLabels() const;

private:
    double tickX(int channel) const;

    Band m_band;
    QRectF m_rect;
    bool m_skipsDFS;
    double m_step;
};

} // namespace tessara
