#pragma once

#include "charts/TSSignalStrengthView.h"
#include "foundation/Directories.h"
#include "support/RecordingPaintDevice.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tessara {

/// What a chart paints at its size.
inline Painting paintingOf(TSSignalStrengthView& view)
{
    RecordingPaintDevice device(view.size());
    QPainter painter(&device);
    view.paint(painter);
    painter.end();
    return device.painting();
}

/// The texts of a painting, in their order.
inline std::vector<std::string> textsOf(const Painting& painting)
{
    std::vector<std::string> texts;
    for (const Painted& item : painting.texts())
        texts.push_back(item.text.toStdString());
    return texts;
}

inline std::vector<std::string> textsOf(TSSignalStrengthView& view)
{
    return textsOf(paintingOf(view));
}

/// The first of a painting's texts that is this one.
inline Painted textOf(const Painting& painting, const char* text)
{
    for (const Painted& item : painting.texts()) {
        if (item.text == QLatin1String(text))
            return item;
    }
    ADD_FAILURE() << "no " << text;
    return {};
}

/// Sends an event of the mouse to a chart.
/// @param point of the chart, y growing upward
inline void sendMouse(TSSignalStrengthView& view, QEvent::Type type, const QPointF& point)
{
    const QPointF position(point.x(), view.height() - point.y());
    const bool moves = type == QEvent::MouseMove;
    QMouseEvent event(type, position, position, moves ? Qt::NoButton : Qt::LeftButton, {}, {});
    QCoreApplication::sendEvent(&view, &event);
}

inline void moveMouse(TSSignalStrengthView& view, const QPointF& point)
{
    sendMouse(view, QEvent::MouseMove, point);
}

/// While it lives, every network whose address ends so has the note "by the stairs".
class NoteByTheStairs final : public AnnotationsDirectory {
public:
    explicit NoteByTheStairs(QChar ending)
        : m_ending(ending)
    {
        Directories::installed().annotations = this;
    }
    ~NoteByTheStairs() override { Directories::installed().annotations = nullptr; }

    std::optional<QString> annotationsFor(const QString& bssid) const override
    {
        return bssid.endsWith(m_ending) ? std::optional(QStringLiteral("by the stairs"))
                                        : std::nullopt;
    }
    void setAnnotations(const QString& /*bssid*/, const QString& /*text*/) override {}

private:
    QChar m_ending;
};

} // namespace tessara
