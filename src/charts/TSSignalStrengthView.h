#pragma once

#include "charts/ChartFrame.h"
#include "charts/ChartScale.h"
#include "charts/HoverSearch.h"
#include "charts/KeptPicture.h"
#include "charts/WindowScale.h"
#include "foundation/Clock.h"
#include "model/TSNetwork.h"

#include <QWidget>

#include <limits>
#include <optional>

namespace tessara {

class RadioMerge;

/// The chart of the signals of networks over time, and the base of all charts: it has their
/// frame, what they have in common, and what the mouse does on them.
///
/// The records are read at each painting; the chart holds no history of its own. What does not
/// follow the mouse is painted once for each change and kept, so that hovering costs no repaint.
class TSSignalStrengthView : public QWidget {
    Q_OBJECT

public:
    /// @param clock tells whether the newest scan is recent; must outlive the view
    explicit TSSignalStrengthView(const Clock& clock, QWidget* parent = nullptr);
    ~TSSignalStrengthView() override;

    // What is shown ---------------------------------------------------------------------------

    /// The networks in any order.
    virtual void setNetworks(const NetworkList& networks);
    /// The networks in the order in which they are painted.
    const NetworkList& networks() const { return m_networks; }

    std::int64_t timescale() const { return m_timescale; } ///< seconds from edge to edge
    void setTimescale(std::int64_t seconds);               ///< any, also beyond the limits of zoom
    std::int64_t minTimescale() const { return m_minTimescale; }
    std::int64_t maxTimescale() const { return m_maxTimescale; }
    /// Multiplies the seconds shown by 1 + magnification, within the limits.
    void magnifyWithMagnification(double magnification);

    double referenceTime() const { return m_referenceTime; } ///< of the newest scan
    void setReferenceTime(double time);                      ///< seconds since 1970
    Units units() const { return m_units; }
    void setUnits(Units units);
    /// Networks that are not selected are dimmed.
    bool itemHighlightEnabled() const { return m_itemHighlightEnabled; }
    void setItemHighlightEnabled(bool enabled);
    bool displayAnnotations() const { return m_displayAnnotations; }
    void setDisplayAnnotations(bool display);
    bool displayDeviceName() const { return m_displayDeviceName; }
    void setDisplayDeviceName(bool display);
    bool displayOnlyLastSeen() const { return m_displayOnlyLastSeen; }
    virtual void setDisplayOnlyLastSeen(bool display);
    /// The Option key, which is Alt here, is held: it asks for what else there is to tell of the
    /// sample under the mouse.
    bool isAlternate() const { return m_moDataPointAlternate; }

    // Painting --------------------------------------------------------------------------------

    /// Paints the whole chart as it stands, on any device, its upper left corner at the origin.
    void paint(QPainter& painter);
    /// The chart as it is on the screen.
    QImage imageWithSubviews();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void handleAltKeyDownNotification();
    void handleAltKeyUpNotification();

Q_SIGNALS:
    void timescaleDidChange();

protected:
    // What makes a chart of its own -----------------------------------------------------------

    /// The rectangle of the chart in that of the view.
    virtual QRectF rectForChart(const QRectF& view) const;
    /// The points of a chart above the top of its scale.
    virtual double topMargin(const QRectF& view) const;
    /// Paints what does not follow the mouse: background, `drawChart` and `drawDataPoints`.
    virtual void drawRect(QPainter& painter, const QRectF& view);
    /// Paints the frame.
    virtual void drawChart(QPainter& painter, const ChartScale& scale);
    virtual void drawDataPoints(QPainter& painter, const ChartScale& scale);
    /// Paints what follows the mouse, over all else.
    virtual void drawHover(QPainter& painter, const QRectF& view);
    /// Paints a bubble at the sample under the mouse.
    /// @param metric what it tells of the sample
    void drawSampleBubble(QPainter& painter, const ChartScale& scale, Metric metric,
                          const QColor& color) const;
    /// The mouse has moved without a button, or has left.
    /// @param mouse in points of the chart, y growing upward
    virtual void mouseMoved(const QPointF& mouse);
    virtual void mouseExited();

    /// The scale in force for a view; its rectangle is that of the chart.
    ChartScale chartScale(const QRectF& view) const;
    QRectF viewRect() const { return {QPointF(0, 0), QSizeF(size())}; }
    WindowScale windowScale() const { return WindowScale::ofWindow(window()->size()); }
    const Clock& clock() const { return m_clock; }
    /// The right edge is now, since the newest scan is recent.
    bool hasRecentScan() const;

    void setDrawLeftYLabels(bool draw) { m_drawLeftYLabels = draw; }
    void setDrawRightYLabels(bool draw) { m_drawRightYLabels = draw; }
    void setMaxTimescale(std::int64_t seconds) { m_maxTimescale = seconds; }
    /// The networks that hovering searches.
    const NetworkList& highlightedNetworks() const { return m_highlightedNetworks; }
    void setHighlightedNetworks(NetworkList networks);
    const std::optional<HoverPoint>& hoverPoint() const { return m_moDataPoint; }
    void clearHoverPoint();

    /// Something has changed that is painted: all is painted anew when it is next visible.
    void setNeedsDisplay();
    /// The same for what follows the mouse alone.
    void setHoverNeedsDisplay() { update(); }

    // What the chart shows of networks, one by one or, with a merge, organised by radio.
    void drawDataPoints(QPainter& painter, const ChartScale& scale, const NetworkList& networks,
                        const RadioMerge* merge);
    void drawTitle(QPainter& painter, const ChartScale& scale, const RadioMerge* merge) const;

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void drawLabels(QPainter& painter, const ChartScale& scale, const NetworkList& networks,
                    const RadioMerge* merge) const;
    void drawLines(QPainter& painter, const ChartScale& scale, const NetworkList& networks) const;
    double labelFontSize() const;
    void magnifyLittle(double magnification);
    void dragPicture();

    const Clock& m_clock;
    NetworkList m_networks;
    NetworkList m_highlightedNetworks;
    double m_referenceTime = 0;
    Units m_units = Units::kPercent;
    bool m_itemHighlightEnabled = false;
    std::int64_t m_timescale = 300;
    std::int64_t m_minTimescale = 300;
    std::int64_t m_maxTimescale = 3600;
    bool m_drawLeftYLabels = true;
    bool m_drawRightYLabels = false;
    bool m_displayAnnotations = false;
    bool m_displayDeviceName = false;
    bool m_displayOnlyLastSeen = false;
    int m_maxBezierPoints = std::numeric_limits<int>::max(); ///< of a line's stretch

    std::optional<HoverPoint> m_moDataPoint; ///< the sample under the mouse
    bool m_moDataPointActivated = false;     ///< one was caught since the mouse came in
    bool m_moDataPointAlternate = false;
    double m_pendingMagnification = 0; ///< too little yet to make a second
    QPointF m_pressed;                 ///< where a drag may begin
    bool m_dragInProgress = false;

    KeptPicture m_picture; ///< what does not follow the mouse
};

} // namespace tessara
