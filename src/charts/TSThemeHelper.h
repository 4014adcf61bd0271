#pragma once

#include <QColor>

namespace tessara {

/// The named colours of the user interface. The theme in force is the light one; that for dark
/// surroundings is kept beside it, and switched off. Charts are dark in both.
class TSThemeHelper {
public:
    static bool isDarkTheme() { return false; }

    static QColor textColorForTableHeader();
    static QColor textColorForNetwork();
    static QColor textColorForNetworkAssociated();
    static QColor textColorForNetworkNotFound();
    static QColor textColorForNetworkCollection();
    static QColor textColorForNetworkCollectionNotFound();
    static QColor textColorForMultipleValuesPlaceholder();
    static QColor textColorForCategory();
    static QColor textColorForItem();
    static QColor textColorForLabel();
    static QColor textColorForValueLabel();
    static QColor textColorForInfoElementName();
    static QColor textColorForInfoElementFieldName();
    static QColor textColorForInfoElementFieldValue();
    static QColor textColorForInfoElementFieldValueNotes();
    static QColor textColorForInfoElementSummary();
    static QColor textColorForInfoElementSubfieldName();
    static QColor barColorForRSSI();
    static QColor barColorForNoise();
    static QColor barColorForSNR();
    static QColor barColorForChUtilization();
    static QColor backgroundColorForChart();
    static QColor backgroundColorForChartView();
    static QColor backgroundColorForFilteredCell();
    static QColor colorFor2Dot4GHzBand();
    static QColor colorFor5GHzBand();
};

/// Named colours that are not the theme's.
QColor darkGray();  ///< a third of white
QColor lightGray(); ///< two thirds

/// A colour at another opacity, from 0 to 1.
QColor withAlpha(QColor color, double alpha);

} // namespace tessara
