#include "shell/GlyphIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>

#include <algorithm>

namespace tessara {

namespace {

// Shapes lie in a square of this side.
constexpr double kSide = 16;

QPainterPath shapeOf(Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyph::kScan:
        path.addPolygon(QPolygonF({{4, 2.5}, {13.5, 8}, {4, 13.5}}));
        path.closeSubpath();
        break;
    case Glyph::kStop:
        path.addRect(3.5, 3.5, 9, 9);
        break;
    case Glyph::kSearch: {
        QPainterPath lens;
        lens.addEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
        QPainterPath glass;
        glass.addEllipse(QPointF(6.5, 6.5), 3.5, 3.5);
        path = lens.subtracted(glass);
        path.addPolygon(QPolygonF({{9.6, 10.2}, {10.2, 9.6}, {14, 13.4}, {13.4, 14}}));
        path.closeSubpath();
        break;
    }
    }
    return path;
}

class GlyphIconEngine final : public QIconEngine {
public:
    explicit GlyphIconEngine(Glyph glyph)
        : m_glyph(glyph)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        const QColor color = QApplication::palette().color(group, role);
        const double scale = std::min(rect.width(), rect.height()) / kSide;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(scale, scale);
        painter->translate(-kSide / 2, -kSide / 2);
        // The pen rounds the corners.
        painter->setPen(QPen(color, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(color);
        painter->drawPath(shapeOf(m_glyph));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new GlyphIconEngine(m_glyph); }

private:
    Glyph m_glyph;
};

} // namespace

QIcon glyphIcon(Glyph glyph)
{
    return QIcon(new GlyphIconEngine(glyph));
}

} // namespace tessara
