#include "shell/GlyphIcon.h"

#include <QApplication>
#include <QColor>
#include <QDir>
#include <QImage>
#include <QPalette>
#include <QPixmap>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <set>
#include <vector>

using namespace tessara;

namespace {

constexpr std::initializer_list<Glyph> kGlyphs = {
    Glyph::kAdvanced, Glyph::kBottomArea, Glyph::kCategory,  Glyph::kLeftArea, Glyph::kDot,
    Glyph::kGeneral,  Glyph::kLock,       Glyph::kLowSignal, Glyph::kPadlock,  Glyph::kScan,
    Glyph::kSearch,   Glyph::kStop,       Glyph::kTable,     Glyph::kTag,
};

/// The colours of the pixels that are covered whole; none for an empty picture.
std::set<QRgb> solidColors(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colors.insert(image.pixel(x, y));
        }
    }
    return colors;
}

} // namespace

TEST(GlyphIcon, DrawsEachSignInTheColourAskedForAndNoTwoAlike)
{
    std::vector<QImage> images;
    for (const Glyph glyph : kGlyphs) {
        const QPixmap pixmap = glyphPixmap(glyph, QColor(200, 40, 90), 16, 2);
        EXPECT_EQ(pixmap.size(), QSize(32, 32));
        EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(16, 16));
        EXPECT_EQ(solidColors(pixmap), std::set<QRgb>{qRgb(200, 40, 90)});
        EXPECT_EQ(std::ranges::count(images, pixmap.toImage()), 0);
        images.push_back(pixmap.toImage());
        EXPECT_NE(pixmap.toImage(), glyphPixmap(glyph, QColor(20, 40, 90), 16, 2).toImage());
    }
    EXPECT_EQ(images.size(), QDir(QStringLiteral(":/glyphs")).count());
}

TEST(GlyphIcon, FollowsThePaletteThatIsInForce)
{
    const QPalette before = QApplication::palette();
    const QIcon icon = glyphIcon(Glyph::kScan);
    for (const QColor text : {QColor(10, 20, 30), QColor(240, 230, 220)}) {
        QPalette palette = before;
        palette.setColor(QPalette::ButtonText, text);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        palette.setColor(QPalette::HighlightedText, Qt::yellow);
        QApplication::setPalette(palette);
        EXPECT_EQ(solidColors(icon.pixmap(16)), std::set<QRgb>{text.rgb()});
        EXPECT_EQ(solidColors(icon.pixmap(16, QIcon::Disabled)),
                  std::set<QRgb>{QColor(Qt::gray).rgb()});
        EXPECT_EQ(solidColors(icon.pixmap(16, QIcon::Selected)),
                  std::set<QRgb>{QColor(Qt::yellow).rgb()});
    }
    QApplication::setPalette(before);
}
