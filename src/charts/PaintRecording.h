#pragma once

#include <QBrush>
#include <QFont>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QString>
#include <QTransform>

#include <utility>
#include <variant>
#include <vector>

namespace tessara {

/// What was painted, step by step, to be painted again: on another device, in another thread.
/// Paths and fonts are shared with what they were painted from, not copied. Unlike a QPicture it
/// keeps texts where they were to a fraction of a pixel, and takes less than half the time.
class PaintRecording {
public:
    struct State {
        QTransform transform;
        QPen pen;
        QBrush brush;
        QFont font;
        double opacity = 1;
        QPainter::RenderHints hints;
    };
    /// Narrows what is painted from here on, or with `NoClip` ends that.
    struct Clip {
        QPainterPath path;
        Qt::ClipOperation operation;
        QTransform transform;
    };
    struct Text {
        QPointF origin; ///< the left end of the baseline
        QString text;
    };
    using Step = std::variant<State, Clip, QPainterPath, Text>;

    /// Paints all of it.
    /// @param painter on a device of as many dots an inch as it was recorded for
    void replay(QPainter& painter) const;

    const std::vector<Step>& steps() const { return m_steps; }
    /// How much work it is to paint: about one for an element of a path, ten for a path or a text.
    qsizetype cost() const { return m_cost; }

private:
    friend class PaintRecorder;
    void add(Step step, qsizetype cost);

    std::vector<Step> m_steps;
    qsizetype m_cost = 0;
};

/// A device that remembers what is painted on it, and shows nothing. It takes no pixmaps.
class PaintRecorder : public QPaintDevice {
public:
    /// @param size of the device, in points
    PaintRecorder(const QSize& size, int dotsPerInch);

    QPaintEngine* paintEngine() const override { return &m_engine; }
    const PaintRecording& recording() const { return m_recording; }
    PaintRecording takeRecording() { return std::move(m_recording); }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine final : public QPaintEngine {
    public:
        explicit Engine(PaintRecording& recording);

        bool begin(QPaintDevice* device) override;
        bool end() override;
        Type type() const override { return User; }
        void updateState(const QPaintEngineState& state) override;
        void drawPath(const QPainterPath& path) override;
        void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
        void drawTextItem(const QPointF& origin, const QTextItem& item) override;
        void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& from) override;

    private:
        void add(PaintRecording::Step step, qsizetype cost = 1);

        PaintRecording& m_recording;
        PaintRecording::State m_state;
        bool m_isStateRecorded = false;
    };

    QSize m_size;
    int m_dotsPerInch;
    PaintRecording m_recording;
    mutable Engine m_engine;
};

} // namespace tessara
