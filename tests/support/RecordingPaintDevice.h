#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QString>

#include <algorithm>
#include <iterator>
#include <vector>

namespace tessara {

/// A line, an area or a text that was painted, in points from the lower left corner of the device,
/// as charts count them.
struct Painted {
    enum class Kind { kStroke, kFill, kText };
    Kind kind;
    QPainterPath path; ///< of a line or an area
    QPen pen;          ///< of a line
    QColor color;
    bool isAntialiased;
    QString text;
    QFont font;
    QPointF origin; ///< the left end of a text's baseline
};

/// What was painted, in its order.
struct Painting {
    std::vector<Painted> items;

    std::vector<Painted> painted(Painted::Kind kind) const
    {
        std::vector<Painted> found;
        std::ranges::copy_if(items, std::back_inserter(found),
                             [kind](const Painted& item) { return item.kind == kind; });
        return found;
    }

    /// The texts in their colours; each has been painted in black before, as its shadow.
    std::vector<Painted> texts() const
    {
        std::vector<Painted> found;
        for (const Painted& item : painted(Painted::Kind::kText)) {
            if (item.color.rgb() != QColor(Qt::black).rgb())
                found.push_back(item);
        }
        return found;
    }

    /// All painted of one colour, whatever its opacity.
    std::vector<Painted> painted(Painted::Kind kind, const QColor& color) const
    {
        std::vector<Painted> found = painted(kind);
        std::erase_if(found, [&](const Painted& item) { return item.color.rgb() != color.rgb(); });
        return found;
    }
};

/// Remembers what is painted on it, in its order, and shows nothing.
class RecordingPaintDevice final : public QPaintDevice {
public:
    explicit RecordingPaintDevice(const QSize& size)
        : m_size(size)
        , m_engine(*this)
    {
    }

    QPaintEngine* paintEngine() const override { return &m_engine; }

    const Painting& painting() const { return m_painting; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 72;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    class Engine final : public QPaintEngine {
    public:
        explicit Engine(RecordingPaintDevice& device)
            : QPaintEngine(AllFeatures)
            , m_device(device)
        {
        }

        bool begin(QPaintDevice* /*device*/) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }

        void updateState(const QPaintEngineState& state) override
        {
            m_toChart = state.transform() * QTransform(1, 0, 0, -1, 0, m_device.m_size.height());
            m_pen = state.pen();
            m_brush = state.brush();
            m_opacity = state.opacity();
            m_isAntialiased = state.renderHints().testFlag(QPainter::Antialiasing);
        }

        void drawPath(const QPainterPath& path) override
        {
            const QPainterPath mapped = m_toChart.map(path);
            if (m_brush.style() != Qt::NoBrush)
                m_device.add(Painted::Kind::kFill, mapped, seen(m_brush.color()), m_pen,
                             m_isAntialiased);
            if (m_pen.style() != Qt::NoPen)
                m_device.add(Painted::Kind::kStroke, mapped, seen(m_pen.color()), m_pen,
                             m_isAntialiased);
        }

        void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
        {
            QPainterPath path(points[0]);
            for (int i = 1; i < count; ++i)
                path.lineTo(points[i]);
            if (mode != PolylineMode)
                path.closeSubpath();
            drawPath(path);
        }

        void drawTextItem(const QPointF& origin, const QTextItem& item) override
        {
            m_device.m_painting.items.push_back({Painted::Kind::kText,
                                                 {},
                                                 {},
                                                 seen(m_pen.color()),
                                                 m_isAntialiased,
                                                 item.text(),
                                                 item.font(),
                                                 m_toChart.map(origin)});
        }

        void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                        const QRectF& /*from*/) override
        {
        }

    private:
        QColor seen(QColor color) const
        {
            color.setAlphaF(static_cast<float>(color.alphaF() * m_opacity));
            return color;
        }

        RecordingPaintDevice& m_device;
        QTransform m_toChart;
        QPen m_pen;
        QBrush m_brush;
        double m_opacity = 1;
        bool m_isAntialiased = false;
    };

    void add(Painted::Kind kind, const QPainterPath& path, const QColor& color, const QPen& pen,
             bool isAntialiased)
    {
        m_painting.items.push_back({kind, path, pen, color, isAntialiased, {}, {}, {}});
    }

    QSize m_size;
    Painting m_painting;
    mutable Engine m_engine;
};

} // namespace tessara
