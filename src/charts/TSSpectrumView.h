#pragma once

#include "charts/TSSignalStrengthView.h"

namespace tessara {

struct SpectrumBand;
struct SpectrumShape;

/// The chart of the channels that networks occupy, as high as their last signals: 2.4 GHz on the
/// left, 5 GHz on the right. It knows no time, and the mouse finds nothing on it.
///
/// What of the bands is shown follows the settings at each painting.
class TSSpectrumView : public TSSignalStrengthView {
    Q_OBJECT

public:
    explicit TSSpectrumView(const Clock& clock, QWidget* parent = nullptr);

protected:
    QRectF rectForChart(const QRectF& view) const override;
    void drawDataPoints(QPainter& painter, const ChartScale& scale) override;
    void drawHover(QPainter& /*painter*/, const QRectF& /*view*/) override {}
    void mouseMoved(const QPointF& /*mouse*/) override {}

    /// Paints the networks one by one or, with a merge, organised by radio.
    void drawDataPoints(QPainter& painter, const ChartScale& scale, const RadioMerge* merge) const;

private:
    /// How strongly a network stands out.
    struct Emphasis;

    void drawAxis(QPainter& painter, const SpectrumBand& band) const;
    void drawNetworks(QPainter& painter, const SpectrumBand& band, const RadioMerge* merge) const;
    void drawNetwork(QPainter& painter, const SpectrumBand& band, const TSNetwork& network,
                     const Emphasis& emphasis, const RadioMerge* merge) const;
    void drawLabel(QPainter& painter, const SpectrumShape& shape, const TSNetwork& network,
                   const Emphasis& emphasis, const RadioMerge* merge) const;
    void drawCaption(QPainter& painter, const QPointF& origin, const TSNetwork& network,
                     const Emphasis& emphasis, const RadioMerge* merge) const;
    bool isShown(const TSNetwork& network) const;
    Emphasis emphasisOf(const TSNetwork& network, bool isAmongSelected) const;
};

} // namespace tessara
