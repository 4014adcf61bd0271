#include "charts/ChartFile.h"

#include "charts/TSSignalStrengthView.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <algorithm>

namespace tessara {

namespace {

constexpr int kPointsPerInch = 72;

bool writePng(TSSignalStrengthView& chart, QIODevice& file)
{
    return chart.imageWithSubviews().save(&file, "png");
}

bool writePdf(TSSignalStrengthView& chart, QIODevice& file)
{
    QPdfWriter pdf(&file);
    pdf.setResolution(kPointsPerInch);
    pdf.setPageMargins({});
    pdf.setPageSize(QPageSize(QSizeF(chart.size()), QPageSize::Point, {}, QPageSize::ExactMatch));
    QPainter painter;
    if (!painter.begin(&pdf))
        return false;
    chart.paint(painter);
    return painter.end();
}

bool writeSvg(TSSignalStrengthView& chart, QIODevice& file)
{
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(kPointsPerInch);
    svg.setSize(chart.size());
    svg.setViewBox(chart.rect());
    QPainter painter;
    if (!painter.begin(&svg))
        return false;
    chart.paint(painter);
    return painter.end();
}

/// One kind of file, by the ending of its name.
struct ChartFormat {
    const char* ending;
    bool (*write)(TSSignalStrengthView& chart, QIODevice& file);
};

constexpr ChartFormat kFormats[] = {{".png", writePng}, {".pdf", writePdf}, {".svg", writeSvg}};

const ChartFormat* formatOf(const QString& path)
{
    const auto* found = std::ranges::find_if(kFormats, [&](const ChartFormat& format) {
        return path.endsWith(QLatin1String(format.ending), Qt::CaseInsensitive);
    });
    return found == std::end(kFormats) ? nullptr : found;
}

} // namespace

bool isChartFileName(const QString& path)
{
    return formatOf(path) != nullptr;
}

QString writeChart(TSSignalStrengthView& chart, const QString& path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && formatOf(path)->write(chart, file) && file.commit())
        return {};
    return QStringLiteral("%1: %2").arg(path, file.error() == QFileDevice::NoError
                                                  ? QStringLiteral("the picture is too large")
                                                  : file.errorString());
}

} // namespace tessara
