#include "shell/GlyphIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <cmath>

namespace tessara {

namespace {

QString nameOf(Glyph glyph)
{
    switch (glyph) {
    case Glyph::kAdvanced:
        return QStringLiteral("advanced");
    case Glyph::kBottomArea:
        return QStringLiteral("bottom-area");
    case Glyph::kCategory:
        return QStringLiteral("category");
    case Glyph::kDot:
        return QStringLiteral("dot");
    case Glyph::kGeneral:
        return QStringLiteral("general");
    case Glyph::kLeftArea:
        return QStringLiteral("left-area");
    case Glyph::kLock:
        return QStringLiteral("lock");
    case Glyph::kLowSignal:
        return QStringLiteral("low-signal");
    case Glyph::kPadlock:
        return QStringLiteral("padlock");
    case Glyph::kScan:
        return QStringLiteral("scan");
    case Glyph::kSearch:
        return QStringLiteral("search");
    case Glyph::kStop:
        return QStringLiteral("stop");
    case Glyph::kTable:
        return QStringLiteral("table");
    case Glyph::kTag:
        return QStringLiteral("tag");
    }
    Q_UNREACHABLE();
}

/// The drawing in one colour, `side` pixels wide and high.
QPixmap drawn(Glyph glyph, const QColor& color, int side)
{
    QSvgRenderer drawing(QStringLiteral(":/glyphs/%1.svg").arg(nameOf(glyph)));
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
    return pixmap;
}

class GlyphIconEngine final : public QIconEngine {
public:
    explicit GlyphIconEngine(Glyph glyph)
        : m_glyph(glyph)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        const QPoint corner((rect.width() - side) / 2, (rect.height() - side) / 2);
        const double ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect.topLeft() + corner,
                            glyphPixmap(m_glyph, colorIn(mode), side, ratio));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        return glyphPixmap(m_glyph, colorIn(mode), std::min(size.width(), size.height()), 1);
    }

    QIconEngine* clone() const override { return new GlyphIconEngine(m_glyph); }

private:
    static QColor colorIn(QIcon::Mode mode)
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role =
            mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
        return QApplication::palette().color(group, role);
    }

    Glyph m_glyph;
};

} // namespace

QIcon glyphIcon(Glyph glyph)
{
    return QIcon(new GlyphIconEngine(glyph));
}

QPixmap glyphPixmap(Glyph glyph, const QColor& color, int side, double devicePixelRatio)
{
    const QString key = QStringLiteral("glyph %1 %2 %3 %4")
                            .arg(nameOf(glyph), color.name(QColor::HexArgb))
                            .arg(side)
                            .arg(devicePixelRatio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = drawn(glyph, color, static_cast<int>(std::ceil(side * devicePixelRatio)));
        pixmap.setDevicePixelRatio(devicePixelRatio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace tessara
