#include "foundation/TextOrder.h"

#include <QCollator>

namespace tessara {

namespace {

QCollator makeCollator()
{
    // The C locale knows neither case nor numbers; a user who has it gets English order.
    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English);
    QCollator collator(locale);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    return collator;
}

const QCollator& standardCollator()
{
    static thread_local const QCollator collator = makeCollator();
    return collator;
}

} // namespace

int localizedStandardCompare(const QString& a, const QString& b)
{
    return standardCollator().compare(a, b);
}

QCollatorSortKey localizedStandardSortKey(const QString& text)
{
    return standardCollator().sortKey(text);
}

int caseInsensitiveCompare(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive);
}

} // namespace tessara
