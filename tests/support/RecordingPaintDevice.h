#pragma once

#include "charts/PaintRecording.h"

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
class RecordingPaintDevice final : public PaintRecorder {
public:
    explicit RecordingPaintDevice(const QSize& size)
        : PaintRecorder(size, 72)
    {
    }

    Painting painting() const
    {
        Painting painting;
        PaintRecording::State state;
        QTransform toChart;
        const auto add = [&](Painted::Kind kind, const QPainterPath& path, QColor color) {
            color.setAlphaF(static_cast<float>(color.alphaF() * state.opacity));
            painting.items.push_back({kind,
                                      toChart.map(path),
                                      state.pen,
                                      color,
                                      state.hints.testFlag(QPainter::Antialiasing),
                                      {},
                                      state.font,
                                      {}});
        };
        for (const PaintRecording::Step& step : recording().steps()) {
            if (const auto* next = std::get_if<PaintRecording::State>(&step)) {
                state = *next;
                toChart = state.transform * QTransform(1, 0, 0, -1, 0, height());
            } else if (const auto* path = std::get_if<QPainterPath>(&step)) {
                if (state.brush.style() != Qt::NoBrush)
                    add(Painted::Kind::kFill, *path, state.brush.color());
                if (state.pen.style() != Qt::NoPen)
                    add(Painted::Kind::kStroke, *path, state.pen.color());
            } else if (const auto* text = std::get_if<PaintRecording::Text>(&step)) {
                add(Painted::Kind::kText, {}, state.pen.color());
                painting.items.back().text = text->text;
                painting.items.back().origin = toChart.map(text->origin);
            }
        }
        return painting;
    }
};

} // namespace tessara
