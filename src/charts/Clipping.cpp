#include "charts/Clipping.h"

#include <QLineF>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <optional>

namespace tessara {

namespace {

bool isWithin(const QPainterPath& path, const QRectF& rect)
{
    const QRectF box = path.controlPointRect();
    return box.left() >= rect.left() && box.right() <= rect.right() && box.top() >= rect.top() &&
           box.bottom() <= rect.bottom();
}

/// The parts of a path with their curves as short lines, fine enough also for print.
QList<QPolygonF> flattened(const QPainterPath& path)
{
    constexpr double kFineness = 8; // a power of two: points stay exactly where they are
    QList<QPolygonF> parts = path.toSubpathPolygons(QTransform::fromScale(kFineness, kFineness));
    for (QPolygonF& part : parts)
        part = QTransform::fromScale(1 / kFineness, 1 / kFineness).map(part);
    return parts;
}

/// The straight edge of a rectangle, by how far inside of it a point lies.
using Edge = double (*)(const QPointF& point, const QRectF& rect);

constexpr Edge kEdges[] = {
    [](const QPointF& point, const QRectF& rect) { return point.x() - rect.left(); },
    [](const QPointF& point, const QRectF& rect) { return rect.right() - point.x(); },
    [](const QPointF& point, const QRectF& rect) { return point.y() - rect.top(); },
    [](const QPointF& point, const QRectF& rect) { return rect.bottom() - point.y(); },
};

/// The polygon on the inner side of an edge (Sutherland and Hodgman).
QPolygonF clippedAt(Edge edge, const QPolygonF& polygon, const QRectF& rect)
{
    QPolygonF result;
    result.reserve(polygon.size() + 2);
    for (qsizetype i = 0; i < polygon.size(); ++i) {
        const QPointF& from = polygon[i > 0 ? i - 1 : polygon.size() - 1];
        const QPointF& to = polygon[i];
        const double a = edge(from, rect);
        const double b = edge(to, rect);
        if ((a < 0) != (b < 0))
            result.append(from + a / (a - b) * (to - from));
        if (b >= 0)
            result.append(to);
    }
    return result;
}

/// The part of a line within a rectangle, its direction kept (Liang and Barsky); none of a line
/// that only touches it.
std::optional<QLineF> clippedLine(const QLineF& line, const QRectF& rect)
{
    double enters = 0; // of the way from its first end to the other
    double leaves = 1;
    for (const Edge edge : kEdges) {
        const double a = edge(line.p1(), rect);
        const double b = edge(line.p2(), rect);
        if (a < 0 && b < 0)
            return std::nullopt;
        if (a < 0)
            enters = std::max(enters, a / (a - b));
        else if (b < 0)
            leaves = std::min(leaves, a / (a - b));
    }
    if (enters >= leaves)
        return std::nullopt;
    return QLineF(enters > 0 ? line.pointAt(enters) : line.p1(),
                  leaves < 1 ? line.pointAt(leaves) : line.p2());
}

} // namespace

QPainterPath clippedOutline(const QPainterPath& path, const QRectF& rect)
{
    if (isWithin(path, rect))
        return path;
    QPainterPath result;
    for (const QPolygonF& part : flattened(path)) {
        bool continues = false;
        for (qsizetype i = 1; i < part.size(); ++i) {
            const auto line = clippedLine({part[i - 1], part[i]}, rect);
            if (line && !continues)
                result.moveTo(line->p1());
            if (line)
                result.lineTo(line->p2());
            continues = line && line->p2() == part[i];
        }
    }
    return result;
}

QPainterPath clippedArea(const QPainterPath& path, const QRectF& rect)
{
    if (isWithin(path, rect))
        return path;
    QPainterPath result;
    result.setFillRule(path.fillRule());
    for (QPolygonF part : flattened(path)) {
        for (const Edge edge : kEdges)
            part = clippedAt(edge, part, rect);
        if (part.isEmpty())
            continue;
        result.addPolygon(part);
        result.closeSubpath();
    }
    return result;
}

} // namespace tessara
