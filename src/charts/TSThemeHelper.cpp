#include "charts/TSThemeHelper.h"

#include <QGuiApplication>
#include <QPalette>

namespace tessara {

namespace {

QColor rgb(double red, double green, double blue, double alpha = 1)
{
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green),
                            static_cast<float>(blue), static_cast<float>(alpha));
}

QColor gray(double value, double alpha = 1)
{
    return rgb(value, value, value, alpha);
}

QColor orange(double alpha = 1)
{
    return rgb(1, 0.5, 0, alpha);
}

QColor themed(const QColor& light, const QColor& dark)
{
    return TSThemeHelper::isDarkTheme() ? dark : light;
}

/// The desktop's own.
QColor textColor()
{
    return QGuiApplication::palette().color(QPalette::WindowText);
}

const QColor kFiveGHzBlue = rgb(0.129, 0.565, 0.827);
const QColor kName = rgb(0.096, 0.136, 0.335);
const QColor kNameInDark = rgb(0.318, 0.588, 0.72);

} // namespace

// The light theme's colour first, then the dark one's.

QColor TSThemeHelper::textColorForTableHeader()
{
    return themed(gray(0.298), gray(0.427));
}

QColor TSThemeHelper::textColorForNetwork()
{
    return themed(textColor(), gray(0.575));
}

QColor TSThemeHelper::textColorForNetworkAssociated()
{
    return themed(textColor(), gray(0.8));
}

QColor TSThemeHelper::textColorForNetworkNotFound()
{
    return themed(gray(0.418), gray(0.373));
}

QColor TSThemeHelper::textColorForNetworkCollection()
{
    return themed(kName, kNameInDark);
}

QColor TSThemeHelper::textColorForNetworkCollectionNotFound()
{
    return themed(gray(0.418), gray(0.373));
}

QColor TSThemeHelper::textColorForMultipleValuesPlaceholder()
{
    return themed(withAlpha(darkGray(), 0.5), withAlpha(lightGray(), 0.3));
}

QColor TSThemeHelper::textColorForCategory()
{
    return themed(gray(0.3), gray(0.275));
}

QColor TSThemeHelper::textColorForItem()
{
    return themed(gray(0.28), gray(0.375));
}

QColor TSThemeHelper::textColorForLabel()
{
    return themed(gray(0.3), gray(0.427));
}

QColor TSThemeHelper::textColorForValueLabel()
{
    return themed(textColor(), gray(0.575));
}

QColor TSThemeHelper::textColorForInfoElementName()
{
    return themed(kName, kNameInDark);
}

QColor TSThemeHelper::textColorForInfoElementFieldName()
{
    return themed(rgb(0.546, 0, 0.009), rgb(0.176, 0.408, 0.51));
}

QColor TSThemeHelper::textColorForInfoElementFieldValue()
{
    return themed(textColor(), gray(0.475));
}

QColor TSThemeHelper::textColorForInfoElementFieldValueNotes()
{
    return themed(kName, rgb(0.318, 0.588, 0.8));
}

QColor TSThemeHelper::textColorForInfoElementSummary()
{
    return themed(darkGray(), lightGray());
}

QColor TSThemeHelper::textColorForInfoElementSubfieldName()
{
    return themed(rgb(0.362, 0.362, 0.121), rgb(0.357, 0.62, 0.286));
}

QColor TSThemeHelper::barColorForRSSI()
{
    return orange();
}

QColor TSThemeHelper::barColorForNoise()
{
    return rgb(1, 0, 0);
}

QColor TSThemeHelper::barColorForSNR()
{
    return themed(rgb(0, 0, 1), rgb(0.38, 0.706, 0.976));
}

QColor TSThemeHelper::barColorForChUtilization()
{
    return themed(rgb(0.5, 0, 0.5), kFiveGHzBlue);
}

QColor TSThemeHelper::backgroundColorForChart()
{
    return themed(rgb(0, 0, 1, 0.15), rgb(0.08, 0.08, 0.2, 0.4));
}

QColor TSThemeHelper::backgroundColorForChartView()
{
    return themed(gray(0.047), gray(0.099));
}

QColor TSThemeHelper::backgroundColorForFilteredCell()
{
    return themed(orange(0.15), rgb(0, 0, 1, 0.2));
}

QColor TSThemeHelper::colorFor2Dot4GHzBand()
{
    return orange(0.7);
}

QColor TSThemeHelper::colorFor5GHzBand()
{
    return kFiveGHzBlue;
}

QColor darkGray()
{
    return gray(1.0 / 3);
}

QColor lightGray()
{
    return gray(2.0 / 3);
}

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

} // namespace tessara
