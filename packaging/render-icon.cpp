// Paints an SVG icon into a square PNG: render-icon ICON.svg SIDE OUTPUT.png
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    const int side = argc == 4 ? std::atoi(argv[2]) : 0;
    if (side < 1) {
        std::fputs("usage: render-icon ICON.svg SIDE OUTPUT.png\n", stderr);
        return 2;
    }
    QSvgRenderer icon(QString::fromLocal8Bit(argv[1]));
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.render(&painter);
    painter.end();
    if (!icon.isValid() || !image.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::fprintf(stderr, "render-icon: cannot make %s of %s\n", argv[3], argv[1]);
        return 1;
    }
    return 0;
}
