#include "charts/ChartText.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace tessara {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kShadowOffset = 1;

/// The family that charts ask for, or else one of the same widths, or at least one whose figures
/// are all of one width. Asked by name: what a system puts in place of a family that it lacks may
/// be anything, and wider than what the axes have room for.
const QString& fontFamily()
{
    static const QString family = [] {
        const QString families[] = {
            QStringLiteral("Helvetica Neue"), QStringLiteral("HelveticaNeue"),
            QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")};
        const auto* found = std::ranges::find_if(
            families, [](const QString& name) { return QFontDatabase::hasFamily(name); });
        return found == std::end(families) ? QStringLiteral("sans-serif") : *found;
    }();
    return family;
}

/// A part of a line in one font.
struct TextRun {
    QString text;
    QFont font;
    double width;
};

TextRun makeRun(QString text, const QFont& font, const QPaintDevice& device)
{
    // Names come from the air; a picture of XML may not hold these.
    std::ranges::replace_if(
        text,
        [](QChar c) {
            return c.category() == QChar::Other_Control || c == QChar(0xfffe) || c == QChar(0xffff);
        },
        QChar(QChar::ReplacementCharacter));
    // The painter measures no otherwise than this device does.
    return {text, font, QFontMetricsF(font, &device).horizontalAdvance(text)};
}

std::vector<TextRun> runsOf(const QString& text, const TextAttributes& attributes,
                            const QString& highlighted, const QPaintDevice& device)
{
    const QFont font = chartFont(attributes, device);
    QRegularExpressionMatch match;
    if (!highlighted.isEmpty()) {
        const QRegularExpression word(
            QStringLiteral("\\b%1\\b").arg(QRegularExpression::escape(highlighted)));
        match = word.match(text);
    }
    if (!match.hasMatch())
        return {makeRun(text, font, device)};
    QFont bold = font;
    bold.setBold(true);
    return {makeRun(text.left(match.capturedStart()), font, device),
            makeRun(match.captured(), bold, device),
            makeRun(text.mid(match.capturedEnd()), font, device)};
}

double widthOf(const std::vector<TextRun>& runs)
{
    double width = 0;
    for (const TextRun& run : runs)
        width += run.width;
    return width;
}

void drawRuns(QPainter& painter, const std::vector<TextRun>& runs, double y, const QColor& color)
{
    painter.setPen(color);
    double x = 0;
    for (const TextRun& run : runs) {
        painter.setFont(run.font);
        painter.drawText(QPointF(x, y), run.text);
        x += run.width;
    }
}

/// @param origin the lower left corner of the line, as the placement of text counts it
void drawLine(QPainter& painter, const QPointF& origin, const std::vector<TextRun>& runs,
              const QColor& color)
{
    const double ascent = QFontMetricsF(runs.front().font, painter.device()).ascent();
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.setOpacity(color.alphaF()); // which the pictures among the characters follow, too
    painter.translate(origin.x(), origin.y() + ascent);
    painter.scale(1, -1);
    drawRuns(painter, runs, kShadowOffset, Qt::black);
    drawRuns(painter, runs, 0, color.rgb());
    painter.restore();
}

/// Moves a length that begins at `start` into bounds; where it is too long, their end counts.
double clampedStart(double start, double length, double boundsStart, double boundsLength)
{
    return std::min(std::max(start, boundsStart), boundsStart + boundsLength - length);
}

} // namespace

QFont chartFont(const TextAttributes& attributes, const QPaintDevice& device)
{
    QFont font(fontFamily());
    // Pixels of a font are whole numbers, points are not.
    font.setPointSizeF(attributes.size * kPointsPerInch / device.logicalDpiY());
    font.setBold(attributes.style == TextStyle::kBold);
    font.setItalic(attributes.style == TextStyle::kItalic);
    return {font, &device};
}

QSizeF sizeOfText(const QString& text, const TextAttributes& attributes, const QPaintDevice& device)
{
    const QFontMetricsF metrics(chartFont(attributes, device), &device);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

void centerTextInContextAtOrigin(QPainter& painter, const QPointF& origin, const QString& text,
                                 const TextAttributes& attributes, const QRectF& bounds,
                                 const QString& highlighted)
{
    if (text.isEmpty())
        return;
    const auto runs = runsOf(text, attributes, highlighted, *painter.device());
    const double width = widthOf(runs);
    QPointF corner(origin.x() - width / 2, origin.y() - attributes.size);
    if (!bounds.isEmpty()) {
        const double height = QFontMetricsF(runs.front().font, painter.device()).height();
        corner.setX(clampedStart(corner.x(), width, bounds.x(), bounds.width()));
        corner.setY(clampedStart(corner.y(), height, bounds.y(), bounds.height()));
    }
    drawLine(painter, corner, runs, attributes.color);
}

void textInContextAtOrigin(QPainter& painter, const QPointF& origin, const QString& text,
                           const TextAttributes& attributes)
{
    if (text.isEmpty())
        return;
    const TextRun run = makeRun(text, chartFont(attributes, *painter.device()), *painter.device());
    drawLine(painter, {origin.x(), origin.y() - attributes.size}, {run}, attributes.color);
}

} // namespace tessara
